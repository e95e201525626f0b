#include "SearchWarnings.h"

#include "TXLogItem.h"
#include "TXLogPrint.h"

void SearchWarnings::warn(Kind kind, const QString &text)
{
    const std::lock_guard lock(mutex);
    if (told.insert(kind).second) {
        TXLogPrint(text, TXLogItem::Warning);
    }
}
