#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

/// Addresses of the update service with a query.
///
/// Names and values reach the service as they are, whatever characters they hold. Nothing here
/// keeps state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT UpdateQuery
{
public:
    /// Names and values in the order in which they are sent. A null value is sent like an empty
    /// one.
    using Items = QList<QPair<QString, QString>>;

    UpdateQuery() = delete;

    /// The address of a path of the service, see TXUpdateService::url(), with these items.
    [[nodiscard]] static QUrl address(const QString &path, const Items &items);
};
