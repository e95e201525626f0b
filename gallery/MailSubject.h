#pragma once

#include <QByteArray>
#include <QString>

/// The subject of a mail, read from its headers as a mail program shows it: on one line, with the
/// encoded words of RFC 2047 decoded. Empty when there is none. An encoded word that is not UTF-8
/// or US-ASCII, or that is broken, stays as it is. Time linear in the headers.
[[nodiscard]] QString mailSubject(const QByteArray &content);
