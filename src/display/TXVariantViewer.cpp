#include "TXVariantViewer.h"

#include "OutOfView.h"
#include "VariantEntries.h"
#include "VariantHtml.h"
#include "VariantKind.h"
#include "VariantLabel.h"
#include "VariantMoreButton.h"

#include <QGridLayout>
#include <QPointer>

TXVariantViewer::TXVariantViewer(QWidget *parent)
    : QWidget(parent)
    , label(new VariantLabel(this))
{
    setAutoFillBackground(true);
    // The notation runs from left to right in any language.
    setLayoutDirection(Qt::LeftToRight);
    makeGrid();
    grid()->addWidget(label);
    prepareForUser();
    setValue(QVariant());
}

TXVariantViewer::~TXVariantViewer() = default;

// The signature is given.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
QString TXVariantViewer::variantToHtml(QVariant value, bool preview)
{
    return VariantHtml::fromVariant(value, preview);
}

bool TXVariantViewer::hoverEffects() const
{
    return rootViewer()->hoverEffectsWanted;
}

bool TXVariantViewer::isExpandable() const
{
    return VariantKind::entryCount(value) > 0;
}

bool TXVariantViewer::isExpanded() const
{
    return expanded;
}

bool TXVariantViewer::hasPreview() const
{
    return preview;
}

void TXVariantViewer::setPreview(bool withPreview)
{
    preview = withPreview;
}

void TXVariantViewer::setExpanded(bool toBeExpanded)
{
    if (toBeExpanded) {
        expand();
    } else {
        collapse();
    }
}

void TXVariantViewer::setValue(QVariant newValue)
{
    const QPointer<TXVariantViewer> self(this);
    if (expanded) {
        collapse();
    }
    if (self.isNull()) {
        // A slot on resized() has deleted it.
        return;
    }
    if (expanded) {
        // A slot on resized() has opened it again.
        showLine();
    }
    value = std::move(newValue);
    label->setText(VariantHtml::line(VariantHtml::fromVariant(value, preview)));
    setLeftMargin(isExpandable() ? kClosedMarginPixels : 0);
    const Qt::CursorShape cursor = isExpandable() ? Qt::PointingHandCursor : Qt::ArrowCursor;
    setCursor(cursor);
    label->setCursor(cursor);
    update();
    announceValue();
    emit resized();
}

QSize TXVariantViewer::sizeHint() const
{
    return withWholeLine(QWidget::sizeHint(), label->sizeHint());
}

QSize TXVariantViewer::minimumSizeHint() const
{
    return withWholeLine(QWidget::minimumSizeHint(), label->minimumSizeHint());
}

QSize TXVariantViewer::withWholeLine(QSize hint, QSize line) const
{
    if (expanded) {
        return hint;
    }
    // Layouts cut off what is wider than 524,287 pixels.
    const QMargins margins = layout()->contentsMargins();
    return hint.expandedTo({line.width() + margins.left(), hint.height()});
}

void TXVariantViewer::setHoverEffects(bool enabled)
{
    hoverEffectsWanted = enabled;
    if (!enabled) {
        takeParentPalette();
    }
}

void TXVariantViewer::expand()
{
    if (!isExpandable()) {
        return;
    }
    // When open already, too: the entries show what they would show in a viewer opened just now.
    removeEntries();
    label->setVisible(false);
    layout()->removeWidget(label);
    setLeftMargin(kOpenMarginPixels);
    entries = std::make_unique<VariantEntries>(value);
    addEntries();
    expanded = true;
    update();
    announceFolding();
    emit resized();
}

void TXVariantViewer::collapse()
{
    if (!isExpandable()) {
        return;
    }
    showLine();
    update();
    announceFolding();
    emit resized();
}

void TXVariantViewer::showLine()
{
    removeEntries();
    label->show();
    grid()->addWidget(label, 0, 0);
    setLeftMargin(kClosedMarginPixels);
    expanded = false;
}

