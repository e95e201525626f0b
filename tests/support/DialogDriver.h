#pragma once

#include <QDialogButtonBox>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>

class QAbstractButton;
class QDialog;

/// Answers the modal dialogs that the code under test opens.
///
/// Tell it what is to come before the call that opens the dialog:
///
///     DialogDriver driver;
///     driver.expect([](QDialog &dialog) {
///         QCOMPARE(dialog.windowTitle(), "Delete file");
///         DialogDriver::click(dialog, QDialogButtonBox::Yes);
///     });
///     deleteFile();
///
/// Answers are used up in the order of the calls. The test fails when an expected dialog never
/// comes (told when the driver is destroyed), when one comes that nobody expects, and when an
/// answer leaves its dialog open; in the last two cases the dialog is rejected, so that nothing
/// hangs. Lives on the stack of the test function, one at a time.
class DialogDriver : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog &dialog)>;
    using MessageBoxAnswer = std::function<void(QMessageBox &box)>;

    DialogDriver();
    ~DialogDriver() override;

    /// Hands the next dialog to the answer once its event loop runs.
    void expect(Answer answer);

    /// Like expect(), and fails when the dialog is not a message box.
    void expectMessageBox(MessageBoxAnswer answer);

    /// Clicks a standard button of the dialog, as a user's mouse would.
    static void click(QDialog &dialog, QDialogButtonBox::StandardButton button);

    /// Clicks any button. A button that is missing (null), hidden or disabled fails the test.
    static void click(QAbstractButton *button);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void answer(const QPointer<QDialog> &dialog);

    QList<Answer> answers;
    QList<QPointer<QDialog>> seen;
};
