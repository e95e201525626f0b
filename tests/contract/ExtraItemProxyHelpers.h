#pragma once

#include "ExtraItemProxyComboModel.h"

#include <QAbstractItemModelTester>
#include <QStandardItemModel>

/// What the tests of ExtraItemProxyComboModel share.
namespace ExtraItemProxyTest {

inline constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

inline QList<QStandardItem *> itemRow(const QString &text)
{
    auto item = std::make_unique<QStandardItem>(text);
    item->setData("id " + text);
    item->setData(text.toUpper(), Qt::UserRole);
    return {item.release()};
}

/// What the rows show, extra ones included: "-" is the separator.
inline QString shown(const QAbstractItemModel &model, int column = 0)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, column);
        const bool separator = index.data(Qt::AccessibleDescriptionRole).toString() == "separator";
        rows.append(separator ? "-" : index.data().toString());
    }
    return rows.join(' ');
}

/// The proxy as the selection bar makes it, over a source with some rows.
struct Bar
{
    explicit Bar(const QStringList &rows = {})
    {
        for (const QString &text : rows) {
            source.appendRow(itemRow(text));
        }
        proxy.setSourceModel(&source);
    }

    QStandardItemModel source;
    ExtraItemProxyComboModel proxy{{"Load"}, {-1}, "Item", true, -2};
    QAbstractItemModelTester tester{&proxy, kFatal};
};

} // namespace ExtraItemProxyTest
