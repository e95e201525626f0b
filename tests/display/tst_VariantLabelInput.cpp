#include "VariantLabel.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr qsizetype kMillion = 1000000;

/// Counts the presses of buttons and keys that come through to it.
class PressCounter : public QWidget
{
public:
    int presses = 0;
    int keys = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

} // namespace

class TestVariantLabelInput : public TestBase
{
    Q_OBJECT

private slots:
    void pressesGoToTheParent();
    void interactionsOfQtsLabelDoNothing();
    void screenReadersReadTheWords();
    void wordsAreCutBetweenLetters();
};

void TestVariantLabelInput::pressesGoToTheParent()
{
    PressCounter parent;
    auto *label = new VariantLabel(&parent);
    label->setText(VariantHtml::line(QStringLiteral("<a href=\"file:///\">link</a>")));
    label->resize(label->sizeHint());
    parent.show();

    QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseClick(label, Qt::RightButton, {}, QPoint(5, 5));

    QCOMPARE(parent.presses, 2);
}

// A document of the text would come to life with the first of them.
void TestVariantLabelInput::interactionsOfQtsLabelDoNothing()
{
    PressCounter parent;
    auto *label = new VariantLabel(&parent);
    label->setText(VariantHtml::line(QStringLiteral("some words")));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    label->resize(label->sizeHint());
    parent.show();
    label->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    QTRY_VERIFY(label->hasFocus());

    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(3, 5));
    QTest::mouseMove(label, QPoint(40, 5));
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(40, 5));
    QTest::mouseDClick(label, Qt::LeftButton, {}, QPoint(40, 5));
    QTest::keySequence(label, QKeySequence::SelectAll);
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(label, &menu);

    QVERIFY(!menu.isAccepted());
    QVERIFY(!label->hasSelectedText());
    QVERIFY(parent.presses > 1);
    QVERIFY(parent.keys > 0);
}

void TestVariantLabelInput::screenReadersReadTheWords()
{
    VariantLabel label;
    label.setText(VariantHtml::line(QStringLiteral("<b>a</b> &lt; <span style=\"color: "
                                                   "#000080\">true</span>")));
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&label);
    QVERIFY(reader);

    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("a < true"));
    QCOMPARE(reader->role(), QAccessible::StaticText);
    label.setText(VariantHtml::line(QStringLiteral("a<i>b</i>")));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("ab"));
    label.setText(VariantHtml::line(QStringLiteral("x").repeated(kMillion)));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("x").repeated(1000));
    label.setAccessibleName(QStringLiteral("given"));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("given"));
}

void TestVariantLabelInput::wordsAreCutBetweenLetters()
{
    VariantLabel label;
    label.setText(VariantHtml::line(QStringLiteral("ab\U0001f600c")));

    QCOMPARE(label.visibleText(0), QString());
    QCOMPARE(label.visibleText(2), QStringLiteral("ab"));
    QCOMPARE(label.visibleText(3), QStringLiteral("ab"));
    QCOMPARE(label.visibleText(4), QStringLiteral("ab\U0001f600"));
    QCOMPARE(label.visibleText(1000), QStringLiteral("ab\U0001f600c"));
}

int main(int argc, char **argv)
{
    return runTest<TestVariantLabelInput>(argc, argv);
}

#include "tst_VariantLabelInput.moc"
