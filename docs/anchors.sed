# Gives each heading of a page the anchor that readers of Markdown make of it, for doxygen.
s/^(##+) (.*)$/\1 \2 {#\L\2}/
t anchor
b
:anchor
s/(\{#[^ }]*) /\1-/
t anchor
:point
s/(\{#[^,.}]*)[,.]/\1/
t point
