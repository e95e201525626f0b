#include "DictionaryView.h"

#include "ColumnTitles.h"

#include <QEvent>
#include <QFontDatabase>
#include <QHeaderView>

#include <algorithm>

namespace {

enum Column {
    KeyColumn,
    TypeColumn,
    ValueColumn,
    ColumnCount,
};

constexpr int kKeyWidth = 170;
constexpr int kTypeWidth = 70;
constexpr int kFewestRows = 5;
constexpr int kRowGap = 2;

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList
        ? value.toStringList().join(QStringLiteral(", "))
        : value.toString();
}

} // namespace

DictionaryView::DictionaryView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(ColumnCount);
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    setColumnWidth(KeyColumn, kKeyWidth);
    setColumnWidth(TypeColumn, kTypeWidth);
    retranslate();
    fitHeight();
}

void DictionaryView::setTypesShown(bool isShown)
{
    setColumnHidden(TypeColumn, !isShown);
}

void DictionaryView::setDictionary(const QHash<QString, QVariant> &dictionary,
                                   const std::optional<QHash<QString, QVariant>> &kept)
{
    clear();
    QStringList keys = dictionary.keys();
    std::sort(keys.begin(), keys.end());
    for (const QString &key : qAsConst(keys)) {
        const QVariant value = dictionary.value(key);
        addEntry(key, value, kept && kept->value(key) != value);
    }
    resizeColumnToContents(KeyColumn);
    fitHeight();
}

void DictionaryView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QTreeWidget::changeEvent(event);
}

void DictionaryView::addEntry(const QString &key, const QVariant &value, bool isBold)
{
    auto *item = new QTreeWidgetItem(this);
    item->setText(KeyColumn, key);
    item->setText(TypeColumn, QString::fromLatin1(value.typeName()));
    item->setText(ValueColumn, textOf(value));
    item->setToolTip(ValueColumn, textOf(value));
    for (int column = 0; column < ColumnCount; ++column) {
        QFont shown =
            column == ValueColumn ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : font();
        shown.setBold(isBold);
        item->setFont(column, shown);
    }
}

void DictionaryView::retranslate()
{
    setHeaderLabels({tr("Key"), tr("Type"), tr("Value")});
    giveColumnTitlesRoom(header());
    if (accessibleName() == standardName) {
        standardName = tr("Settings");
        setAccessibleName(standardName);
    }
}

void DictionaryView::fitHeight()
{
    const int rows = std::max(topLevelItemCount(), kFewestRows);
    const int rowHeight = std::max(sizeHintForRow(0), fontMetrics().height());
    setMinimumHeight(header()->sizeHint().height() + rows * rowHeight + 2 * frameWidth() + kRowGap);
}
