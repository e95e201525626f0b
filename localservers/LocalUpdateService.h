#pragma once

#include "LocalCertificate.h"
#include "LocalServer.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>
#include <QTemporaryDir>

#include <optional>

/// What a LocalUpdateService answers on one path.
///
/// The members can be combined. Positions in the body count from 0; a place to hold or to cut that
/// the body does not reach does nothing.
struct LocalWebReply
{
    /// The HTTP status, 200 to 599. 204 and 304 have no body, whatever the rest says.
    int status = 200;

    /// The body, byte for byte. Kept in memory by the service: for much more than a hundred
    /// megabytes take generatedSize.
    QByteArray body;

    /// From 0 on: instead of the body above, so many bytes made on the fly, at no cost of memory.
    /// LocalUpdateService::generatedBytes() tells which.
    qint64 generatedSize = -1;

    /// Whether the body's size is told by Content-Length. Without it the end of the connection,
    /// with TLS's notice, is the end of the body.
    bool tellsLength = true;

    /// From 0 on: after so many bytes of the body the connection ends without TLS's notice, as by a
    /// line that breaks. The client gets all bytes before. The told size is that of the whole body.
    qint64 cutAfter = -1;

    /// Above 0: the body goes out in pieces of so many bytes, each sent at once.
    qint64 pieceSize = 0;

    /// How long the service waits before each piece after the first; 0 and more.
    int pauseMilliseconds = 0;

    /// The body is repeated, without a told size, until the client goes or the service stops. An
    /// empty body stays empty.
    bool endless = false;

    /// From 0 on: after so many bytes of the body the service waits for release(), or until it is
    /// stopped. Before a cut at the same place.
    qint64 holdAfter = -1;

    /// The request is read and nothing is answered; isSilent() tells. release() ends the
    /// connection.
    bool isSilent = false;

    /// When not empty, the header "Location": where a status of 301 to 308 leads to.
    QByteArray location;
};

/// An update service: HTTPS with HTTP/1.1 and a self-signed certificate of its own, that answers
/// GET and HEAD of "/checkUpdate" and "/download" with what it is told, and all other paths with
/// 404. From the beginning it answers "/checkUpdate" with "{}" and "/download" with 404.
///
/// Requests are served at the same time, each as the reply was when it came. log() holds method
/// and target of each, as in "GET /checkUpdate?OS=win64". Clients that go in the middle are no
/// error.
class LocalUpdateService : public LocalServer
{
    Q_OBJECT

public:
    /// A request as it came.
    struct Request
    {
        /// "GET" and the like.
        QString method;
        /// The target up to its first question mark, percent-encoded as on the wire.
        QString path;
        /// What follows that question mark, percent-encoded as on the wire.
        QString query;
        /// Names and values in their order, names spelt as on the wire.
        QList<QPair<QString, QString>> headers;
    };

    explicit LocalUpdateService(QObject *parent = nullptr);

    /// Host and port as they stand in a URL, "127.0.0.1:4711". The port is 0 before a successful
    /// start() and is kept by stop().
    [[nodiscard]] QString authority() const;

    /// The certificate's file, for clients that are to trust the service. Empty before the first
    /// start().
    [[nodiscard]] QString certificateFile() const;

    /// What "/checkUpdate" answers. On a running service it counts from the next request on;
    /// transfers that run go on as they began. Kept by stop().
    ///
    /// Blocks until the service has the reply. Where that cannot be had, as on a full disc, the
    /// service ends and error() tells why.
    void setCheckReply(const LocalWebReply &reply);

    /// What "/download" answers, else like setCheckReply().
    void setDownloadReply(const LocalWebReply &reply);

    /// Lets go on what is held, or will be, for the requests that came before this call, and ends
    /// the connections of those that get no answer. Later requests are held again. Does nothing
    /// when the service does not run.
    void release();

    /// All requests since start(), oldest first; kept by stop(). A request is here before it is
    /// in log() and before its answer is sent.
    [[nodiscard]] QList<Request> requests();

    /// The bytes of a generated body from a position on: the byte at position p is p modulo 251.
    [[nodiscard]] static QByteArray generatedBytes(qint64 from, qsizetype count);

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;
    void handleEvent(const QJsonObject &event) override;

private:
    void setReply(const QString &path, const LocalWebReply &reply);

    std::optional<LocalCertificate> certificate;
    QTemporaryDir bodyFolder;
    // What the script gets, by the paths of URLs.
    QJsonObject replies;
    QList<Request> receivedRequests;
};
