#include "LocalSambaServer.h"
#include "SearchLog.h"
#include "ShareSearchRun.h"
#include "SilentServer.h"
#include "SmbLogin.h"
#include "StandInPrograms.h"
#include "TestBase.h"

#include <QFile>

namespace {

QString allPrintable()
{
    QString text;
    for (char16_t unit = u' '; unit < 0x7f; ++unit) {
        text.append(QChar(unit));
    }
    return text;
}

/// The command line and the environment of a process, as everybody on the machine and its user
/// see them.
QByteArray visibleOf(const QByteArray &processId)
{
    QByteArray seen;
    for (const char *name : {"cmdline", "environ"}) {
        QFile file(QStringLiteral("/proc/%1/%2").arg(processId.trimmed().toInt()).arg(name));
        seen += file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    return seen;
}

} // namespace

class TestSmbLogin : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { TXLogManager::applicationLog()->reset(); }

private slots:
    void loginIsTakenFromTheUrl_data();
    void loginIsTakenFromTheUrl();
    void loginThatCannotBeToldIsUnusable_data();
    void loginThatCannotBeToldIsUnusable();
    void loginThatIsNotAcceptedListsNothing_data();
    void loginThatIsNotAcceptedListsNothing();
    void anyPasswordGetsThrough_data();
    void anyPasswordGetsThrough();
    void secretsStandInNoCommandLineAndNoEnvironment();
    void warningDoesNotRepeatWhatTheProgramSays();

private:
    /// For the tests that need nothing special of it; its first client has to wait for two seconds.
    LocalSambaServer usual;
};

void TestSmbLogin::loginIsTakenFromTheUrl_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isHashed");
    const auto add = [](const char *name, const char *user, const char *password, const char *file,
                        bool isHashed = false) {
        QTest::newRow(name) << QString(user) << QString(password) << QByteArray(file) << isHashed;
    };
    add("nobody", "", "", "");
    add("password of nobody", "", "x", "");
    add("usual", "mia", "s3cret", "username=mia\npassword=s3cret\n");
    add("no password", "mia", "", "username=mia\npassword=\n");
    add("domain", "HOME;mia", "x", "username=mia\ndomain=HOME\npassword=x\n");
    add("domain, backslash", "HOME\\mia", "x", "username=mia\ndomain=HOME\npassword=x\n");
    add("empty domain", ";mia", "x", "username=mia\npassword=x\n");
    add("other blanks", "HOME ;mia b ", "x", "username=mia b \ndomain=HOME \npassword=x\n");
    add("realm", "mia@home.example", "x", "username=mia@home.example\npassword=x\n");
    add("other signs", "m=i#a \"'$", "=\\|;% ", "username=m=i#a \"'$\npassword==\\|;% \n");
    add("umlauts", "KÜCHE;jörg", "größe", "username=jörg\ndomain=KÜCHE\npassword=größe\n");
    // The hashes are those that `printf %s TEXT | iconv -t UTF-16LE | openssl md4` tells.
    add("leading blank", "mia", " x", "username=mia\npassword=b72e5425427b42687d8a0745b792cae7\n",
        true);
    add("line break", "mia", "x\ny", "username=mia\npassword=05e41172b17cc06ae9d158df648511be\n",
        true);
}

void TestSmbLogin::loginIsTakenFromTheUrl()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QByteArray, file);
    QFETCH(bool, isHashed);
    const SmbLogin login(urlOf(445, user, password));
    QVERIFY(login.isUsable());
    QCOMPARE(login.authenticationFile(), file);
    QCOMPARE(login.isAnonymous(), file.isEmpty());
    QCOMPARE(login.arguments(), isHashed ? QStringList{"--pw-nt-hash"} : QStringList());
}

void TestSmbLogin::loginThatCannotBeToldIsUnusable_data()
{
    QTest::addColumn<QString>("user");
    for (const char *user :
         {"a%b", "HOME;a%b", "a/b", "HOME/mia", "HOME;a\\b", "a\nb", "a\rb", "HO\nME;mia", "HOME;",
          " mia", "HOME; mia", " HOME;mia", " ;mia", " ", "HOME\\", "\n"}) {
        QTest::newRow(user) << QString(user);
    }
    QTest::newRow("null") << QString(QChar(u'\0'));
}

void TestSmbLogin::loginThatCannotBeToldIsUnusable()
{
    QFETCH(QString, user);
    QVERIFY(!SmbLogin(urlOf(445, user, "x")).isUsable());

    StandInPrograms programs;
    QVERIFY(programs.add(kListingProgram, "echo 'Disk|pictures|'\n"));
    QCOMPARE(search(urlOf(445, user, "x")), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("no such user name"), qPrintable(lines.first()));
}

