#include "PlainQuestion.h"

#include <QPointer>

int askPlainly(QWidget *parent, const QString &title, const QString &text,
               QMessageBox::StandardButtons buttons)
{
    // It goes with the parent.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    const int answer = box->exec();
    delete box;
    return answer;
}