void TXVariantViewer::addMoreEntries()
{
    const qsizetype countBefore = entryCount();
    const bool hadFocus = moreButton->hasFocus();
    addEntries();
    if (hadFocus && moreButton == nullptr) {
        entryViewer(countBefore)->setFocus(Qt::OtherFocusReason);
    }
    update();
    emit resized();
}

void TXVariantViewer::addEntries()
{
    // Else each child that shows up lays out all those before it. Hiding this viewer meanwhile
    // would do as well, but takes the focus from it and the light of the mouse.
    layout()->setEnabled(false);
    // Else Qt looks at all of them for each whether it came up under the mouse.
    const bool isTransparent = testAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int made = 0; made < kEntriesAtOnce && entries->left() > 0; ++made) {
        addEntry();
    }
    placeMoreButton();
    setAttribute(Qt::WA_TransparentForMouseEvents, isTransparent);
    layout()->setEnabled(true);
    layout()->activate();
}

void TXVariantViewer::addEntry()
{
    const int row = static_cast<int>(entries->readCount());
    if (!entries->hasKeys()) {
        // The place is named, the one where a new layout goes on below the label. Left to count by
        // itself the layout grows with each unfolding, and makes two columns after a dictionary.
        addWidget(makeNextViewer(), row + 1, 0);
        return;
    }
    auto *keyLabel = new VariantLabel(this);
    const QString key = entries->key();
    keyLabel->setText(VariantHtml::key(key));
    keyLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    addWidget(keyLabel, row, 0);
    TXVariantViewer *child = makeNextViewer();
    child->entryKey = key;
    addWidget(child, row, 1);
    child->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void TXVariantViewer::addWidget(QWidget *widget, int row, int column)
{
    grid()->addWidget(widget, row, column);
    childWidgets.append(widget);
    OutOfView::show(*widget);
}

void TXVariantViewer::placeMoreButton()
{
    if (entries->left() == 0) {
        removeMoreButton();
        return;
    }
    if (moreButton == nullptr) {
        moreButton = new VariantMoreButton(this);
    }
    moreButton->announce(qMin<qsizetype>(kEntriesAtOnce, entries->left()), entries->count());
    const int row = static_cast<int>(entries->readCount()) + 1;
    grid()->addWidget(moreButton, row, 0, 1, entries->hasKeys() ? 2 : 1, Qt::AlignLeft);
    moreButton->show();
}

void TXVariantViewer::removeMoreButton()
{
    entries.reset();
    if (moreButton != nullptr) {
        layout()->removeWidget(moreButton);
        moreButton->hide();
        moreButton->deleteLater();
        moreButton = nullptr;
    }
}

TXVariantViewer *TXVariantViewer::makeNextViewer()
{
    auto *child = new TXVariantViewer(this);
    child->setPreview(preview);
    child->entryPlace = entries->readCount();
    child->setValue(entries->takeValue());
    connect(child, SIGNAL(resized()), this, SIGNAL(resized()));
    return child;
}

void TXVariantViewer::removeEntries()
{
    takeFocusFromEntries();
    // From the front of the layout: removeWidget() looks through all of it for each.
    while (const std::unique_ptr<QLayoutItem> item{layout()->takeAt(0)}) { }
    for (QWidget *widget : std::as_const(childWidgets)) {
        widget->deleteLater();
        // Else it would stay in the picture, and under the mouse, until it is deleted.
        widget->hide();
    }
    childWidgets.clear();
    removeMoreButton();
    if (grid()->rowCount() > kMostRowsKept) {
        // A grid never loses a row, and goes through all of them at each change.
        delete layout();
        makeGrid();
    }
}

void TXVariantViewer::makeGrid()
{
    auto *cells = new QGridLayout(this);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setSpacing(0);
}

QGridLayout *TXVariantViewer::grid() const
{
    return static_cast<QGridLayout *>(layout());
}

void TXVariantViewer::setLeftMargin(int pixels)
{
    layout()->setContentsMargins(pixels, 0, 0, 0);
}

TXVariantViewer *TXVariantViewer::parentViewer() const
{
    return qobject_cast<TXVariantViewer *>(parentWidget());
}
