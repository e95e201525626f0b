#include "TXLocalisationUtility.h"

#include "HelperProcess.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

class TestTXLocalisationUtility : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fileIsFoundBesideTheApplication_data();
    void fileIsFoundBesideTheApplication();
    void nothingIsFoundWithoutAnApplicationObject();
    void nothingIsFoundWithoutTheFolder();

private:
    [[nodiscard]] QString helper() const
    {
        return home.filePath(QStringLiteral("bin/contracthelper"));
    }

    /// An installed application: "bin" with the executable, "Resources" beside it.
    QTemporaryDir home;
};

void TestTXLocalisationUtility::initTestCase()
{
    QDir folder(home.path());
    QVERIFY(folder.mkpath(QStringLiteral("bin")));
    QVERIFY(QFile::copy(helperProgram(), helper()));
    QVERIFY(folder.mkpath(QStringLiteral("Resources/translations/inner_de.qm")));
    for (const char *name :
         {"Resources/translations/app_de.qm", "Resources/translations/app_zh_Hant.qm",
          "Resources/translations/app_zh.qm", "Resources/outside_de.qm",
          "Resources/translations/my_app_de.qm"}) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void TestTXLocalisationUtility::fileIsFoundBesideTheApplication_data()
{
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<QString>("name");
    QTest::addRow("exact") << QByteArray("app de") << "app_de.qm";
    QTest::addRow("country falls back") << QByteArray("app de_AT") << "app_de.qm";
    QTest::addRow("script") << QByteArray("app zh_Hant") << "app_zh_Hant.qm";
    QTest::addRow("falls back to the script") << QByteArray("app zh_Hant_TW") << "app_zh_Hant.qm";
    QTest::addRow("falls back twice") << QByteArray("app zh_Hans_CN") << "app_zh.qm";
    QTest::addRow("module with an underscore") << QByteArray("my_app de") << "my_app_de.qm";
    QTest::addRow("module does not fall back") << QByteArray("your_app de") << QString();
    QTest::addRow("no such language") << QByteArray("app fr_FR") << QString();
    QTest::addRow("no such module") << QByteArray("other de") << QString();
    QTest::addRow("no module") << QByteArray(" de") << QString();
    QTest::addRow("no language") << QByteArray("app ") << QString();
    QTest::addRow("only an underscore") << QByteArray("app _") << QString();
    QTest::addRow("a folder") << QByteArray("inner de") << QString();
    QTest::addRow("way out in the module") << QByteArray("../outside de") << QString();
    QTest::addRow("way out in the language") << QByteArray("app x/../../outside_de") << QString();
    QTest::addRow("separator") << QByteArray("./app de") << QString();
    QTest::addRow("backslash") << QByteArray(".\\app de") << QString();
    QTest::addRow("two dots") << QByteArray("app de..") << QString();
    QTest::addRow("colon") << QByteArray("C:app de") << QString();
    QTest::addRow("NUL") << QByteArray("app de\0", 7) << QString();
}

void TestTXLocalisationUtility::fileIsFoundBesideTheApplication()
{
    QFETCH(QByteArray, question);
    QFETCH(QString, name);
    const QString expected = name.isEmpty() ? QString()
                                            : QFileInfo(home.path()).canonicalFilePath()
            + QStringLiteral("/Resources/translations/") + name;

    const QByteArray answer = askHelper("localisation " + question, {},
                                        QProcessEnvironment::systemEnvironment(), helper());

    QCOMPARE(QString::fromUtf8(answer), expected);
}

void TestTXLocalisationUtility::nothingIsFoundWithoutAnApplicationObject()
{
    QCOMPARE(askHelper("localisation app de", {QStringLiteral("--without-application")},
                       QProcessEnvironment::systemEnvironment(), helper()),
             QByteArray());
}

void TestTXLocalisationUtility::nothingIsFoundWithoutTheFolder()
{
    QCOMPARE(TXLocalisationUtility::getLocalisationFile(QStringLiteral("no such module"),
                                                        QStringLiteral("de")),
             QString());
}

int main(int argc, char **argv)
{
    return runTest<TestTXLocalisationUtility>(argc, argv);
}

#include "tst_TXLocalisationUtility.moc"
