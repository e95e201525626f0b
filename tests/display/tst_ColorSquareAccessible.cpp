#include "ColorSquareAccessible.h"

#include "AccessibleEvents.h"
#include "TXColorSquareWidget.h"
#include "TestBase.h"

class TestColorSquareAccessible : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { AccessibleEvents::start(false); }

private slots:
    void swatchIsAPictureWithoutFocus();
    void nameIsTheWidgetsOrAGeneralOne();
    void valueIsTheColourOrTheKindOfBrush_data();
    void valueIsTheColourOrTheKindOfBrush();
    void valueIsPartOfTheDescription();
    void otherBrushIsTold();
    void nobodyIsToldWhenNobodyListens();
};

void TestColorSquareAccessible::swatchIsAPictureWithoutFocus()
{
    TXColorSquareWidget square;

    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&square);

    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Graphic);
    QVERIFY(!accessible->state().focusable);
}

void TestColorSquareAccessible::nameIsTheWidgetsOrAGeneralOne()
{
    TXColorSquareWidget square;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&square);
    QVERIFY(accessible);

    QCOMPARE(accessible->text(QAccessible::Name), "Colour");

    square.setAccessibleName("Foliage");
    QCOMPARE(accessible->text(QAccessible::Name), "Foliage");
}

void TestColorSquareAccessible::valueIsTheColourOrTheKindOfBrush_data()
{
    QTest::addColumn<QBrush>("brush");
    QTest::addColumn<QString>("value");
    QPixmap picture(2, 2);
    picture.fill(Qt::red);
    const QColor orange(255, 128, 0);
    QTest::addRow("none") << QBrush() << "No colour";
    QTest::addRow("solid") << QBrush(orange) << "#ff8000";
    QTest::addRow("half transparent") << QBrush(QColor(255, 128, 0, 130)) << "#82ff8000";
    QTest::addRow("dense") << QBrush(orange, Qt::Dense4Pattern) << "Pattern in #ff8000";
    QTest::addRow("dense and transparent")
        << QBrush(QColor(255, 128, 0, 0), Qt::Dense4Pattern) << "Pattern in #00ff8000";
    QTest::addRow("hatched") << QBrush(orange, Qt::DiagCrossPattern) << "Pattern in #ff8000";
    QTest::addRow("linear") << QBrush(QLinearGradient(0, 0, 1, 1)) << "Gradient";
    QTest::addRow("radial") << QBrush(QRadialGradient(0, 0, 5)) << "Gradient";
    QTest::addRow("conical") << QBrush(QConicalGradient(0, 0, 90)) << "Gradient";
    QTest::addRow("picture") << QBrush(picture) << "Picture";
}

void TestColorSquareAccessible::valueIsTheColourOrTheKindOfBrush()
{
    QFETCH(QBrush, brush);
    QFETCH(QString, value);
    TXColorSquareWidget square;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&square);
    QVERIFY(accessible);

    square.setBrush(brush);

    QCOMPARE(accessible->text(QAccessible::Value), value);
}

void TestColorSquareAccessible::valueIsPartOfTheDescription()
{
    TXColorSquareWidget square;
    square.setBrush(Qt::green);
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&square);
    QVERIFY(accessible);

    QCOMPARE(accessible->text(QAccessible::Description), "#00ff00");
    QCOMPARE(accessible->text(QAccessible::Help), QString());

    square.setToolTip("Measured in March");
    QCOMPARE(accessible->text(QAccessible::Description), "#00ff00\nMeasured in March");

    square.setAccessibleDescription("Green as grass");
    QCOMPARE(accessible->text(QAccessible::Description), "Green as grass\n#00ff00");
    QCOMPARE(accessible->text(QAccessible::Value), "#00ff00");
}

void TestColorSquareAccessible::otherBrushIsTold()
{
    TXColorSquareWidget square;
    AccessibleEvents::start(true);

    square.setBrush(Qt::green);
    square.setBrush(Qt::green);
    square.setPen(QPen(Qt::red));
    square.setBrush({});

    QCOMPARE(AccessibleEvents::take(),
             QStringList({"description #00ff00", "description No colour"}));
}

void TestColorSquareAccessible::nobodyIsToldWhenNobodyListens()
{
    TXColorSquareWidget square;

    square.setBrush(Qt::green);

    QCOMPARE(AccessibleEvents::take(), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestColorSquareAccessible>(argc, argv);
}

#include "tst_ColorSquareAccessible.moc"
