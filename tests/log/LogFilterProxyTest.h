#pragma once

#include "TXLogFilterProxyModel.h"

#include "LogTestHelpers.h"
#include "TXLogModel.h"
#include "TestBase.h"

#include <memory>

/// Base of the tests of the log's proxy, which each find one over the model of an empty log.
class LogFilterProxyTest : public TestBase
{
public:
    static inline const QDateTime kNoon{QDate(2026, 1, 31), QTime(12, 0)};

protected:
    void prepare() override
    {
        manager = QSharedPointer<TXLogManager>::create();
        log = std::make_unique<TXLogModel>(manager);
        proxy = std::make_unique<TXLogFilterProxyModel>();
        proxy->setSourceModel(log.get());
    }

    void finish() override
    {
        proxy.reset();
        log.reset();
        manager.reset();
    }

    /// Logs a row of each level, a minute apart, named "row:level".
    void logLevels(const QList<int> &levels)
    {
        for (int row = 0; row < levels.size(); ++row) {
            const LogTest::Item item = LogTest::makeItem(
                QStringLiteral("%1:%2").arg(row).arg(levels.at(row)), levels.at(row));
            item->date = kNoon.addSecs(qint64(60) * row);
            LogTest::append(*manager, item);
        }
    }

    [[nodiscard]] QStringList texts() const { return LogTest::shownTexts(*proxy); }

    void filterByLevel(const QString &pattern)
    {
        proxy->setFilterKeyColumn(TXLogModel::LevelColumn);
        proxy->setFilterRegularExpression(pattern);
    }

    QSharedPointer<TXLogManager> manager;
    std::unique_ptr<TXLogModel> log;
    std::unique_ptr<TXLogFilterProxyModel> proxy;
};
