#include "LeftToRight.h"
#include "PaperArea.h"
#include "TXVariantViewer.h"
#include "TestBase.h"

#include <QScrollBar>

/// What reads from left to right in a gallery that is laid out from right to left.
class TestLeftToRight : public TestBase
{
    Q_OBJECT

private slots:
    void pathStaysAsItIsFromLeftToRight();
    void pathIsKeptTogetherFromRightToLeft();
    void textOfAnyLanguageTellsItsDirection();
    void valueIsShownFromItsBeginning();

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

void TestLeftToRight::textOfAnyLanguageTellsItsDirection()
{
    QCOMPARE(inItsOwnDirection("done()"), QChar(0x202a) + QString("done()") + QChar(0x202c));
    const QString arabic = QString::fromUtf8("انتهى (qt6)");
    QCOMPARE(inItsOwnDirection(arabic), arabic);
    QCOMPARE(inItsOwnDirection(QString()), QString());
}

void TestLeftToRight::valueIsShownFromItsBeginning()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    PaperArea area;
    area.viewer()->setValue(QString(2000, u'x'));
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QTRY_VERIFY(area.horizontalScrollBar()->maximum() > 0);

    QVERIFY(area.viewer()->mapTo(area.viewport(), QPoint()).x() >= 0);
}

int main(int argc, char **argv)
{
    return runTest<TestLeftToRight>(argc, argv);
}

#include "tst_LeftToRight.moc"
