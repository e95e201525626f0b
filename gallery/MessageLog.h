#pragma once

#include <QSharedPointer>

class TXLogManager;

/// Takes Qt's own messages (qDebug() to qCritical(), those of Qt itself too) into a log for as long
/// as it exists, and passes each on to the handler that was installed before.
///
/// Debug and information messages have the level information, warnings warning, critical and fatal
/// ones error. A category other than "default" stands in brackets before the text; where the
/// message comes from is a sub-item, in builds that know it.
///
/// Messages may come from any thread. One that a message handler itself causes is not taken in; Qt
/// writes it to standard error. One object at a time, on the GUI thread; handlers that others have
/// installed later are to be gone before it goes.
class MessageLog
{
public:
    /// The log is shared, and held until the object goes.
    explicit MessageLog(const QSharedPointer<TXLogManager> &log);
    ~MessageLog();

    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;
};
