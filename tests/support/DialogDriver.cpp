#include "DialogDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void fail(const QString &message)
{
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

QString describe(const QDialog &dialog)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(dialog.metaObject()->className()), dialog.windowTitle());
}

} // namespace

DialogDriver::DialogDriver()
{
    qApp->installEventFilter(this);
}

DialogDriver::~DialogDriver()
{
    if (!answers.isEmpty()) {
        fail(QStringLiteral("%1 expected dialog(s) did not come").arg(answers.size()));
    }
}

void DialogDriver::expect(Answer answer)
{
    answers.append(std::move(answer));
}

void DialogDriver::expectMessageBox(MessageBoxAnswer answer)
{
    expect([answer = std::move(answer)](QDialog &dialog) {
        if (auto *box = qobject_cast<QMessageBox *>(&dialog)) {
            answer(*box);
        } else {
            fail(describe(dialog) + QStringLiteral(" is not a message box"));
        }
    });
}

void DialogDriver::click(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    auto *box = dialog.findChild<QDialogButtonBox *>();
    click(box ? box->button(button) : nullptr);
}

void DialogDriver::click(QAbstractButton *button)
{
    if (!button) {
        fail(QStringLiteral("there is no such button"));
    } else if (!button->isVisible() || !button->isEnabled()) {
        fail(QStringLiteral("a user cannot click the hidden or disabled button \"%1\"")
                 .arg(button->text()));
    } else {
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

bool DialogDriver::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && dialog->isModal() && !seen.contains(dialog)) {
            seen.append(dialog);
            // Not before exec() runs its own loop, or the answer could not end it.
            QTimer::singleShot(0, this,
                               [this, opened = QPointer<QDialog>(dialog)] { answer(opened); });
        }
    }
    return QObject::eventFilter(object, event);
}

void DialogDriver::answer(const QPointer<QDialog> &dialog)
{
    seen.removeAll(dialog);
    if (!dialog) {
        return;
    }
    if (answers.isEmpty()) {
        fail(QStringLiteral("nobody expected ") + describe(*dialog));
        dialog->reject();
        return;
    }
    const Answer next = answers.takeFirst();
    next(*dialog);
    if (dialog && dialog->isVisible()) {
        fail(describe(*dialog) + QStringLiteral(" was left open"));
        dialog->reject();
    }
}
