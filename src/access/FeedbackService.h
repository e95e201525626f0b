#pragma once

#include "TXGUICommonExport.h"

#include <QVariantHash>

class QIODevice;
class QNetworkAccessManager;
class QNetworkReply;

/// How to talk to the feedback service of this computer: one address, one form with one part, one
/// word in the answer.
///
/// Holds no state. Thread: that of the manager and of the reply.
class TXGUICOMMON_PRIVATE_EXPORT FeedbackService
{
public:
    FeedbackService() = delete;

    /// Starts to post the note to "http://127.0.0.1:5050/feedback": form data whose only part is
    /// named "content" and holds the note as a JSON object. No proxy is used. Entries that are
    /// nested too deep for TXJSONSerializer stay behind, the others go. The reply belongs to the
    /// manager and is never null.
    [[nodiscard]] static QNetworkReply *post(QNetworkAccessManager &manager,
                                             const QVariantHash &note);

    /// Whether the finished answer says that the note was taken, by "result". What is there is only
    /// written to the debug log; what counts is the data that arrived after that. An answer that
    /// arrived in one go, as each does that was read at its end, therefore counts as a refusal.
    [[nodiscard]] static bool hasAccepted(QIODevice &answer);
};
