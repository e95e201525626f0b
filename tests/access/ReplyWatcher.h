#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

#include <algorithm>

/// Catches sight of the reply to a request that the code under test sends by a manager of its own.
class ReplyWatcher : public QObject
{
public:
    ReplyWatcher() { QCoreApplication::instance()->installEventFilter(this); }

    /// Makes the data arrive at the reply now, as if the service had sent it at last.
    void putBack(const QByteArray &data) const
    {
        std::for_each(data.crbegin(), data.crend(), [this](char byte) { reply->ungetChar(byte); });
    }

    /// Whether a reply was seen that is no more.
    [[nodiscard]] bool isReplyGone() const { return wasSeen && !reply; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *seen = qobject_cast<QNetworkReply *>(watched)) {
            reply = seen;
            wasSeen = true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QPointer<QNetworkReply> reply;
    bool wasSeen = false;
};
