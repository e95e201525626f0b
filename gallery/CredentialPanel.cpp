#include "CredentialPanel.h"

#include "CredentialDialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace {

const QString kServerName = QStringLiteral("fileserver");

} // namespace

CredentialPanel::CredentialPanel(QWidget *parent)
    : GalleryPanel(parent)
    , askButton(new QPushButton(this))
    , rememberBox(new QCheckBox(this))
    , explanation(new QLabel(this))
    , outcomeLabel(new QLabel(this))
{
    rememberBox->setChecked(true);
    explanation->setWordWrap(true);
    outcomeLabel->setTextFormat(Qt::PlainText);
    outcomeLabel->setWordWrap(true);
    setUpLayout();
    retranslate();
    connect(askButton, SIGNAL(clicked()), this, SLOT(ask()));
}

CredentialPanel::~CredentialPanel() = default;

void CredentialPanel::ask()
{
    openDialog = std::make_unique<CredentialDialog>(this);
    openDialog->setLabel(kServerName);
    wasCalled = false;
    if (rememberBox->isChecked()) {
        openDialog->setRemember([this](const QString &, const QString &) { wasCalled = true; });
    }
    // The callback comes after the signal.
    connect(openDialog.get(), SIGNAL(finished(int)), this, SLOT(take(int)), Qt::QueuedConnection);
    openDialog->open();
}

void CredentialPanel::retranslate()
{
    setTitle(tr("Credential dialog"));
    setButtonText(askButton, tr("Ask for &Credentials..."));
    rememberBox->setText(tr("Offer to r&emember"));
    explanation->setText(tr("With the offer the dialog calls back at each OK with both fields "
                            "filled in; the host asks by itself whether \"Remember\" is checked."));
    showOutcome();
}

void CredentialPanel::take(int result)
{
    if (!openDialog) {
        return;
    }
    outcome = result == QDialog::Accepted ? Outcome::Confirmed : Outcome::Cancelled;
    user = openDialog->userName();
    passwordLength = openDialog->password().size();
    isRemembering = openDialog->remember();
    showOutcome();
    // The password goes with it.
    openDialog.reset();
}

void CredentialPanel::showOutcome()
{
    if (outcome != Outcome::Confirmed) {
        outcomeLabel->setText(outcome == Outcome::None ? tr("Not asked yet.") : tr("Cancelled."));
        return;
    }
    const QStringList sentences = {
        tr("User: %1.").arg(user),
        tr("Characters of the password: %1.").arg(locale().toString(passwordLength)),
        wasCalled ? tr("The callback was called.") : tr("The callback was not called."),
        isRemembering ? tr("\"Remember\" is checked.") : tr("\"Remember\" is not checked."),
    };
    outcomeLabel->setText(sentences.join(u' '));
}

void CredentialPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(askButton);
    buttons->addWidget(rememberBox);
    buttons->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(explanation);
    rows->addWidget(outcomeLabel);
    rows->addStretch();
}
