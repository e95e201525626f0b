#pragma once

#include "DialogDriver.h"
#include "TXFeedbackWidget.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include <functional>
#include <utility>

// What the tests of the feedback form share.

inline const QString kRefusedText = QStringLiteral(
    "Feedback hasn't been send to our team, maybe the feedback service is unavailable for the "
    "moment. Please re-try later.");
inline const QString kErrorText = QStringLiteral(
    "Feedback hasn't been send to our team, because the following error occured:%1.");

inline QLineEdit *lineEdit(const QWidget &form, const char *name)
{
    return form.findChild<QLineEdit *>(QString::fromLatin1(name));
}

inline QTextEdit *description(const QWidget &form)
{
    return form.findChild<QTextEdit *>(QStringLiteral("feedbackDescriptionTextEdit"));
}

inline QPushButton *pushButton(const QWidget &form, const char *name)
{
    return form.findChild<QPushButton *>(QString::fromLatin1(name));
}

/// Enters a note that can be sent.
inline void fillIn(const QWidget &form)
{
    lineEdit(form, "senderNameLineEdit")->setText(QStringLiteral("Ada Smith"));
    lineEdit(form, "emailAddressLineEdit")->setText(QStringLiteral("ada@paints.example"));
    lineEdit(form, "senderCompanyNameLineEdit")->setText(QStringLiteral("Paints & Co"));
    lineEdit(form, "feedbackSubjectLineEdit")->setText(QStringLiteral("Swatches"));
    description(form)->setPlainText(QStringLiteral("First line\nSecond line"));
}

/// Whether all that fillIn() has entered is there.
inline bool isFilledIn(const QWidget &form)
{
    return lineEdit(form, "senderNameLineEdit")->text() == u"Ada Smith"
        && lineEdit(form, "emailAddressLineEdit")->text() == u"ada@paints.example"
        && lineEdit(form, "senderCompanyNameLineEdit")->text() == u"Paints & Co"
        && lineEdit(form, "feedbackSubjectLineEdit")->text() == u"Swatches"
        && description(form)->toPlainText() == u"First line\nSecond line";
}

/// Answers the question whether to send with "Yes".
inline void expectYes(DialogDriver &driver)
{
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Reset Application"));
        DialogDriver::click(box.button(QMessageBox::Yes));
    });
}

/// Whether the box is one that the form tells something with.
inline void checkTold(const QMessageBox &box, const QString &title, const QString &text)
{
    QCOMPARE(box.windowTitle(), title);
    QCOMPARE(box.text(), text);
    QCOMPARE(box.textFormat(), Qt::PlainText);
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QCOMPARE(box.standardButtons(), QMessageBox::Ok);
    QVERIFY(qobject_cast<TXFeedbackWidget *>(box.parentWidget()));
}

/// Closes a box that is to tell this.
inline void expectTold(DialogDriver &driver, const QString &title, const QString &text)
{
    driver.expectMessageBox([=](QMessageBox &box) {
        checkTold(box, title, text);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
}

inline void expectFailure(DialogDriver &driver, const QString &text)
{
    expectTold(driver, QStringLiteral("Failed to send feedback"), text);
}

/// Takes in what is written to the debug log, from its construction to its destruction, and calls
/// back with each line. One at a time.
class DebugLog
{
public:
    explicit DebugLog(std::function<void(const QString &)> callBack = {})
        : called(std::move(callBack))
    {
        current = this;
        previous = qInstallMessageHandler(take);
    }

    ~DebugLog()
    {
        qInstallMessageHandler(previous);
        current = nullptr;
    }
    Q_DISABLE_COPY_MOVE(DebugLog)

    QStringList lines;

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (qstrcmp(context.category, "tx.debug") != 0) {
            current->previous(type, context, text);
            return;
        }
        current->lines.append(text);
        if (current->called) {
            current->called(text);
        }
    }

    static inline DebugLog *current = nullptr;

    std::function<void(const QString &)> called;
    QtMessageHandler previous = nullptr;
};
