# What doxygen reads in place of a page: each heading with the anchor that readers of Markdown make of
# it, and each class between backticks in a form that doxygen turns into a link.
s/`([A-PR-Z][A-Za-z0-9]+(::[A-Za-z]+)?)`/<code>\1<\/code>/g
t heading
:heading
s/^(##+) (.*)$/\1 \2 {#\L\2}/
t anchor
b
:anchor
s/(\{#[^ }]*) /\1-/
t anchor
:point
s/(\{#[^,.}]*)[,.]/\1/
t point
