#include "MailPage.h"

#include "DictionaryView.h"
#include "GalleryPanel.h"
#include "MailServerPanel.h"
#include "ReceivedMailsPanel.h"

#include "EMailSenderWidget.h"
#include "TXMailSender.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kGap = GalleryPanel::kGap;

} // namespace

MailPage::MailPage(QWidget *parent)
    : GalleryPage(parent)
    , serverPanel(new MailServerPanel(this))
    , senderBox(new QGroupBox(this))
    , senderWidget(new EMailSenderWidget(senderBox))
    , settingsBox(new QGroupBox(this))
    , settingsButton(new QPushButton(settingsBox))
    , settingsView(new DictionaryView(settingsBox))
    , received(new ReceivedMailsPanel(this))
{
    setUpLayout();
    retranslate();
    connect(serverPanel, SIGNAL(started()), this, SLOT(fillIn()));
    connect(serverPanel, SIGNAL(fillInWanted()), this, SLOT(fillIn()));
    connect(serverPanel, SIGNAL(mailReceived(ReceivedMail)), received, SLOT(addMail(ReceivedMail)));
    connect(serverPanel, SIGNAL(mailReceived(ReceivedMail)), this, SLOT(mailShown()));
    connect(settingsButton, SIGNAL(clicked()), this, SLOT(showSettings()));
}

QString MailPage::description() const
{
    return tr("The panel for the settings of outgoing mail. Switch on a real mail server on this "
              "computer, choose what is to go wrong, and send a test mail to it.");
}

void MailPage::fillForPicture()
{
    isFilling = true;
    serverPanel->setRunning(true);
    if (serverPanel->isRunning()) {
        sendExample();
    } else {
        endFilling();
    }
}

void MailPage::retranslate()
{
    senderBox->setTitle(tr("Mail panel"));
    settingsBox->setTitle(tr("Settings of the panel"));
    GalleryPanel::setButtonText(settingsButton, tr("Sho&w Settings"));
}

void MailPage::fillIn()
{
    senderWidget->load(serverPanel->exampleSettings());
}

void MailPage::showSettings()
{
    settingsView->setDictionary(senderWidget->save());
}

void MailPage::mailShown()
{
    if (isFilling) {
        endFilling();
    }
}

void MailPage::exampleFailed(const QString &reason)
{
    qWarning("The example mail was not sent: %s", qUtf8Printable(reason));
    endFilling();
}

/// Not by the panel's button: its box would wait for somebody to close it.
void MailPage::sendExample()
{
    const QString body = tr("Dear Mia,\n\nthe proof of the poster is ready for you to look at.\n\n"
                            "Press room");
    TXMailSender *mail =
        TXMailSender::createTXMailSender(senderWidget->save(), body, tr("Proof is ready"), {}, {});
    connect(mail, SIGNAL(mailSendingFailed(QString)), this, SLOT(exampleFailed(QString)));
    mail->sendMessage();
}

void MailPage::endFilling()
{
    showSettings();
    isFilling = false;
    emit becameReady();
}

void MailPage::setUpLayout()
{
    auto *senderRows = new QVBoxLayout(senderBox);
    GalleryPanel::setMargins(senderRows);
    senderWidget->layout()->setContentsMargins(0, 0, 0, 0);
    senderRows->addWidget(senderWidget);
    senderRows->addStretch();

    auto *settingsRows = new QVBoxLayout(settingsBox);
    GalleryPanel::setGaps(settingsRows);
    settingsRows->addWidget(settingsButton, 0, Qt::AlignLeft);
    settingsRows->addWidget(settingsView, 1);
    settingsView->setTypesShown(false);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(kGap);
    columns->addWidget(senderBox);
    columns->addWidget(settingsBox, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kGap);
    rows->addWidget(serverPanel);
    rows->addLayout(columns);
    rows->addWidget(received, 1);
}
