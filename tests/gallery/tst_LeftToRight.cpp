#include "LeftToRight.h"
#include "TestBase.h"

/// What reads from left to right in a gallery that is laid out from right to left.
class TestLeftToRight : public TestBase
{
    Q_OBJECT

private slots:
    void pathStaysAsItIsFromLeftToRight();
    void pathIsKeptTogetherFromRightToLeft();

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

int main(int argc, char **argv)
{
    return runTest<TestLeftToRight>(argc, argv);
}

#include "tst_LeftToRight.moc"
