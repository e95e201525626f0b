#include "PlainMessageBox.h"

#include <QMessageBox>
#include <QPointer>

namespace {

QMessageBox::StandardButton ask(QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
                                QWidget *parent, const QString &title, const QString &text)
{
    // Not on the stack, as the parent deletes it when it goes first.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    const int answer = box->exec();
    delete box;
    return static_cast<QMessageBox::StandardButton>(answer);
}

} // namespace

void PlainMessageBox::information(QWidget *parent, const QString &title, const QString &text)
{
    ask(QMessageBox::Information, QMessageBox::Ok, parent, title, text);
}

void PlainMessageBox::warning(QWidget *parent, const QString &title, const QString &text)
{
    ask(QMessageBox::Warning, QMessageBox::Ok, parent, title, text);
}

bool PlainMessageBox::confirm(const QString &title, const QString &text)
{
    return ask(QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No, nullptr, title, text)
        == QMessageBox::Yes;
}
