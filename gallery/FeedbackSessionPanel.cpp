#include "FeedbackSessionPanel.h"

#include <QDialog>
#include <QJsonDocument>

namespace {

/// A note may have megabytes, which nobody reads in a list.
constexpr qsizetype kLongestContent = 4000;

QString shownContent(const QByteArray &content)
{
    const QJsonDocument json = QJsonDocument::fromJson(content);
    QString text = QString::fromUtf8(json.isNull() ? content : json.toJson()).trimmed();
    if (text.size() > kLongestContent) {
        text.truncate(kLongestContent);
        text.append(u'\u2026');
    }
    return text;
}

} // namespace

FeedbackSessionPanel::FeedbackSessionPanel(QWidget *parent)
    : SessionPanel(parent)
{
    retranslate();
}

void FeedbackSessionPanel::addRequest(const LocalFeedbackService::Request &request)
{
    addReceived(request.method + u' ' + request.path);
    for (const LocalFeedbackService::Part &part : request.parts) {
        addReceived(QStringLiteral("Content-Disposition: ") + part.disposition);
        addReceived(shownContent(part.content));
    }
}

void FeedbackSessionPanel::addAccept()
{
    addEmission(QStringLiteral("accept()"));
}

void FeedbackSessionPanel::addReject()
{
    addEmission(QStringLiteral("reject()"));
}

void FeedbackSessionPanel::addFinished(int result)
{
    addEmission(result == QDialog::Accepted ? QStringLiteral("finished(Accepted)")
                                            : QStringLiteral("finished(Rejected)"));
}

void FeedbackSessionPanel::retranslate()
{
    SessionPanel::retranslate();
    setLabels(tr("What the service &got:"), tr("Signals of t&he form and its dialog:"));
}
