#include "WidgetStateTree.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int kHintRows = 16;
constexpr int kHintWidth = 320;

bool isDictionary(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantHash;
}

/// What stands at the place itself first, then what lies deeper, each in the order of the keys: a
/// hash has none that stays.
QStringList sortedKeys(const QHash<QString, QVariant> &entries)
{
    QStringList keys = entries.keys();
    std::sort(keys.begin(), keys.end(), [&entries](const QString &left, const QString &right) {
        const bool isLeftDeeper = isDictionary(entries.value(left));
        const bool isRightDeeper = isDictionary(entries.value(right));
        return isLeftDeeper == isRightDeeper ? left < right : isRightDeeper;
    });
    return keys;
}

void addEntries(QTreeWidgetItem *parent, const QHash<QString, QVariant> &entries)
{
    const QStringList keys = sortedKeys(entries);
    for (const QString &key : keys) {
        const QVariant value = entries.value(key);
        auto *item = new QTreeWidgetItem(parent, {key});
        if (isDictionary(value)) {
            addEntries(item, value.toHash());
        } else {
            item->setText(1, parent->treeWidget()->locale().toString(value.toByteArray().size()));
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

/// Qt's own parts of a view, and what has no name, are of little interest.
bool isNamedByHost(const QTreeWidgetItem *item)
{
    const QString key = item->text(0);
    return !key.isEmpty() && !key.startsWith(QLatin1String("qt_"));
}

bool hasNamedChild(const QTreeWidgetItem *item)
{
    for (int i = 0; i < item->childCount(); ++i) {
        if (isNamedByHost(item->child(i))) {
            return true;
        }
    }
    return false;
}

void unfold(QTreeWidgetItem *item)
{
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *child = item->child(i);
        if (isNamedByHost(child) && hasNamedChild(child)) {
            child->setExpanded(true);
            unfold(child);
        }
    }
}

} // namespace

WidgetStateTree::WidgetStateTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setAlternatingRowColors(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
}

void WidgetStateTree::showState(const QHash<QString, QVariant> &state)
{
    clear();
    addEntries(invisibleRootItem(), state);
    unfold(invisibleRootItem());
}

void WidgetStateTree::retranslate()
{
    setHeaderLabels({tr("Key"), tr("Bytes")});
}

QSize WidgetStateTree::sizeHint() const
{
    return {kHintWidth, fontMetrics().height() * kHintRows};
}
