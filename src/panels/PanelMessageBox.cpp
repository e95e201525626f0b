#include "PanelMessageBox.h"

#include <QMessageBox>
#include <QPointer>

namespace {

void show(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text)
{
    // Not on the stack, as the parent deletes it when it goes first.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

} // namespace

void PanelMessageBox::information(QWidget *parent, const QString &title, const QString &text)
{
    show(QMessageBox::Information, parent, title, text);
}

void PanelMessageBox::warning(QWidget *parent, const QString &title, const QString &text)
{
    show(QMessageBox::Warning, parent, title, text);
}
