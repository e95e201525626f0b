#include "UnlockScreen.h"

#include "GalleryPanel.h"
#include "PadlockSign.h"

#include "TXPasswordLineEdit.h"
#include "TXResources.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kTitlePointsAboveNormal = 2;
constexpr int kFieldWidth = 180;
constexpr int kPictureGap = 7;

} // namespace

UnlockScreen::UnlockScreen(QWidget *parent)
    : QWidget(parent)
    , title(new QLabel(this))
    , passwordLabel(new QLabel(this))
    , passwordEdit(new TXPasswordLineEdit(this))
    , unlockButton(new QPushButton(this))
    , messagePicture(new QLabel(this))
    , message(new QLabel(this))
{
    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() + kTitlePointsAboveNormal);
    titleFont.setWeight(QFont::DemiBold);
    title->setFont(titleFont);
    passwordLabel->setBuddy(passwordEdit);
    passwordEdit->setFixedWidth(kFieldWidth);
    messagePicture->setPixmap(TXDisplayLittleErrorBulletStaticImage());
    setUpLayout();
    clearMessage();
    connect(unlockButton, SIGNAL(clicked()), this, SLOT(check()));
    connect(passwordEdit, SIGNAL(returnPressed()), this, SLOT(check()));
    connect(passwordEdit, SIGNAL(textEdited(QString)), this, SLOT(clearMessage()));
}

void UnlockScreen::ask(const StoredPassword &forPassword)
{
    password = forPassword;
    passwordEdit->clear();
    clearMessage();
    passwordEdit->setFocus();
}

void UnlockScreen::retranslate()
{
    title->setText(tr("The work area is locked"));
    passwordLabel->setText(tr("Pass&word:"));
    unlockButton->setText(tr("&Unlock"));
    message->setText(tr("This is not the password."));
}

void UnlockScreen::check()
{
    const bool isRight = password.matches(passwordEdit->text());
    if (isRight) {
        passwordEdit->clear();
        emit passwordGiven();
        return;
    }
    message->show();
    messagePicture->show();
    passwordEdit->selectAll();
    passwordEdit->setFocus();
}

void UnlockScreen::clearMessage()
{
    message->hide();
    messagePicture->hide();
}

void UnlockScreen::setUpLayout()
{
    for (QWidget *part :
         {static_cast<QWidget *>(message), static_cast<QWidget *>(messagePicture)}) {
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
    }
    auto *fieldRow = new QHBoxLayout;
    fieldRow->setSpacing(GalleryPanel::kGap);
    fieldRow->addWidget(passwordLabel);
    fieldRow->addWidget(passwordEdit);
    fieldRow->addWidget(unlockButton);

    auto *messageRow = new QHBoxLayout;
    messageRow->setSpacing(kPictureGap);
    messageRow->addWidget(messagePicture);
    messageRow->addWidget(message, 1);

    auto *rows = new QVBoxLayout;
    rows->setSpacing(GalleryPanel::kGap);
    rows->addStretch();
    rows->addWidget(title);
    rows->addLayout(fieldRow);
    rows->addLayout(messageRow);
    rows->addStretch();

    auto *columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(2 * GalleryPanel::kGap);
    columns->addStretch();
    columns->addWidget(new PadlockSign(this), 0, Qt::AlignVCenter);
    columns->addLayout(rows);
    columns->addStretch();
}
