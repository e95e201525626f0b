#include "FeedbackService.h"

#include "TXJSONSerializer.h"
#include "TXLogPrint.h"

#include <QByteArray>
#include <QHttpMultiPart>
#include <QHttpPart>
#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <memory>

namespace {

QByteArray jsonOf(const QVariantHash &note)
{
    return TXJSONSerializer::serialize(note, false);
}

QByteArray contentOf(QVariantHash note)
{
    const QByteArray whole = jsonOf(note);
    if (!whole.isEmpty()) {
        return whole;
    }
    // One entry that JSON cannot hold would cost what the user has written.
    note.removeIf([](QVariantHash::iterator entry) {
        return jsonOf({{entry.key(), entry.value()}}).isEmpty();
    });
    return jsonOf(note);
}

std::unique_ptr<QHttpMultiPart> formOf(const QVariantHash &note)
{
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"content\""));
    part.setBody(contentOf(note));
    auto form = std::make_unique<QHttpMultiPart>(QHttpMultiPart::FormDataType);
    form->append(part);
    return form;
}

} // namespace

QNetworkReply *FeedbackService::post(QNetworkAccessManager &manager, const QVariantHash &note)
{
    manager.setProxy(QNetworkProxy::NoProxy);
    const QNetworkRequest request(QUrl(QStringLiteral("http://127.0.0.1:5050/feedback")));
    std::unique_ptr<QHttpMultiPart> form = formOf(note);
    QNetworkReply *reply = manager.post(request, form.get());
    // The request reads from the form until it has ended.
    form.release()->setParent(reply);
    return reply;
}

bool FeedbackService::hasAccepted(QIODevice &answer)
{
    TXLogDebug(QString::fromUtf8(answer.readAll()));
    // Not the bytes from above: they have been read, and what counts is what came since.
    const QVariantHash result = TXJSONSerializer::deserialize(answer.readAll()).toHash();
    return result.value(QStringLiteral("result"), false).toBool();
}
