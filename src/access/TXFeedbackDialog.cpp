#include "TXFeedbackDialog.h"

#include "OwnTitle.h"
#include "ui_TXFeedbackDialog.h"

#include <QEvent>

TXFeedbackDialog::TXFeedbackDialog(const QVariantHash &extraFields, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::TXFeedbackDialog>())
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    ui->feedbackWidget->setExtraFields(extraFields);
    connect(ui->feedbackWidget, SIGNAL(accept()), SLOT(accept()));
    connect(ui->feedbackWidget, SIGNAL(reject()), SLOT(reject()));
}

TXFeedbackDialog::~TXFeedbackDialog() = default;

void TXFeedbackDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
    }
}
