#include "GioAnswer.h"
#include "TestBase.h"

namespace {

const QString kLocation = "smb://nas/pictures";

GioAnswer answer(ProgramResult::End end, int code, const QByteArray &output, const QString &error)
{
    return {{end, code, output, error}, kLocation};
}

GioAnswer failure(const QString &error, const QByteArray &output = {})
{
    return answer(ProgramResult::End::Finished, 2, output, error);
}

const NetworkCredentials kMia{"mia", "STUDIO", "s3cret"};

} // namespace

class TestGioAnswer : public TestBase
{
    Q_OBJECT

private slots:
    void mountingCountsWhenTheShareIsThere();
    void unmountingCountsWhenTheShareIsGone();
    void localPathIsFound_data();
    void localPathIsFound();
    void reasonsAreInWords_data();
    void reasonsAreInWords();
    void ownWordsMayHoldTheUser();
    void refusalsAreToldApart();
    void sharesOfOthersAreToldApart();
};

void TestGioAnswer::mountingCountsWhenTheShareIsThere()
{
    QVERIFY(answer(ProgramResult::End::Finished, 0, {}, {}).isMounted());
    QVERIFY(failure("gio: smb://nas/pictures/: Location is already mounted\n").isMounted());
    QVERIFY(!failure("gio: smb://nas/pictures/: Connection refused\n").isMounted());
    QVERIFY(!answer(ProgramResult::End::TimedOut, 0, {}, {}).isMounted());
}

void TestGioAnswer::unmountingCountsWhenTheShareIsGone()
{
    QVERIFY(answer(ProgramResult::End::Finished, 0, {}, {}).isUnmounted());
    QVERIFY(
        failure("gio: smb://nas/pictures/: The specified location is not mounted").isUnmounted());
    QVERIFY(!failure("gio: smb://nas/pictures/: File system is busy").isUnmounted());
    QVERIFY(!answer(ProgramResult::End::TimedOut, 0, {}, {}).isUnmounted());
}

void TestGioAnswer::localPathIsFound_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("path");
    QTest::newRow("among others") << QByteArray("uri: x\nlocal path: /run/gvfs/a b\nattributes:\n")
                                  << "/run/gvfs/a b";
    QTest::newRow("last") << QByteArray("local path: /ä") << QString::fromUtf8("/ä");
    QTest::newRow("not there") << QByteArray("uri: x\n  local path: y\n") << "";
    QTest::newRow("nothing") << QByteArray() << "";
}

void TestGioAnswer::localPathIsFound()
{
    QFETCH(QByteArray, output);
    QFETCH(QString, path);
    QCOMPARE(answer(ProgramResult::End::Finished, 0, output, {}).localPath(), path);
}

void TestGioAnswer::reasonsAreInWords_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("words");
    const int finished = int(ProgramResult::End::Finished);
    QTest::newRow("gio's") << finished << QByteArray() << "gio: smb://nas/pictures/: Refused\n"
                           << "Refused";
    QTest::newRow("gio's last") << finished << QByteArray() << "warning\ngio: x: y\n"
                                << "x: y";
    QTest::newRow("other spelling")
        << finished << QByteArray() << "gio: smb://nas:445/PICTURES/: No route: to host\n"
        << "No route: to host";
    QTest::newRow("log-in") << finished << QByteArray("Authentication Required\n") << ""
                            << "the user name or the password was refused";
    QTest::newRow("with the user") << finished << QByteArray() << "no such user: MIA"
                                   << "gio ended with code 2";
    QTest::newRow("with the password") << finished << QByteArray() << "bad s3cret"
                                       << "gio ended with code 2";
    QTest::newRow("silent") << finished << QByteArray() << ""
                            << "gio ended with code 2";
    QTest::newRow("no service")
        << finished << QByteArray() << "gio: smb://nas/pictures: Operation not supported"
        << "Operation not supported (Debian's package gvfs-backends may be missing, or there is no "
           "session bus)";
    QTest::newRow("mute") << int(ProgramResult::End::TimedOut) << QByteArray() << ""
                          << "the server did not answer in time";
    QTest::newRow("killed") << int(ProgramResult::End::Failed) << QByteArray() << ""
                            << "the program gio could not be run";
    QTest::newRow("missing") << int(ProgramResult::End::NotInstalled) << QByteArray() << ""
                             << "the program gio is missing; Debian's packages libglib2.0-bin and "
                                "gvfs-backends are needed";
}

void TestGioAnswer::reasonsAreInWords()
{
    QFETCH(int, end);
    QFETCH(QByteArray, output);
    QFETCH(QString, error);
    QFETCH(QString, words);
    QCOMPARE(answer(ProgramResult::End(end), 2, output, error).reason(kMia), words);
}

void TestGioAnswer::ownWordsMayHoldTheUser()
{
    QCOMPARE(failure("", "Authentication Required\n").reason({"user", "", "password"}),
             "the user name or the password was refused");
}

void TestGioAnswer::refusalsAreToldApart()
{
    const QByteArray asked("Authentication Required\n");
    QVERIFY(failure("", asked).isRefused());
    QVERIFY(failure("gio: smb://nas/pictures/: Permission denied\n", asked).isRefused());
    QVERIFY(!failure("gio: smb://nas/pictures/: Connection refused\n", asked).isRefused());
    QVERIFY(!failure("gio: smb://nas/pictures/: Location is already mounted").isRefused());
    QVERIFY(!answer(ProgramResult::End::Finished, 0, asked, {}).isRefused());
    QVERIFY(!answer(ProgramResult::End::TimedOut, -1, asked, {}).isRefused());
}

void TestGioAnswer::sharesOfOthersAreToldApart()
{
    QVERIFY(failure("gio: smb://nas/pictures/: Location is already mounted\n").wasMounted());
    QVERIFY(!failure("gio: smb://nas/pictures/: Connection refused\n").wasMounted());
    QVERIFY(!answer(ProgramResult::End::Finished, 0, {}, {}).wasMounted());
}

int main(int argc, char **argv)
{
    return runTest<TestGioAnswer>(argc, argv);
}

#include "tst_GioAnswer.moc"
