#include "TXWidgetUtilities.h"

#include "TestBase.h"

#include <QDateTimeEdit>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <memory>

class TestTXWidgetUtilities : public TestBase
{
    Q_OBJECT

private slots:
    void largestLabelDecides();
    void labelsArePolished();
    void largestButtonDecides();
    void buttonsAreMeasuredWithTwoBlanksAtEachSide_data();
    void buttonsAreMeasuredWithTwoBlanksAtEachSide();
    void buttonsAreNotPolished();
    void widthAndHeightMayComeFromDifferentWidgets();
    void emptyListsNeedNoRoom();
    void buttonsGetTheFixedWidth();
    void buttonsGetTheFixedSize();
    void disabledSpinBoxLooksLikeAPlainValue_data();
    void disabledSpinBoxLooksLikeAPlainValue();
    void spinBoxInADisabledParentIsDisabled();
    void nullSpinBoxIsIgnored();
};

void TestTXWidgetUtilities::largestLabelDecides()
{
    QLabel small(QStringLiteral("x"));
    QLabel wide(QStringLiteral("a wide label"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForLabelList({&small, nullptr, &wide});

    const QFontMetrics metrics(wide.font());
    QCOMPARE(needed, metrics.size(Qt::TextShowMnemonic, wide.text()));
}

void TestTXWidgetUtilities::labelsArePolished()
{
    QLabel label(QStringLiteral("&x"));
    label.setStyleSheet(QStringLiteral("font-size: 40pt"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForLabelList({&label});

    QVERIFY(label.testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(label.font().pointSize(), 40);
    QCOMPARE(needed, QFontMetrics(label.font()).size(Qt::TextShowMnemonic, label.text()));
}

void TestTXWidgetUtilities::largestButtonDecides()
{
    QPushButton small(QStringLiteral("x"));
    QPushButton wide(QStringLiteral("a wide button"));
    const QSize needed =
        TXWidgetUtilities::maxSizeNeededForButtonList({nullptr, &wide, &small, nullptr});

    const QFontMetrics metrics(wide.font());
    QCOMPARE(needed, metrics.size(Qt::TextShowMnemonic, QStringLiteral("  a wide button  ")));
}

void TestTXWidgetUtilities::buttonsAreMeasuredWithTwoBlanksAtEachSide_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("Cancel");
    QTest::newRow("mnemonic") << QStringLiteral("&Cancel");
    QTest::newRow("ampersand") << QStringLiteral("Save && close");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
    QTest::newRow("place marker") << QStringLiteral("%1%1%1");
    QTest::newRow("control characters") << QStringLiteral("\x01\t\x7f");
}

void TestTXWidgetUtilities::buttonsAreMeasuredWithTwoBlanksAtEachSide()
{
    QFETCH(QString, text);
    QPushButton button(text);

    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({&button}),
             QFontMetrics(button.font())
                 .size(Qt::TextShowMnemonic,
                       QStringLiteral("  ") + button.text() + QStringLiteral("  ")));
}

void TestTXWidgetUtilities::buttonsAreNotPolished()
{
    QPushButton button(QStringLiteral("x"));
    button.setStyleSheet(QStringLiteral("font-size: 40pt"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForButtonList({&button});

    QVERIFY(!button.testAttribute(Qt::WA_WState_Polished));
    button.ensurePolished();
    QVERIFY(TXWidgetUtilities::maxSizeNeededForButtonList({&button}).height() > needed.height());
}

void TestTXWidgetUtilities::widthAndHeightMayComeFromDifferentWidgets()
{
    QPushButton wide(QStringLiteral("a very wide button with little height"));
    QPushButton high(QStringLiteral("1\n2\n3"));
    const QSize ofWide = TXWidgetUtilities::maxSizeNeededForButtonList({&wide});
    const QSize ofHigh = TXWidgetUtilities::maxSizeNeededForButtonList({&high});
    QVERIFY(ofWide.width() > ofHigh.width() && ofWide.height() < ofHigh.height());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({&wide, &high}),
             QSize(ofWide.width(), ofHigh.height()));

    QLabel wideLabel(wide.text());
    QLabel highLabel(high.text());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({&highLabel, &wideLabel}),
             QSize(TXWidgetUtilities::maxSizeNeededForLabelList({&wideLabel}).width(),
                   TXWidgetUtilities::maxSizeNeededForLabelList({&highLabel}).height()));
}

void TestTXWidgetUtilities::emptyListsNeedNoRoom()
{
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({nullptr}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({nullptr, nullptr}), QSize(0, 0));
    TXWidgetUtilities::setFixedWidthToButtonList({}, 10);
    TXWidgetUtilities::setFixedSizeToButtonList({}, QSize(10, 10));
}

void TestTXWidgetUtilities::buttonsGetTheFixedWidth()
{
    QPushButton first;
    QPushButton second;
    TXWidgetUtilities::setFixedWidthToButtonList({&first, nullptr, &second}, 77);

    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumWidth(), 77);
        QCOMPARE(button->maximumWidth(), 77);
        QCOMPARE(button->minimumHeight(), 0);
        QCOMPARE(button->maximumHeight(), QWIDGETSIZE_MAX);
    }
}

void TestTXWidgetUtilities::buttonsGetTheFixedSize()
{
    QPushButton first;
    QPushButton second;
    TXWidgetUtilities::setFixedSizeToButtonList({nullptr, &first, &second}, QSize(77, 33));

    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumSize(), QSize(77, 33));
        QCOMPARE(button->maximumSize(), QSize(77, 33));
    }
}

void TestTXWidgetUtilities::disabledSpinBoxLooksLikeAPlainValue_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("integer") << 0;
    QTest::newRow("fraction") << 1;
    QTest::newRow("date") << 2;
}

void TestTXWidgetUtilities::disabledSpinBoxLooksLikeAPlainValue()
{
    QFETCH(int, kind);
    std::unique_ptr<QAbstractSpinBox> box;
    switch (kind) {
    case 0:
        box = std::make_unique<QSpinBox>();
        break;
    case 1:
        box = std::make_unique<QDoubleSpinBox>();
        break;
    default:
        box = std::make_unique<QDateTimeEdit>();
    }
    box->setEnabled(false);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QVERIFY(!box->hasFrame());
    QVERIFY(box->isReadOnly());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);

    box->setEnabled(true);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QVERIFY(box->hasFrame());
    QVERIFY(!box->isReadOnly());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);

    // Whatever an enabled box was set to goes.
    box->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    box->setReadOnly(true);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    QVERIFY(!box->isReadOnly());
}

void TestTXWidgetUtilities::spinBoxInADisabledParentIsDisabled()
{
    QWidget parent;
    QSpinBox box(&parent);
    parent.setEnabled(false);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(&box);

    QVERIFY(box.isReadOnly());
}

void TestTXWidgetUtilities::nullSpinBoxIsIgnored()
{
    TXWidgetUtilities::treatWhenSpinBoxDisabled(nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetUtilities>(argc, argv);
}

#include "tst_TXWidgetUtilities.moc"
