#include "CopyableText.h"

#include "TestBase.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

/// Texts of labels that are copied by keyboard.
class TestCopyableText : public TestBase
{
    Q_OBJECT

private slots:
    void tabSelectsTheText();
    void backtabSelectsTheText();
    void selectionIsCopied();
    void selectionGoesWithTheFocus();
    void clickSelectsNothing();
    void emptyTextDoesNoHarm();

protected:
    void prepare() override;
    void finish() override { window.reset(); }

private:
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<QWidget> window;
    QLineEdit *before = nullptr;
    QLabel *label = nullptr;
    QLineEdit *behind = nullptr;
};

void TestCopyableText::prepare()
{
    window = std::make_unique<QWidget>();
    auto *rows = new QVBoxLayout(window.get());
    before = new QLineEdit;
    label = new QLabel(QStringLiteral("on, at 127.0.0.1:2525"));
    behind = new QLineEdit;
    rows->addWidget(before);
    rows->addWidget(label);
    rows->addWidget(behind);
    CopyableText::allow(label);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    before->setFocus();
}

void TestCopyableText::tabSelectsTheText()
{
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), label);
    QCOMPARE(label->selectedText(), label->text());
}

void TestCopyableText::backtabSelectsTheText()
{
    behind->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), label);
    QCOMPARE(label->selectedText(), label->text());
}

void TestCopyableText::selectionIsCopied()
{
    QGuiApplication::clipboard()->clear();
    press(Qt::Key_Tab);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), label->text());
}

void TestCopyableText::selectionGoesWithTheFocus()
{
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), behind);
    QCOMPARE(label->selectedText(), QString());
}

/// The mouse selects a part, from where it was pressed.
void TestCopyableText::clickSelectsNothing()
{
    QTest::mouseClick(label, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), label);
    QCOMPARE(label->selectedText(), QString());
}

void TestCopyableText::emptyTextDoesNoHarm()
{
    label->clear();
    press(Qt::Key_Tab);
    QCOMPARE(label->selectedText(), QString());
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), behind);
}

int main(int argc, char **argv)
{
    return runTest<TestCopyableText>(argc, argv);
}

#include "tst_CopyableText.moc"
