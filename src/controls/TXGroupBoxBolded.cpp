#include "TXGroupBoxBolded.h"

#include "GroupBoxParts.h"

namespace {

/// What is heavier is bold.
constexpr int kHeaviestNotBold = 500;
constexpr QFont::Weight kBold = QFont::Bold;
constexpr QFont::Weight kNotBold = QFont::Normal;

} // namespace

TXGroupBoxBolded::TXGroupBoxBolded(QWidget *parent)
    : QGroupBox(parent)
{ }

bool TXGroupBoxBolded::hasBoldTitle() const
{
    return boldTitle;
}

void TXGroupBoxBolded::setBoldTitle(bool isBold)
{
    boldTitle = isBold;
}

void TXGroupBoxBolded::showEvent(QShowEvent *)
{
    if (!boldTitle) {
        return;
    }
    if (childWasBold.isEmpty()) {
        noteWeights();
    }
    GroupBoxParts::setWeight(this, kBold);
    const auto children = GroupBoxParts::childrenOf(*this);
    for (const auto &child : children) {
        if (child) {
            GroupBoxParts::setWeight(child, childWasBold.value(child) ? kBold : kNotBold);
        }
    }
}

void TXGroupBoxBolded::noteWeights()
{
    const auto children = GroupBoxParts::childrenOf(*this);
    for (const auto &child : children) {
        childWasBold.insert(child, child->font().weight() > kHeaviestNotBold);
        connect(child, SIGNAL(destroyed(QObject *)), this, SLOT(forget(QObject *)));
    }
}

// A later child may come to stand at the same address, and counts as not bold. The entry stays, as
// an empty hash would be filled anew.
void TXGroupBoxBolded::forget(QObject *child)
{
    childWasBold[static_cast<QWidget *>(child)] = false;
}
