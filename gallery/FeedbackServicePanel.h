#pragma once

#include "LocalServerPanel.h"

#include "LocalFeedbackService.h"

class QTimer;

/// Switches a feedback service on this computer on and off, on the port that the library's form
/// sends to, with a choice of what it answers.
///
/// A silent service answers by itself after a while: whoever waits in the form cannot press
/// anything meanwhile.
class FeedbackServicePanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// How long a silent service lets a note wait.
    static constexpr int kSilenceMilliseconds = 5000;

    explicit FeedbackServicePanel(QWidget *parent = nullptr);

    /// Accepted from the beginning. Counts from the next request on.
    void setAnswer(LocalFeedbackService::Answer answer);

signals:
    /// A request has reached the service, which has not answered it yet.
    void requestReceived(const LocalFeedbackService::Request &request);

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    [[nodiscard]] bool isHelpedBySetup(const QString &reason) const override;
    void retranslate() override;

private slots:
    void tell();
    void passOnRequests();
    void waitALittle();
    void release();

private:
    [[nodiscard]] LocalFeedbackService *service() const;
    [[nodiscard]] LocalFeedbackService::Answer answer() const;

    QLabel *answerLabel;
    QComboBox *answerBox;
    QTimer *silence;
    // How many of the running service's requests have been emitted.
    qsizetype passedOn = 0;
};
