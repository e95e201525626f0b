#pragma once

#include <QByteArray>
#include <QNetworkReply>

#include <algorithm>

/// A reply that no manager has made, with these bytes to read.
class ForeignReply : public QNetworkReply
{
public:
    explicit ForeignReply(QObject *parent, NetworkError error = NoError,
                          const QByteArray &bytes = "foreign")
        : QNetworkReply(parent)
        , content(bytes)
    {
        setError(error, QString());
        open(ReadOnly);
    }

    void abort() override { ++abortCount; }

    qint64 bytesAvailable() const override
    {
        return falselyTold + content.size() + QNetworkReply::bytesAvailable();
    }

    int abortCount = 0;
    /// What has arrived and is not read yet.
    QByteArray content;
    /// So many bytes more are told than can be read.
    qint64 falselyTold = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const QByteArray piece = content.left(size);
        content.remove(0, piece.size());
        std::copy(piece.cbegin(), piece.cend(), data);
        return piece.size();
    }
};
