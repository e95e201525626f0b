#include "DifferenceLegend.h"
#include "LeftToRight.h"
#include "PixelProbe.h"
#include "TestBase.h"

/// What reads from left to right in a gallery that is laid out from right to left.
class TestLeftToRight : public TestBase
{
    Q_OBJECT

private slots:
    void pathStaysAsItIsFromLeftToRight();
    void pathIsKeptTogetherFromRightToLeft();
    void legendReadsTheSameFromRightToLeft_data();
    void legendReadsTheSameFromRightToLeft();

protected:
    void finish() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }
};

void TestLeftToRight::pathStaysAsItIsFromLeftToRight()
{
    QCOMPARE(pathInText("/srv/proofs"), QDir::toNativeSeparators("/srv/proofs"));
    QCOMPARE(leftToRight("smb://127.0.0.1"), "smb://127.0.0.1");
}

void TestLeftToRight::pathIsKeptTogetherFromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);

    const QString path = QDir::toNativeSeparators("/srv/proofs");
    QCOMPARE(pathInText("/srv/proofs"), QChar(0x2066) + path + QChar(0x2069));
    QCOMPARE(leftToRight(QString()), QString());
}

void TestLeftToRight::legendReadsTheSameFromRightToLeft_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestLeftToRight::legendReadsTheSameFromRightToLeft()
{
    QFETCH(qreal, ratio);
    DifferenceLegend legend;
    legend.resize(300, legend.sizeHint().height());
    const QImage expected = PixelProbe(legend, ratio).image();

    legend.setLayoutDirection(Qt::RightToLeft);

    QVERIFY(PixelProbe(legend, ratio).image() == expected);
}

int main(int argc, char **argv)
{
    return runTest<TestLeftToRight>(argc, argv);
}

#include "tst_LeftToRight.moc"
