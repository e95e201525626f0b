#include "FeedbackFormPanel.h"

#include "TXFeedbackDialog.h"
#include "TXFeedbackWidget.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

/// A form without the field would only stay empty there.
void fillIn(const QWidget *form, const char *field, const QString &text)
{
    if (auto *line = form->findChild<QLineEdit *>(QLatin1String(field))) {
        line->setText(text);
    }
}

} // namespace

FeedbackFormPanel::FeedbackFormPanel(QWidget *parent)
    : GalleryPanel(parent)
    , feedback(new TXFeedbackWidget(this))
    , dialogButton(new QPushButton(this))
    , explanation(new QLabel(this))
{
    explanation->setWordWrap(true);
    setUpLayout();
    retranslate();
    connect(dialogButton, SIGNAL(clicked()), this, SLOT(openDialog()));
}

void FeedbackFormPanel::setExtraFields(const QVariantHash &fields)
{
    extraFields = fields;
    feedback->setExtraFields(fields);
}

void FeedbackFormPanel::fillInExample()
{
    fillIn(feedback, "senderNameLineEdit", QStringLiteral("Mia Sommer"));
    fillIn(feedback, "emailAddressLineEdit", QStringLiteral("mia@example.org"));
    fillIn(feedback, "senderCompanyNameLineEdit", tr("Press room"));
    fillIn(feedback, "feedbackSubjectLineEdit", tr("Colour differences"));
    if (auto *description = feedback->findChild<QTextEdit *>()) {
        description->setPlainText(tr("The limit of the difference bar could be typed as well."));
    }
}

void FeedbackFormPanel::retranslate()
{
    setTitle(tr("Feedback form"));
    setButtonText(dialogButton, tr("Open as &Dialog"));
    explanation->setText(
        tr("A note goes to port 5050 of this computer, and nowhere else; the service takes it "
           "there while it is on. The form waits for the answer as long as it takes, and nothing "
           "can be pressed meanwhile.\n"
           "It tells success only if part of the answer still comes in while it reads. An answer "
           "that has come whole, as from this computer, is not looked at: the form then says that "
           "the service may be unavailable, for an accepted note too. What has arrived stands in "
           "the session."));
}

/// Not by exec(): the gallery goes on behind it.
void FeedbackFormPanel::openDialog()
{
    auto *dialog = new TXFeedbackDialog(extraFields, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    emit dialogOpened(dialog);
    dialog->open();
}

void FeedbackFormPanel::setUpLayout()
{
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(explanation);
    rows->addWidget(feedback, 1);
    rows->addWidget(dialogButton, 0, Qt::AlignLeft);
}
