#include "TXLogPrint.h"

#include "TXLogManager.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(debugLog, "tx.debug")

} // namespace

void TXLogPrint(const QString &text, unsigned int level)
{
    const int shownLevel = level == 0 ? int(TXLogItem::Information) : int(level);
    TXLogManager::applicationLog()->append(shownLevel, TXStringI18n::fromString(text));
}

void TXLogDebug(const QString &text)
{
    qCDebug(debugLog).noquote() << text;
}
