#include "FileContents.h"
#include "LocalSambaServer.h"
#include "ProcessTable.h"
#include "SambaClient.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

QString everyPrintableCharacter()
{
    QString text;
    for (char16_t character = u' '; character <= u'~'; ++character) {
        text.append(character);
    }
    return text;
}

/// A server of another script, with the options of a LocalSambaServer.
class ScriptedServer : public LocalServer
{
public:
    using LocalServer::LocalServer;

protected:
    [[nodiscard]] QJsonObject options() const override
    {
        return {{"user", "mia"}, {"password", "s3cret"}, {"shares", QJsonArray{"pictures"}}};
    }
};

} // namespace

class TestLocalSambaServerSettings : public TestBase
{
    Q_OBJECT

private slots:
    void sharesMayHaveOddNames();
    void badSettingsAreToldInWords_data();
    void badSettingsAreToldInWords();
    void usersOfTheSystemAreNotMeant_data();
    void usersOfTheSystemAreNotMeant();
    void passwordMayHaveAnyCharacter_data();
    void passwordMayHaveAnyCharacter();
    void passwordStandsOnNoCommandLine();
    void missingProgramIsToldInWords_data();
    void missingProgramIsToldInWords();
};

void TestLocalSambaServerSettings::sharesMayHaveOddNames()
{
    const QStringList names = {"before", "a b",      "Größe", "測る", "пример",
                               "it's",   "5\" disk", "#x",    ";y",   "a;b",
                               "a=b",    "-e",       "a,b",   "x$",   "<|>",
                               ":c",     "a.",       "x?y*z", "{v}",  "$(a)",
                               "path",   "..",       "&",     "😀",    QString(80, u'n'),
                               "after"};
    LocalSambaServer server;
    server.setShares(names);
    QVERIFY2(server.start(), qPrintable(server.error()));
    SambaClient client(server);
    for (const QString &name : names) {
        const QByteArray mark = "there" + QByteArray::number(names.indexOf(name));
        put(server.shareFolder(name), mark, name.toUtf8());
        QVERIFY2(client.run(name, "ls " + mark), qPrintable(name + ": " + client.readAll()));
    }
    // Each is a folder by itself.
    QCOMPARE(QDir(server.shareFolder("after")).entryList(QDir::Files).size(), 1);
    QVERIFY(!client.run("before", "ls there1"));
}

void TestLocalSambaServerSettings::badSettingsAreToldInWords_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QStringList>("shares");
    QTest::addColumn<QString>("reason");
    const auto addUser = [](const char *title, const QString &user) {
        QTest::newRow(title) << user << "7hOrnBush" << QStringList{"a"} << "the user's name";
    };
    addUser("no user", "");
    addUser("blank in the user", "mia b");
    addUser("user with a field", "mia:x:0");
    addUser("user with a line", "mia\nroot");
    addUser("user with a line end", "mia\n");
    addUser("user as an option", "-x");
    addUser("user in capitals", "Mia");
    addUser("user of another script", "zoë");
    addUser("long user", QString(33, u'm'));
    const auto addPassword = [](const char *title, const QString &password) {
        QTest::newRow(title) << "mia" << password << QStringList{"a"} << "the password";
    };
    addPassword("no password", "");
    addPassword("password with a line", "7hOrnBush\nb");
    addPassword("password with a line feed at its end", "7hOrnBush\n");
    addPassword("password with a null", QString("7hOrnBush") + QChar(0));
    addPassword("long password", "7hOrnBush" + QString(127, u'x'));
    const auto addShares = [](const char *title, const QStringList &shares) {
        QTest::newRow(title) << "mia"
                             << "7hOrnBush" << shares << "share";
    };
    addShares("no name", {""});
    addShares("new section", {"a]\n[b"});
    addShares("new option", {"a]\npath = /\n#"});
    addShares("bracket", {"a]"});
    addShares("carriage return", {"a\rb"});
    addShares("line separator", {QString("a") + QChar(QChar::LineSeparator) + 'b'});
    addShares("variable", {"%U"});
    addShares("backslash at the end", {"a\\"});
    addShares("slash", {"a/b"});
    addShares("blank at the end", {"a "});
    addShares("two blanks", {"a  b"});
    addShares("in quotes", {"\"a\""});
    addShares("settings of all", {"Global"});
    addShares("folders of all users", {"homes"});
    addShares("printers", {"printers"});
    addShares("the server's own", {"IPC$"});
    addShares("long name", {QString(81, u'n')});
    addShares("twice", {"a", "A"});
}

