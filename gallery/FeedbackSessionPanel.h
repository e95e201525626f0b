#pragma once

#include "SessionPanel.h"

#include "LocalFeedbackService.h"

/// What happens between the feedback form and the service: the requests that the service gets, with
/// the notes in them, and the signals of the form and of its dialog.
class FeedbackSessionPanel final : public SessionPanel
{
    Q_OBJECT

public:
    explicit FeedbackSessionPanel(QWidget *parent = nullptr);

public slots:
    /// Lists the request, and below it the content of each part: as indented JSON where it is JSON,
    /// else what can be read of it. Long contents are cut.
    void addRequest(const LocalFeedbackService::Request &request);

    /// The form's two signals, and the end of the dialog with its result.
    void addAccept();
    void addReject();
    void addFinished(int result);

protected:
    void retranslate() override;
};
