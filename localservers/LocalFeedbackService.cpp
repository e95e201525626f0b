#include "LocalFeedbackService.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonValue>
#include <QMetaEnum>

namespace {

constexpr double kMillisecondsPerSecond = 1000;

QString nameOf(LocalFeedbackService::Answer answer)
{
    const auto names = QMetaEnum::fromType<LocalFeedbackService::Answer>();
    return QString::fromLatin1(names.valueToKey(static_cast<int>(answer)));
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

/// What stands in the file, which goes: the script writes one for each part.
QByteArray takenFrom(const QString &path)
{
    QFile file(path);
    const QByteArray content = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    file.remove();
    return content;
}

QList<LocalFeedbackService::Part> partsOf(const QJsonArray &array, const QDir &folder)
{
    QList<LocalFeedbackService::Part> parts;
    for (const QJsonValueConstRef value : array) {
        const QJsonObject part = value.toObject();
        parts.append({part.value(u"disposition").toString(), part.value(u"name").toString(),
                      part.value(u"hasFileName").toBool(),
                      takenFrom(folder.filePath(part.value(u"file").toString()))});
    }
    return parts;
}

} // namespace

LocalFeedbackService::LocalFeedbackService(QObject *parent)
    : LocalServer(QStringLiteral("feedbackservice.py"), parent)
{ }

void LocalFeedbackService::setPatience(int milliseconds)
{
    patienceMilliseconds = qBound(0, milliseconds, kPatienceMilliseconds);
}

bool LocalFeedbackService::tellsOfTakenPort(const QString &error)
{
    // The words of the script.
    return error.contains(u"is taken by another program");
}

void LocalFeedbackService::setAnswer(Answer answer)
{
    currentAnswer = answer;
    // Before start() it goes with the options; a service that cannot take it ends.
    static_cast<void>(tell({{QStringLiteral("answer"), nameOf(answer)}}));
}

void LocalFeedbackService::release()
{
    // A service that is gone holds nobody.
    static_cast<void>(tell({{QStringLiteral("release"), true}}));
}

QList<LocalFeedbackService::Request> LocalFeedbackService::requests()
{
    readEvents();
    return receivedRequests;
}

QString LocalFeedbackService::prepare()
{
    receivedRequests.clear();
    return {};
}

QJsonObject LocalFeedbackService::options() const
{
    return {{QStringLiteral("port"), kPort},
            {QStringLiteral("patience"), patienceMilliseconds / kMillisecondsPerSecond},
            {QStringLiteral("answer"), nameOf(currentAnswer)}};
}

void LocalFeedbackService::handleEvent(const QJsonObject &event)
{
    const QJsonObject request = event.value(u"request").toObject();
    if (request.isEmpty()) {
        return;
    }
    receivedRequests.append({request.value(u"method").toString(), request.value(u"path").toString(),
                             headersOf(request.value(u"headers").toArray()),
                             partsOf(request.value(u"parts").toArray(), QDir(folder()))});
    emit requestReceived();
}