void TestSmbLogin::loginThatIsNotAcceptedListsNothing_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("wrong password") << "mia"
                                    << "s3cret!";
    QTest::newRow("wrong password with a leading blank") << "mia"
                                                         << " s3cret";
    QTest::newRow("no password") << "mia"
                                 << "";
    QTest::newRow("unknown user") << "tom"
                                  << "s3cret";
    QTest::newRow("unknown user without password") << "tom"
                                                   << "";
    QTest::newRow("unknown user of a domain") << "HOME;tom"
                                              << "s3cret";
}

void TestSmbLogin::loginThatIsNotAcceptedListsNothing()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    usual.setShares({"pictures", "proofs", "hidden$"});
    QVERIFY2(usual.start(), qPrintable(usual.error()));
    // The same server lists its shares for everybody who does not tell who he is.
    QCOMPARE(namesIn(urlOf(usual.port())), QStringList({"pictures", "proofs"}));
    QCOMPARE(search(urlOf(usual.port(), user, password)), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("does not accept"), qPrintable(lines.first()));
    QVERIFY(!lines.first().contains("s3cret"));
}

void TestSmbLogin::anyPasswordGetsThrough_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("all printable characters, a blank first") << allPrintable();
    QTest::newRow("all printable characters, a blank last") << allPrintable().mid(1) + ' ';
    QTest::newRow("blanks on both sides") << "  s3cret  ";
    QTest::newRow("percent signs") << "%s3%%cret%41%";
    QTest::newRow("quotes") << "\"s3'cret`";
    QTest::newRow("equals signs") << "=s3=cret=";
    QTest::newRow("tabs") << "\ts3\tcret\t";
    QTest::newRow("word of the file") << "username=tom";
    QTest::newRow("other scripts") << "größe ñ 日本 💧";
    QTest::newRow("other scripts, a blank first") << " größe ñ 日本 💧";
    QTest::newRow("like a hash") << "8846F7EAEE8FB117AD06BDD830B7586C";
}

void TestSmbLogin::anyPasswordGetsThrough()
{
    QFETCH(QString, password);
    LocalSambaServer server;
    server.setUser("mia", password);
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(namesIn(urlOf(server.port(), "mia", password)), QStringList({"pictures", "proofs"}));
    QCOMPARE(warningsInTheLog(), QStringList());
    QCOMPARE(namesIn(urlOf(server.port(), "mia", password + 'x')), QStringList());
}

void TestSmbLogin::secretsStandInNoCommandLineAndNoEnvironment()
{
    // The real program waits for a mute host, and is looked at from outside meanwhile.
    const SilentServer server;
    StandInPrograms programs;
    QVERIFY(programs.add(kListingProgram, "echo $$ | tell pid; exec /usr/bin/smbclient \"$@\"\n"));
    const QUrl url = urlOf(server.port(), "NORTHDOMAIN;miaswinter", "s3cretword");
    QByteArray seen;
    SearchWarnings warnings;
    const auto look = [&] {
        if (!server.waitForClient(0)) {
            return false;
        }
        seen = visibleOf(programs.contentsOf("pid"));
        return true;
    };
    ShareSearch::run(url, {}, look, &warnings, kLongMilliseconds);
    QVERIFY2(seen.startsWith("/usr/bin/smbclient"), seen.constData());
    QVERIFY(seen.contains("--list=127.0.0.1") && seen.contains("LC_ALL="));
    for (const char *secret : {"NORTHDOMAIN", "miaswinter", "s3cretword"}) {
        QVERIFY2(!seen.contains(secret), seen.constData());
    }
}

void TestSmbLogin::warningDoesNotRepeatWhatTheProgramSays()
{
    StandInPrograms programs;
    QVERIFY(programs.add(kListingProgram,
                         "/bin/cat >&2; echo ' NT_STATUS_LOGON_FAILURE' >&2; exit 1\n"));
    QCOMPARE(search(urlOf(445, "mia", "s3cret")), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(!lines.first().contains("s3cret"), qPrintable(lines.first()));
    QVERIFY2(lines.first().contains("NT_STATUS_LOGON_FAILURE"), qPrintable(lines.first()));
}

int main(int argc, char **argv)
{
    return runTest<TestSmbLogin>(argc, argv);
}

#include "tst_SmbLogin.moc"
