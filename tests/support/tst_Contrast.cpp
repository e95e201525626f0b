#include "Contrast.h"
#include "TestBase.h"

#include <QPainter>

class TestContrast : public TestBase
{
    Q_OBJECT

private slots:
    void colours_data();
    void colours();
    void textIsMeasuredOnItsGround();
    void transparentIsNoGround();
    void hardlySeenChangesDoNotCount();
};

void TestContrast::colours_data()
{
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("red on white") << QColor(0xff, 0, 0) << QColor(Qt::white) << 3.998;
    QTest::newRow("green on white") << QColor(0, 0xff, 0) << QColor(Qt::white) << 1.372;
    QTest::newRow("blue on white") << QColor(0, 0, 0xff) << QColor(Qt::white) << 8.592;
    QTest::newRow("grey on white") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.542;
    QTest::newRow("nearly black") << QColor(9, 9, 9) << QColor(Qt::black) << 1.055;
}

void TestContrast::colours()
{
    QFETCH(QColor, left);
    QFETCH(QColor, right);
    QFETCH(qreal, ratio);

    QVERIFY2(qAbs(Contrast::between(left, right) - ratio) < 0.001,
             qPrintable(QString::number(Contrast::between(left, right))));
    QCOMPARE(Contrast::between(right, left), Contrast::between(left, right));
}

void TestContrast::textIsMeasuredOnItsGround()
{
    QImage picture(60, 30, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(0x76, 0x76, 0x76));
    QPainter painter(&picture);
    painter.setPen(Qt::white);
    painter.drawText(picture.rect(), Qt::AlignCenter, QStringLiteral("HIM"));
    painter.end();

    QCOMPARE(Contrast::groundOf(picture), QColor(0x76, 0x76, 0x76));
    QVERIFY(qAbs(Contrast::ofText(picture) - 4.542) < 0.2);
}

void TestContrast::transparentIsNoGround()
{
    QImage picture(20, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(3, 3, Qt::red);

    QCOMPARE(Contrast::groundOf(picture), QColor(Qt::red));
}

void TestContrast::hardlySeenChangesDoNotCount()
{
    QImage before(20, 20, QImage::Format_RGB32);
    before.fill(Qt::white);
    QImage after = before;
    after.setPixelColor(3, 3, QColor(0x96, 0x96, 0x96));
    QCOMPARE(Contrast::changedPixels(before, after), 0);

    after.setPixelColor(4, 3, QColor(0x94, 0x94, 0x94));
    after.setPixelColor(5, 3, Qt::black);

    QCOMPARE(Contrast::changedPixels(before, after), 2);
    QCOMPARE(Contrast::changedPixels(after, before), 2);
}

int main(int argc, char **argv)
{
    return runTest<TestContrast>(argc, argv);
}

#include "tst_Contrast.moc"
