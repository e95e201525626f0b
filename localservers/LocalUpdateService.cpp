#include "LocalUpdateService.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonValue>

namespace {

constexpr int kNotFound = 404;
constexpr int kPatternSize = 251;

const QString kCheckPath = QStringLiteral("/checkUpdate");
const QString kDownloadPath = QStringLiteral("/download");

QJsonObject fieldsOf(const LocalWebReply &reply)
{
    return {{QStringLiteral("status"), reply.status},
            {QStringLiteral("generatedSize"), reply.generatedSize},
            {QStringLiteral("tellsLength"), reply.tellsLength},
            {QStringLiteral("cutAfter"), reply.cutAfter},
            {QStringLiteral("pieceSize"), reply.pieceSize},
            {QStringLiteral("pauseMilliseconds"), reply.pauseMilliseconds},
            {QStringLiteral("endless"), reply.endless},
            {QStringLiteral("holdAfter"), reply.holdAfter},
            {QStringLiteral("isSilent"), reply.isSilent},
            {QStringLiteral("location"), QString::fromLatin1(reply.location)}};
}

/// A file that is not written whole is removed: the script then tells that it is missing.
void writeBody(const QString &path, const QByteArray &body)
{
    QFile file(path);
    const bool isWritten =
        file.open(QFile::WriteOnly) && file.write(body) == body.size() && file.flush();
    if (!isWritten) {
        file.remove();
    }
}

QList<QPair<QString, QString>> headersOf(const QJsonArray &array)
{
    QList<QPair<QString, QString>> headers;
    for (const QJsonValueConstRef value : array) {
        const QJsonArray header = value.toArray();
        headers.append({header.at(0).toString(), header.at(1).toString()});
    }
    return headers;
}

} // namespace

LocalUpdateService::LocalUpdateService(QObject *parent)
    : LocalServer(QStringLiteral("updateservice.py"), parent)
{
    LocalWebReply nothing;
    nothing.body = "{}";
    setCheckReply(nothing);
    LocalWebReply missing;
    missing.status = kNotFound;
    setDownloadReply(missing);
}

QString LocalUpdateService::authority() const
{
    return QStringLiteral("127.0.0.1:%1").arg(port());
}

QString LocalUpdateService::certificateFile() const
{
    return certificate ? certificate->certificateFile() : QString();
}

void LocalUpdateService::setCheckReply(const LocalWebReply &reply)
{
    setReply(kCheckPath, reply);
}

void LocalUpdateService::setDownloadReply(const LocalWebReply &reply)
{
    setReply(kDownloadPath, reply);
}

void LocalUpdateService::release()
{
    // A service that is gone holds nobody.
    static_cast<void>(tell({{QStringLiteral("release"), true}}));
}

QList<LocalUpdateService::Request> LocalUpdateService::requests()
{
    readEvents();
    return receivedRequests;
}

QByteArray LocalUpdateService::generatedBytes(qint64 from, qsizetype count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    for (qsizetype index = 0; index < count; ++index) {
        bytes[index] = static_cast<char>((from + index) % kPatternSize);
    }
    return bytes;
}

QString LocalUpdateService::prepare()
{
    receivedRequests.clear();
    if (!bodyFolder.isValid()) {
        return tr("no folder for the replies: %1").arg(bodyFolder.errorString());
    }
    if (!certificate) {
        certificate.emplace();
    }
    return certificate->error();
}

QJsonObject LocalUpdateService::options() const
{
    return {{QStringLiteral("certificate"), certificateFile()},
            {QStringLiteral("key"), certificate ? certificate->keyFile() : QString()},
            {QStringLiteral("replies"), replies}};
}

void LocalUpdateService::handleEvent(const QJsonObject &event)
{
    const QJsonObject request = event.value(u"request").toObject();
    if (request.isEmpty()) {
        return;
    }
    receivedRequests.append({request.value(u"method").toString(), request.value(u"path").toString(),
                             request.value(u"query").toString(),
                             headersOf(request.value(u"headers").toArray())});
}

void LocalUpdateService::setReply(const QString &path, const LocalWebReply &reply)
{
    QJsonObject fields = fieldsOf(reply);
    // "/download" is the file "download" of the folder.
    const QString file = bodyFolder.path() + path;
    writeBody(file, reply.body);
    fields.insert(QStringLiteral("file"), file);
    replies.insert(path, fields);
    // Before start() the replies go with the options; a service that cannot take them ends.
    static_cast<void>(tell({{path, fields}}));
}
