#include "FeedbackPage.h"

#include "FeedbackFieldsPanel.h"
#include "FeedbackFormPanel.h"
#include "FeedbackServicePanel.h"
#include "FeedbackSessionPanel.h"

#include "TXFeedbackDialog.h"
#include "TXFeedbackWidget.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

FeedbackPage::FeedbackPage(QWidget *parent)
    : GalleryPage(parent)
    , servicePanel(new FeedbackServicePanel(this))
    , formPanel(new FeedbackFormPanel(this))
    , fieldsPanel(new FeedbackFieldsPanel(this))
    , sessionPanel(new FeedbackSessionPanel(this))
{
    setUpLayout();
    passOnFields();
    connect(fieldsPanel, SIGNAL(fieldsChanged()), this, SLOT(passOnFields()));
    connect(servicePanel, &FeedbackServicePanel::requestReceived, sessionPanel,
            &FeedbackSessionPanel::addRequest);
    connect(formPanel->form(), SIGNAL(accept()), sessionPanel, SLOT(addAccept()));
    connect(formPanel->form(), SIGNAL(reject()), sessionPanel, SLOT(addReject()));
    connect(formPanel, SIGNAL(dialogOpened(TXFeedbackDialog *)), this,
            SLOT(follow(TXFeedbackDialog *)));
}

QString FeedbackPage::description() const
{
    return tr("The form with which a user writes to the makers of a program. Switch on a real "
              "feedback service on this computer, choose what it answers, and submit a note.");
}

void FeedbackPage::fillForPicture()
{
    formPanel->fillInExample();
    servicePanel->setRunning(true);
}

void FeedbackPage::passOnFields()
{
    formPanel->setExtraFields(fieldsPanel->fields());
}

void FeedbackPage::follow(TXFeedbackDialog *dialog)
{
    const auto *form = dialog->findChild<TXFeedbackWidget *>();
    connect(form, SIGNAL(accept()), sessionPanel, SLOT(addAccept()));
    connect(form, SIGNAL(reject()), sessionPanel, SLOT(addReject()));
    connect(dialog, SIGNAL(finished(int)), sessionPanel, SLOT(addFinished(int)));
}

void FeedbackPage::setUpLayout()
{
    auto *right = new QVBoxLayout;
    right->setSpacing(GalleryPanel::kGap);
    right->addWidget(fieldsPanel, 2);
    right->addWidget(sessionPanel, 3);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(formPanel, 1);
    columns->addLayout(right, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(servicePanel);
    rows->addLayout(columns, 1);
}
