#include "TXFeedbackWidget.h"

#include "FeedbackService.h"
#include "IgnoredInput.h"
#include "PlainMessageBox.h"
#include "TXError.h"
#include "TXLogPrint.h"
#include "TXStringI18n.h"
#include "WebExchange.h"
#include "ui_TXFeedbackWidget.h"

#include <QEvent>
#include <QMessageBox>
#include <QNetworkReply>

#include <optional>
#include <utility>

namespace {

/// Of TXStringI18n: the text has no plural forms.
constexpr int kNoNumber = -1;

struct Rule
{
    bool isKept;
    const char *message;
};

} // namespace

TXFeedbackWidget::TXFeedbackWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXFeedbackWidget>())
{
    ui->setupUi(this);
    connect(ui->cancelPushButton, SIGNAL(clicked()), SIGNAL(reject()));
    connect(ui->submitPushButton, SIGNAL(clicked()), SLOT(treatSubmitClick()));
}

TXFeedbackWidget::~TXFeedbackWidget()
{
    breakOff();
}

void TXFeedbackWidget::setExtraFields(const QVariantHash &fields)
{
    extraFields = fields;
}

bool TXFeedbackWidget::isValid(TXError *error) const
{
    const QString address = ui->emailAddressLineEdit->text();
    const Rule rules[] = {
        {!ui->senderNameLineEdit->text().isEmpty(),
         QT_TR_NOOP("Field 'Name' hasn't been set, please set a \"Name\".")},
        {!ui->senderCompanyNameLineEdit->text().isEmpty(),
         QT_TR_NOOP("Field 'Company' hasn't been set, please set a 'Company'.")},
        {!ui->feedbackSubjectLineEdit->text().isEmpty(),
         QT_TR_NOOP("Field 'Subject' hasn't been set, please set a 'Subject'.")},
        {!ui->feedbackDescriptionTextEdit->toPlainText().isEmpty(),
         QT_TR_NOOP("Field 'Description' hasn't been set, please set a 'Description'.")},
        {!address.isEmpty(),
         QT_TR_NOOP("Field 'Login' is empty, please add an E-Mail Address which contain '.' and "
                    "'@'.")},
        {address.contains(u'@'),
         QT_TR_NOOP("Missing a '@' in the field 'E-Mail Address', please add a login which "
                    "contain a '@'.")},
        {address.contains(u'.'),
         QT_TR_NOOP("Missing a '.' in the field 'E-Mail Address', please add a login which "
                    "contain a '.'.")},
    };
    for (const Rule &rule : rules) {
        if (!rule.isKept) {
            describe(rule.message, error);
            return false;
        }
    }
    return true;
}

void TXFeedbackWidget::treatSubmitClick()
{
    if (isSubmitting) {
        return;
    }
    isSubmitting = true;
    const QPointer<TXFeedbackWidget> form(this);
    submit();
    if (form) {
        isSubmitting = false;
    }
}

void TXFeedbackWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
}

bool TXFeedbackWidget::eventFilter(QObject *watched, QEvent *event)
{
    // With its window closed, an exchange without an end would leave the program deaf for good.
    if (event->type() == QEvent::Hide && !event->spontaneous() && watched == window()) {
        breakOff();
    }
    return QWidget::eventFilter(watched, event);
}

void TXFeedbackWidget::describe(const char *message, TXError *error)
{
    if (error) {
        error->code = 0;
        error->setDescription(
            TXStringI18n(staticMetaObject.className(), message, nullptr, kNoNumber));
    }
}

void TXFeedbackWidget::submit()
{
    TXError error;
    if (!isValid(&error)) {
        PlainMessageBox::warning(this, tr("Missing Information"), error.getLocalizedDescription());
        return;
    }
    const QPointer<TXFeedbackWidget> form(this);
    if (confirmsSubmission() && form) {
        send();
    }
}

bool TXFeedbackWidget::confirmsSubmission()
{
    // Not on the stack, as the form deletes it when it goes first.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Warning, tr("Reset Application"),
                        tr("Are you really sure you want to send this feedback?"),
                        QMessageBox::Yes | QMessageBox::Cancel, this,
                        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    // QMessageBox's own function of this name would make the box a sheet, without these flags.
    box->QWidget::setWindowModality(Qt::WindowModal);
    const int answer = box->exec();
    delete box;
    return answer == QMessageBox::Yes;
}

QVariantHash TXFeedbackWidget::note() const
{
    const QString name = ui->senderNameLineEdit->text();
    QVariantHash fields = extraFields;
    fields.insert(QStringLiteral("SenderName"), name);
    // The address stays here: the service knows the sender by the name alone.
    fields.insert(QStringLiteral("SenderEMailAddress"), name);
    fields.insert(QStringLiteral("SenderCompany"), ui->senderCompanyNameLineEdit->text());
    fields.insert(QStringLiteral("Subject"), ui->feedbackSubjectLineEdit->text());
    fields.insert(QStringLiteral("Description"), ui->feedbackDescriptionTextEdit->toPlainText());
    return fields;
}

void TXFeedbackWidget::send()
{
    const QPointer<TXFeedbackWidget> form(this);
    // Not its own hiding: a form that is hidden already hears nothing of its window.
    window()->installEventFilter(this);
    // Without it nobody could close the window while a service is silent.
    std::optional<IgnoredInput> input(std::in_place);
    WebExchange::run(
        [this](QNetworkAccessManager &manager) {
            runningReply = FeedbackService::post(manager, note());
            return runningReply.data();
        },
        [&](QNetworkReply &reply) {
            input.reset();
            // Nobody waits for the outcome of an exchange that was broken off.
            if (form && std::exchange(form->runningReply, nullptr)) {
                form->report(reply);
            }
        });
}

void TXFeedbackWidget::breakOff()
{
    if (runningReply) {
        std::exchange(runningReply, nullptr)->abort();
    }
}

void TXFeedbackWidget::report(QNetworkReply &reply)
{
    if (reply.error() != QNetworkReply::NoError) {
        reportError(reply);
    } else if (FeedbackService::hasAccepted(reply)) {
        emit accept();
    } else {
        PlainMessageBox::warning(
            this, tr("Failed to send feedback"),
            tr("Feedback hasn't been send to our team, maybe the feedback service is unavailable "
               "for the moment. Please re-try later."));
    }
}

void TXFeedbackWidget::reportError(QNetworkReply &reply)
{
    PlainMessageBox::warning(this, tr("Failed to send feedback"),
                             tr("Feedback hasn't been send to our team, because the following "
                                "error occured:%1.")
                                 .arg(reply.errorString()));
    TXLogDebug(QString::number(reply.error()));
}
