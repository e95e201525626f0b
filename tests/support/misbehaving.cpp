#include "TestBase.h"

#include <QLabel>

/// A test class whose functions do what the base has to catch. Run by tst_TestBase.
class Misbehaving : public TestBase
{
    Q_OBJECT

private slots:
    void nothingWrong() { QVERIFY(true); }

    void connectsAMisspeltSignal()
    {
        QObject object;
        connect(&object, SIGNAL(destroyd()), &object, SLOT(deleteLater()));
    }

    void leavesAWindow() { new QLabel(QStringLiteral("left"), nullptr); }
};

int main(int argc, char **argv)
{
    return runTest<Misbehaving>(argc, argv);
}

#include "misbehaving.moc"
