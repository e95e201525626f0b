#pragma once

#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

/// Sends one mail. Make it, connect to its two signals, call sendMessage(), and forget it: the
/// sender deletes itself after it has told the outcome. One that is never told to send goes with
/// the application object when it was made on the GUI thread; otherwise its maker deletes it.
///
/// Sending is not available in this build: every mail ends in mailSendingFailed() with a text that
/// says so.
///
/// Thread: use it on the thread that made it, which runs an event loop.
class TXCORECOMMON_EXPORT TXMailSender : public QObject
{
    Q_OBJECT

public:
    /// Makes a sender; never null. `settings` are those of the mail panel, with the password
    /// enciphered. The two lists may be empty, which means the receivers of the settings.
    static TXMailSender *createTXMailSender(const QHash<QString, QVariant> &settings,
                                            const QString &body, const QString &subject,
                                            const QList<QString> &receivers,
                                            const QList<QString> &copyReceivers);

    ~TXMailSender() override;

    /// Starts sending and returns at once. Ignored when it was called before. Deleting the sender
    /// before the outcome means that no signal comes.
    void sendMessage();

signals:
    /// The server has taken the mail. Emitted at most once, later than sendMessage().
    void mailSendingSucceed();
    /// The mail was not sent; the reason is a translated text for the user. Emitted at most once,
    /// and instead of mailSendingSucceed(), later than sendMessage() and never from within it.
    void mailSendingFailed(QString reason);

private slots:
    void fail();

private:
    explicit TXMailSender(QObject *parent);

    bool started = false;
};
