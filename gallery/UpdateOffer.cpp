#include "UpdateOffer.h"

#include "UpdateQuestion.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int kNewerRevision = 10500;
constexpr int kOlderRevision = 10400;
static_assert(kOlderRevision < UpdateQuestion::kRevision);
static_assert(UpdateQuestion::kRevision < kNewerRevision);

constexpr int kNotFound = 404;
constexpr int kSlowLines = 8000;
constexpr int kSlowPieces = 40;
constexpr int kPauseMilliseconds = 100;
constexpr qsizetype kLongDescriptionBytes = 10'000'000;

QByteArray fileFor(UpdateOffer offer)
{
    const QByteArray text =
        "This file stands for the installer of a newer release. It is a plain text that came from\n"
        "a service on your own computer, and harmless: remove it whenever you like.\n";
    const bool isLarge = offer == UpdateOffer::Slow || offer == UpdateOffer::Broken;
    return isLarge ? text + QByteArray("One more line of it.\n").repeated(kSlowLines) : text;
}

QString fileNameFor(UpdateOffer offer)
{
    switch (offer) {
    case UpdateOffer::Beta:
        return QStringLiteral("TXGallery-2.0-beta.txt");
    case UpdateOffer::Slow:
        return QStringLiteral("TXGallery-2.0-slow.txt");
    case UpdateOffer::Broken:
        return QStringLiteral("TXGallery-2.0-broken.txt");
    default:
        return QStringLiteral("TXGallery-2.0.txt");
    }
}

int revisionFor(UpdateOffer offer)
{
    switch (offer) {
    case UpdateOffer::Same:
        return UpdateQuestion::kRevision;
    case UpdateOffer::Older:
        return kOlderRevision;
    default:
        return kNewerRevision;
    }
}

QString descriptionFor(UpdateOffer offer)
{
    const QString notes =
        QCoreApplication::translate("UpdateOffer",
                                    "<p><b>New in this release</b></p><ul>"
                                    "<li>Databases: a million rows, page by page</li>"
                                    "<li>Updates: what you are looking at</li></ul>"
                                    "<p>More at <a href=\"https://www.tovra.example\">"
                                    "www.tovra.example</a>.</p>");
    if (offer != UpdateOffer::LongDescription) {
        return notes;
    }
    const QString more = QCoreApplication::translate("UpdateOffer", "And one more thing. ");
    return notes + more.repeated(kLongDescriptionBytes / more.size());
}

QJsonObject releaseFor(UpdateOffer offer)
{
    QJsonObject release = {
        {QStringLiteral("ProductName"), QStringLiteral("TXGUICommon Gallery")},
        {QStringLiteral("Version"), QStringLiteral("2.0")},
        {QStringLiteral("Status"),
         offer == UpdateOffer::Beta ? QStringLiteral("Beta") : QStringLiteral("Finale")},
        {QStringLiteral("Revision"), revisionFor(offer)},
        {QStringLiteral("Description"), descriptionFor(offer)},
        {QStringLiteral("ReleaseId"), QStringLiteral("gallery-2.0")},
    };
    if (offer != UpdateOffer::WithoutFile) {
        release.insert(QStringLiteral("Filename"), fileNameFor(offer));
        release.insert(QStringLiteral("Filesize"), fileFor(offer).size());
    }
    return release;
}

} // namespace

LocalWebReply checkReplyFor(UpdateOffer offer)
{
    LocalWebReply reply;
    switch (offer) {
    case UpdateOffer::Empty:
        reply.body = "{}";
        break;
    case UpdateOffer::NotJson:
        reply.body = "<html>Please log in to the hotel's network.</html>";
        break;
    case UpdateOffer::NotFound:
        reply.status = kNotFound;
        break;
    default:
        reply.body = QJsonDocument(releaseFor(offer)).toJson();
        break;
    }
    return reply;
}

LocalWebReply downloadReplyFor(UpdateOffer offer)
{
    LocalWebReply reply;
    reply.body = fileFor(offer);
    if (offer == UpdateOffer::Slow) {
        reply.pieceSize = reply.body.size() / kSlowPieces;
        reply.pauseMilliseconds = kPauseMilliseconds;
    }
    if (offer == UpdateOffer::Broken) {
        reply.cutAfter = reply.body.size() / 2;
    }
    return reply;
}
