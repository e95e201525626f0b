#pragma once

#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TXLogPrint.h"

#include <QStringList>
#include <QTest>

/// What has been written to the application's log since its last reset, without what is no warning.
/// Lines of other threads that have ended are there, too.
inline QStringList warningsInTheLog()
{
    const auto log = TXLogManager::applicationLog();
    const QString mark = QStringLiteral("that was all");
    TXLogPrint(mark, TXLogItem::Information);
    QStringList lines;
    const bool isComplete = QTest::qWaitFor([&] {
        lines.clear();
        bool isMarked = false;
        for (const QSharedPointer<TXLogItem> &item : qAsConst(log->rootItem()->children)) {
            const QString text = item->message.toString(nullptr);
            isMarked = isMarked || text == mark;
            if (item->level == TXLogItem::Warning) {
                lines.append(text);
            }
        }
        return isMarked;
    });
    return isComplete ? lines : QStringList{QStringLiteral("the log does not come")};
}
