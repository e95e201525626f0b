#include "TXEmbeddableDialog.h"

TXEmbeddableDialog::TXEmbeddableDialog(QWidget *parent)
    : QDialog(parent)
{ }

void TXEmbeddableDialog::done(int r)
{
    if (isWindow()) {
        QDialog::done(r);
    }
}

void TXEmbeddableDialog::accept()
{
    if (isWindow()) {
        QDialog::accept();
    }
}

void TXEmbeddableDialog::reject()
{
    if (isWindow()) {
        QDialog::reject();
    }
}

bool TXEmbeddableDialog::setAsWidget()
{
    setWindowFlags(Qt::Widget);
    return true;
}
