#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// Appends a line to the application's log, TXLogManager::applicationLog(). Thread: any.
///
/// The level is one of TXLogItem::Level; 0 reads as information. The text is taken as
/// TXStringI18n::fromString() takes it: plain, or translatable when it is in the flat form.
TXCORECOMMON_EXPORT void TXLogPrint(const QString &text, unsigned int level);

/// Writes a line for developers through Qt's logging, in the category "tx.debug". Thread: any.
///
/// It does not enter the log that users see, unless the host's message handler takes it there.
TXCORECOMMON_EXPORT void TXLogDebug(const QString &text);
