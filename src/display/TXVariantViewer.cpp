#include "TXVariantViewer.h"

#include "VariantHtml.h"
#include "VariantLabel.h"

#include <QGridLayout>

namespace {

constexpr int kClosedMarginPixels = 14;
constexpr int kOpenMarginPixels = 21;

bool isMap(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantHash;
}

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

} // namespace

TXVariantViewer::TXVariantViewer(QWidget *parent)
    : QWidget(parent)
    , label(new VariantLabel(this))
{
    setAutoFillBackground(true);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(label);
    prepareForUser();
    setValue(QVariant());
}

TXVariantViewer::~TXVariantViewer() = default;

QString TXVariantViewer::variantToHtml(QVariant value, bool preview)
{
    return VariantHtml::fromVariant(value, preview);
}

bool TXVariantViewer::hoverEffects() const
{
    const TXVariantViewer *root = this;
    while (const TXVariantViewer *above = root->parentViewer()) {
        root = above;
    }
    return root->hoverEffectsWanted;
}

bool TXVariantViewer::isExpandable() const
{
    return (isList(value) && !value.toList().isEmpty())
        || (isMap(value) && !value.toMap().isEmpty());
}

bool TXVariantViewer::isExpanded() const
{
    return expanded;
}

bool TXVariantViewer::hasPreview() const
{
    return preview;
}

void TXVariantViewer::setPreview(bool isWanted)
{
    preview = isWanted;
}

void TXVariantViewer::setExpanded(bool isWanted)
{
    if (isWanted) {
        expand();
    } else {
        collapse();
    }
}

void TXVariantViewer::setValue(QVariant newValue)
{
    if (expanded) {
        collapse();
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
    removeEntries();
    label->setVisible(false);
    layout()->removeWidget(label);
    if (isMap(value)) {
        addMapEntries();
    } else {
        addListEntries();
    }
    setLeftMargin(kOpenMarginPixels);
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
    removeEntries();
    label->show();
    layout()->addWidget(label);
    setLeftMargin(kClosedMarginPixels);
    expanded = false;
    update();
    announceFolding();
    emit resized();
}

void TXVariantViewer::addMapEntries()
{
    auto *grid = static_cast<QGridLayout *>(layout());
    int row = 0;
    const QVariantMap map = value.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        auto *key = new VariantLabel(this);
        key->setText(VariantHtml::key(entry.key()));
        key->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        grid->addWidget(key, row, 0);
        childWidgets.append(key);
        TXVariantViewer *child = makeChildViewer(entry.value());
        child->entryKey = entry.key();
        grid->addWidget(child, row, 1);
        child->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        childWidgets.append(child);
        ++row;
    }
}

void TXVariantViewer::addListEntries()
{
    const QVariantList list = value.toList();
    for (const QVariant &element : list) {
        TXVariantViewer *child = makeChildViewer(element);
        layout()->addWidget(child);
        childWidgets.append(child);
    }
}

TXVariantViewer *TXVariantViewer::makeChildViewer(const QVariant &childValue)
{
    auto *child = new TXVariantViewer(this);
    child->setPreview(preview);
    child->setValue(childValue);
    connect(child, SIGNAL(resized()), this, SIGNAL(resized()));
    return child;
}

void TXVariantViewer::removeEntries()
{
    takeFocusFromEntries();
    for (QWidget *widget : std::as_const(childWidgets)) {
        widget->deleteLater();
        layout()->removeWidget(widget);
    }
    childWidgets.clear();
}

void TXVariantViewer::setLeftMargin(int pixels)
{
    layout()->setContentsMargins(pixels, 0, 0, 0);
}

TXVariantViewer *TXVariantViewer::parentViewer() const
{
    return qobject_cast<TXVariantViewer *>(parentWidget());
}
