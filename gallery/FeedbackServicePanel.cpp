#include "FeedbackServicePanel.h"

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QTimer>

namespace {

/// The window waits as long as the port is taken.
constexpr int kPortPatienceMilliseconds = 500;
constexpr int kMillisecondsPerSecond = 1000;

} // namespace

FeedbackServicePanel::FeedbackServicePanel(QWidget *parent)
    : LocalServerPanel(parent)
    , answerLabel(new QLabel(this))
    , answerBox(new QComboBox(this))
    , silence(new QTimer(this))
{
    silence->setSingleShot(true);
    silence->setInterval(kSilenceMilliseconds);
    addOption(answerLabel, answerBox);
    hideFillIn();
    retranslate();
    connect(answerBox, SIGNAL(currentIndexChanged(int)), this, SLOT(tell()));
    connect(silence, SIGNAL(timeout()), this, SLOT(release()));
}

void FeedbackServicePanel::setAnswer(LocalFeedbackService::Answer answer)
{
    answerBox->setCurrentIndex(static_cast<int>(answer));
}

std::unique_ptr<LocalServer> FeedbackServicePanel::makeServer()
{
    auto server = std::make_unique<LocalFeedbackService>();
    server->setPatience(kPortPatienceMilliseconds);
    server->setAnswer(answer());
    passedOn = 0;
    connect(server.get(), SIGNAL(requestReceived()), this, SLOT(passOnRequests()));
    connect(server.get(), SIGNAL(becameSilent()), this, SLOT(waitALittle()));
    return server;
}

bool FeedbackServicePanel::isHelpedBySetup(const QString &reason) const
{
    return !LocalFeedbackService::tellsOfTakenPort(reason);
}

void FeedbackServicePanel::retranslate()
{
    setTitle(tr("Local feedback service"));
    answerLabel->setText(tr("Ans&wer:"));
    // In the order of LocalFeedbackService::Answer.
    setEntries(answerBox,
               {tr("Accepted"), tr("Refused"),
                tr("Accepted after %1 seconds")
                    .arg(locale().toString(kSilenceMilliseconds / kMillisecondsPerSecond)),
                tr("Answer that breaks off"), tr("Answer that is no JSON"), tr("Status 500")});
    LocalServerPanel::retranslate();
}

void FeedbackServicePanel::tell()
{
    if (isRunning()) {
        service()->setAnswer(answer());
    }
}

void FeedbackServicePanel::passOnRequests()
{
    // Taking the requests may itself bring more of them, and call this once more.
    const auto requests = static_cast<LocalFeedbackService *>(sender())->requests();
    while (passedOn < requests.size()) {
        emit requestReceived(requests[passedOn++]);
    }
}

/// Those who come while others wait do not make them wait longer.
void FeedbackServicePanel::waitALittle()
{
    if (!silence->isActive()) {
        silence->start();
    }
}

void FeedbackServicePanel::release()
{
    if (isRunning()) {
        service()->release();
    }
}

LocalFeedbackService *FeedbackServicePanel::service() const
{
    return static_cast<LocalFeedbackService *>(runningServer());
}

LocalFeedbackService::Answer FeedbackServicePanel::answer() const
{
    return static_cast<LocalFeedbackService::Answer>(answerBox->currentIndex());
}
