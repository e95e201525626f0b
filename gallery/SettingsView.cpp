#include "SettingsView.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int kHintRows = 5;
constexpr int kRowPadding = 6;
constexpr int kHintWidth = 380;
constexpr int kColumns = 3;

/// As a user reads it, numbers in the notation of the settings file.
QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList
        ? value.toStringList().join(QStringLiteral(", "))
        : value.toString();
}

} // namespace

SettingsView::SettingsView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(kColumns);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(NoSelection);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    retranslate();
}

void SettingsView::showSettings(const QHash<QString, QVariant> &settings,
                                const QHash<QString, QVariant> &kept)
{
    QStringList keys = settings.keys();
    std::sort(keys.begin(), keys.end());
    clear();
    for (const QString &key : qAsConst(keys)) {
        const QVariant value = settings.value(key);
        auto *row = new QTreeWidgetItem(
            this, {key, textOf(value), QString::fromLatin1(value.metaType().name())});
        QFont rowFont = font();
        rowFont.setBold(value != kept.value(key));
        for (int column = 0; column < kColumns; ++column) {
            row->setFont(column, rowFont);
        }
        // The last column is wide enough without a hint.
        row->setSizeHint(kColumns - 1, {0, rowHeight()});
    }
}

QSize SettingsView::sizeHint() const
{
    return {kHintWidth, rowHeight() * (kHintRows + 1)};
}

int SettingsView::rowHeight() const
{
    return fontMetrics().height() + kRowPadding;
}

void SettingsView::retranslate()
{
    setHeaderLabels({tr("Key"), tr("Value"), tr("Type")});
}
