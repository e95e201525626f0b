#pragma once

#include "TXGUICommonExport.h"

#include <QtGlobal>

class QSqlDatabase;
class QSqlError;
class QString;

/// Keeps a text that was put together from parts from running as several statements, which the
/// QMYSQL driver would do.
namespace SingleStatement {

/// Whether the database takes the text as one statement. If not, `reason` says why in the
/// database's words; it may be null, and is untouched else.
///
/// A text without a semicolon, and one for a closed database, passes unseen. Any other one is
/// prepared and not run, so that semicolons in literals and at the end pass.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool
isSingle(const QString &statement, const QSqlDatabase &database, QSqlError *reason = nullptr);

} // namespace SingleStatement