void TestLocalSambaServerSettings::badSettingsAreToldInWords()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QStringList, shares);
    QFETCH(QString, reason);
    LocalSambaServer server;
    server.setUser(user, password);
    server.setShares(shares);

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains(reason), qPrintable(server.error()));
    QVERIFY2(!server.error().contains("7hOrnBush"), qPrintable(server.error()));
    QVERIFY2(!server.error().contains("Traceback"), qPrintable(server.error()));
    QVERIFY(!server.isRunning());
}

void TestLocalSambaServerSettings::usersOfTheSystemAreNotMeant_data()
{
    QTest::addColumn<QString>("user");
    for (const char *user : {"root", "nobody", "daemon", "_a-b_9", "nosuchuser"}) {
        QTest::newRow(user) << QString(user);
    }
}

void TestLocalSambaServerSettings::usersOfTheSystemAreNotMeant()
{
    QFETCH(QString, user);
    LocalSambaServer server;
    server.setUser(user, "s3cret");
    QVERIFY2(server.start(), qPrintable(server.error()));
    SambaClient client(server);
    client.logIn(user, "s3cret");

    QVERIFY2(client.run("pictures", "mkdir in"), client.readAll());
    client.logIn(user, "wrong");
    QVERIFY(!client.run("pictures", "ls"));
}

void TestLocalSambaServerSettings::passwordMayHaveAnyCharacter_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("all printable") << everyPrintableCharacter();
    QTest::newRow("other scripts") << "пароль 測 ü";
    QTest::newRow("blanks around") << " a ";
    QTest::newRow("comment") << "#;%n";
    QTest::newRow("control characters") << "\x01"
                                           "a\r\v\x1b\x7f"
                                           "b\r";
    QTest::newRow("tabs") << "\ts3\tcret\t";
    QTest::newRow("longest") << QString(127, u'x');
}

void TestLocalSambaServerSettings::passwordMayHaveAnyCharacter()
{
    QFETCH(QString, password);
    LocalSambaServer server;
    server.setUser("mia", password);
    QVERIFY2(server.start(), qPrintable(server.error()));
    SambaClient client(server);
    client.logIn("mia", password);

    QVERIFY2(client.run("pictures", "ls"), client.readAll());
    client.logIn("mia", password.chopped(1));
    QVERIFY(!client.run("pictures", "ls"));
}

void TestLocalSambaServerSettings::passwordStandsOnNoCommandLine()
{
    // The tool that takes the password is replaced by one that looks around.
    const QTemporaryDir folder;
    put(folder.path(), "tool",
        "#!/bin/sh\ncat /proc/[0-9]*/cmdline /proc/$$/environ > seen; exec smbpasswd \"$@\"\n");
    QVERIFY(QFile::setPermissions(folder.filePath("tool"), QFile::ReadOwner | QFile::ExeOwner));
    put(folder.path(), "script.py",
        "import sys\nsys.path.append('" TX_LOCAL_SERVERS "')\nimport sambaserver\n"
        "sambaserver.PASSWORDS = '"
            + folder.filePath("tool").toUtf8() + "'\nsambaserver.serve()\n");
    ScriptedServer server(folder.filePath("script.py"));
    QVERIFY2(server.start(), qPrintable(server.error()));

    const QByteArray seen = contents(server.folder() + "/seen");
    QVERIFY(seen.contains("smb.conf"));
    QVERIFY(!seen.contains("s3cret"));
    QVERIFY(processesWith("s3cret").isEmpty());
    for (const QString &file : QDir(server.folder()).entryList(QDir::Files)) {
        QVERIFY2(!contents(server.folder() + '/' + file).contains("s3cret"), qPrintable(file));
    }
}

void TestLocalSambaServerSettings::missingProgramIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("reason");
    QTest::newRow("server") << QByteArray("SERVER = '/nowhere/smbd'")
                            << "/nowhere/smbd is missing; Debian's package samba has it";
    QTest::newRow("tool") << QByteArray("PASSWORDS = '/nowhere/tool'")
                          << "/nowhere/tool is missing; Debian's package samba-common-bin";
    QTest::newRow("library") << QByteArray("LIBRARIES = ('no_wrapper.so',)")
                             << "no_wrapper.so is missing; Debian's package no-wrapper";
}

void TestLocalSambaServerSettings::missingProgramIsToldInWords()
{
    QFETCH(QByteArray, change);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    put(folder.path(), "script.py",
        "import sys\nsys.path.append('" TX_LOCAL_SERVERS "')\nimport sambaserver\nsambaserver."
            + change + "\nsambaserver.serve()\n");
    ScriptedServer server(folder.filePath("script.py"));

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains(reason), qPrintable(server.error()));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalSambaServerSettings>(argc, argv);
}

#include "tst_LocalSambaServerSettings.moc"
