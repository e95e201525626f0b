#include "ValueSourcePanel.h"

#include "CopyableText.h"

#include "TXResources.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kPartGap = 8;

} // namespace

ValueSourcePanel::ValueSourcePanel(QWidget *parent)
    : GalleryPanel(parent)
    , settingsButton(new QPushButton(this))
    , fileButton(new QPushButton(this))
    , serviceButton(new QPushButton(this))
    , errorPicture(new QLabel(this))
    , messageLabel(new QLabel(this))
{
    errorPicture->setPixmap(TXDisplayLittleErrorBulletStaticImage());
    messageLabel->setTextFormat(Qt::PlainText);
    messageLabel->setWordWrap(true);
    CopyableText::allow(messageLabel);
    // A path without a blank must not make the page wide.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    messageLabel->setSizePolicy(policy);
    setUpLayout();
    retranslate();
    showMessage(false);
    connect(settingsButton, SIGNAL(clicked()), this, SIGNAL(settingsWanted()));
    connect(fileButton, SIGNAL(clicked()), this, SIGNAL(fileWanted()));
    connect(serviceButton, SIGNAL(clicked()), this, SIGNAL(answerWanted()));
}

void ValueSourcePanel::showNote(const TXStringI18n &text)
{
    shownText = text;
    shownReason = {};
    showMessage(false);
}

void ValueSourcePanel::showError(const TXStringI18n &text, const TXStringI18n &reason)
{
    shownText = text;
    shownReason = reason;
    showMessage(true);
}

QString ValueSourcePanel::message() const
{
    const QString text = shownText.toString();
    return shownReason.isEmpty() ? text : QString(text + u' ' + shownReason.toString());
}

void ValueSourcePanel::retranslate()
{
    setTitle(tr("Source"));
    setButtonText(settingsButton, tr("&Gallery Settings"));
    setButtonText(fileButton, tr("JSO&N File..."));
    setButtonText(serviceButton, tr("As&k the Service"));
    messageLabel->setText(message());
}

void ValueSourcePanel::showMessage(bool isError)
{
    messageLabel->setText(message());
    messageLabel->setVisible(!messageLabel->text().isEmpty());
    messageLabel->setForegroundRole(isError ? QPalette::WindowText : QPalette::PlaceholderText);
    errorPicture->setVisible(isError);
}

void ValueSourcePanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kPartGap);
    buttons->addWidget(settingsButton);
    buttons->addWidget(fileButton);
    buttons->addWidget(serviceButton);
    buttons->addStretch();

    auto *messageRow = new QHBoxLayout;
    messageRow->setSpacing(kPartGap);
    messageRow->addWidget(errorPicture, 0, Qt::AlignTop);
    messageRow->addWidget(messageLabel, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addLayout(messageRow);
    rows->addStretch();
}
