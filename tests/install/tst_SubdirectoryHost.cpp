#include "HelloWindow.h"
#include "HostBuild.h"
#include "TestBase.h"

#include <QFileInfo>

/// The host that install/subdirectory has built, with the repository among its sources.
class TestSubdirectoryHost : public TestBase
{
    Q_OBJECT

private slots:
    void windowShows();
    void hostIsSparedWhatIsNotTheLibrary_data();
    void hostIsSparedWhatIsNotTheLibrary();

private:
    const QString folder = buildFolder() + "/tests/install/subdirectory";
};

void TestSubdirectoryHost::windowShows()
{
    QCOMPARE(showAndCloseHello(folder + "/hello"), QString());
}

void TestSubdirectoryHost::hostIsSparedWhatIsNotTheLibrary_data()
{
    QTest::addColumn<QString>("part");

    for (const char *part : {"gallery", "tests", "localservers", "designer", "docs"}) {
        QTest::newRow(part) << QString(part);
    }
}

void TestSubdirectoryHost::hostIsSparedWhatIsNotTheLibrary()
{
    QFETCH(const QString, part);

    QVERIFY(QFileInfo::exists(folder + "/TXGUICommon/src"));
    QVERIFY(!QFileInfo::exists(folder + "/TXGUICommon/" + part));
}

int main(int argc, char **argv)
{
    return runTest<TestSubdirectoryHost>(argc, argv);
}

#include "tst_SubdirectoryHost.moc"
