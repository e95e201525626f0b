#pragma once

#include <QString>

/// True when there is something at the path, or at the end of its link, that is no regular file: a
/// folder, a pipe, a socket or a device. To open a pipe would wait for somebody who writes, a
/// device may have no end. False where there is nothing: to open that says why.
[[nodiscard]] bool isNoRegularFile(const QString &path);
