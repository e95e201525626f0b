#include "LocalisationUpdater.h"

#include "DialogDriver.h"
#include "InstalledHelper.h"
#include "OrdinaryRights.h"
#include "TXDialogDirectories.h"
#include "TXError.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kKey = QStringLiteral("ImportLocalisationFilePath");
const QByteArray kNew = "new";
const QByteArray kOld = "old";

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QFile::WriteOnly)
        && file.write(bytes) == bytes.size();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("none");
}

QString rememberedPath()
{
    return QSettings().value("OpenDialogDirectories/" + kKey).toString();
}

/// Announces the line for developers.
void expectDebugLine(const QString &destination)
{
    const QString line = "Impossible to copy file in this folder " + destination;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
}

QString failureText(const QString &name, const QString &destination)
{
    return "Impossible to copy file " + name + " in this folder " + destination;
}

} // namespace

class TestLocalisationUpdaterImport : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { temporary.reset(); }

private slots:
    void dialogIsAsStated();
    void dialogOpensWhereTheLastFileWas();
    void chosenFileIsCopied_data();
    void chosenFileIsCopied();
    void fileOfTheSameNameIsReplaced();
    void destinationIsCleaned();
    void cancellingTouchesNothing();
    void failedCopyIsTold_data();
    void failedCopyIsTold();
    void failedCopyNeedsNoError();
    void failureIsToldInTheLanguageOfTheMoment();
    void replacedFileIsGoneWhenTheCopyFails();
    void folderThatCannotBeWrittenIsTold();
    void folderOfThatNameStays();
    void linkThatLeadsNowhereIsNotFollowed();
    void linkInTheFolderIsReplacedAndItsTargetStays();
    void pipeInTheFolderIsReplaced();
    void fileItselfIsLeftAlone_data();
    void fileItselfIsLeftAlone();
    void pipeIsNotOpened_data();
    void pipeIsNotOpened();
    void emptyFolderNameDoesNotMeanTheRoot();
    void folderNameWithANulFails();
    void programWithoutWidgetsIsNotAsked_data();
    void programWithoutWidgetsIsNotAsked();

private:
    /// Imports what the user chooses.
    int import(const QString &chosen, const QString &folder, TXError *error);
    [[nodiscard]] QString path(const QString &name) const { return temporary->filePath(name); }
    [[nodiscard]] QString chosen() const { return path("chosen/app_fr.qm"); }
    [[nodiscard]] QString folder() const { return path("languages"); }

    std::unique_ptr<QTemporaryDir> temporary;
};

void TestLocalisationUpdaterImport::prepare()
{
    temporary = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(write(chosen(), kNew));
}

int TestLocalisationUpdaterImport::import(const QString &chosen, const QString &folder,
                                          TXError *error)
{
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(chosen);
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });
    return LocalisationUpdater::updateLocalisationFile(folder, error, nullptr);
}

void TestLocalisationUpdaterImport::dialogIsAsStated()
{
    QWidget parent;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        auto *fileDialog = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(fileDialog);
        QCOMPARE(fileDialog->parent(), &parent);
        QCOMPARE(fileDialog->windowTitle(), "Select your translation file");
        QCOMPARE(fileDialog->nameFilters(), QStringList("*.qm"));
        QCOMPARE(fileDialog->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(fileDialog->fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(fileDialog->options(), QFileDialog::Options());
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });
    LocalisationUpdater::updateLocalisationFile(folder(), nullptr, &parent);

    QTranslator french;
    QVERIFY(french.load(builtTranslation()));
    QVERIFY(QCoreApplication::installTranslator(&french));
    driver.expect([](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), "Choisissez votre fichier de traduction");
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });
    LocalisationUpdater::updateLocalisationFile(folder(), nullptr, &parent);
}

void TestLocalisationUpdaterImport::dialogOpensWhereTheLastFileWas()
{
    QCOMPARE(import(chosen(), folder(), nullptr), 0);
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        QCOMPARE(qobject_cast<QFileDialog *>(&dialog)->directory().path(), path("chosen"));
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText("app_fr.qm");
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });

    QCOMPARE(LocalisationUpdater::updateLocalisationFile(folder(), nullptr, nullptr), 0);

    // The dialog has no memory of its own beside this one.
    QCOMPARE(QSettings().allKeys().filter("ImportLocalisationFilePath"),
             QStringList("OpenDialogDirectories/ImportLocalisationFilePath"));
}

void TestLocalisationUpdaterImport::chosenFileIsCopied_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folderName");
    QTest::newRow("plain") << "app_fr.qm"
                           << "languages";
    QTest::newRow("markers") << "%1 %2.qm"
                             << "%2 %1 %99";
    QTest::newRow("beyond ASCII") << u"\u00e9 \u4e2d.qm"_qs << u"\u00fc"_qs;
    QTest::newRow("another suffix") << "app.QM"
                                    << "languages";
}

void TestLocalisationUpdaterImport::chosenFileIsCopied()
{
    QFETCH(QString, name);
    QFETCH(QString, folderName);
    const QString file = path("chosen/" + name);
    QVERIFY(write(file, kNew));
    QVERIFY(QDir().mkpath(path(folderName)));
    TXError error;

    QCOMPARE(import(file, path(folderName), &error), 0);

    QCOMPARE(contents(path(folderName + '/' + name)), kNew);
    QCOMPARE(contents(file), kNew);
    QVERIFY(!error.isValid());
    QCOMPARE(rememberedPath(), file);
    QCOMPARE(getOpenDialogDirectoryForKey(kKey), path("chosen"));
}

void TestLocalisationUpdaterImport::fileOfTheSameNameIsReplaced()
{
    QVERIFY(write(folder() + "/app_fr.qm", "a longer old one"));
    QVERIFY(write(folder() + "/app_de.qm", kOld));

    QCOMPARE(import(chosen(), folder(), nullptr), 0);

    QCOMPARE(contents(folder() + "/app_fr.qm"), kNew);
    QCOMPARE(contents(folder() + "/app_de.qm"), kOld);
}

void TestLocalisationUpdaterImport::destinationIsCleaned()
{
    TXError error;
    expectDebugLine(path("missing/app_fr.qm"));

    QCOMPARE(import(chosen(), folder() + "//../languages/./x/..//../missing/", &error), 1);

    QCOMPARE(error.getLocalizedDescription(), failureText("app_fr.qm", path("missing/app_fr.qm")));
}

void TestLocalisationUpdaterImport::cancellingTouchesNothing()
{
    QVERIFY(write(folder() + "/app_fr.qm", kOld));
    saveOpenDialogDirectoryForKey(kKey, path("chosen"));
    TXError error;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(chosen());
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });

    QCOMPARE(LocalisationUpdater::updateLocalisationFile(folder(), &error, nullptr), 2);

    QCOMPARE(contents(folder() + "/app_fr.qm"), kOld);
    QCOMPARE(rememberedPath(), path("chosen"));
    QVERIFY(!error.isValid());
}

void TestLocalisationUpdaterImport::failedCopyIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folderName");
    QTest::newRow("plain") << "app_fr.qm"
                           << "missing";
    QTest::newRow("markers in the name") << "%1.qm"
                                         << "missing";
    QTest::newRow("more markers in the name") << "%2 %1%L1 %99 100%.qm"
                                              << "missing";
    QTest::newRow("markers in the folder") << "app_fr.qm"
                                           << "%1 %2 %99";
    QTest::newRow("markers in both") << "%1%2.qm"
                                     << "%2%1";
    QTest::newRow("percent signs") << "%%1%.qm"
                                   << "%";
}

void TestLocalisationUpdaterImport::failedCopyIsTold()
{
    QFETCH(QString, name);
    QFETCH(QString, folderName);
    const QString file = path("chosen/" + name);
    const QString destination = path(folderName + '/' + name);
    QVERIFY(write(file, kNew));
    TXError error;
    error.code = 5;
    expectDebugLine(destination);

    QCOMPARE(import(file, path(folderName), &error), 1);

    QCOMPARE(error.domain, "LocalisationDomainError");
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(), failureText(name, destination));
    QVERIFY(error.isValid());
    QVERIFY(!QFile::exists(path(folderName)));
    QCOMPARE(rememberedPath(), file);
}

void TestLocalisationUpdaterImport::failedCopyNeedsNoError()
{
    expectDebugLine(path("missing/app_fr.qm"));

    QCOMPARE(import(chosen(), path("missing"), nullptr), 1);
}

void TestLocalisationUpdaterImport::failureIsToldInTheLanguageOfTheMoment()
{
    TXError error;
    QTranslator french;
    QVERIFY(french.load(builtTranslation()));
    QVERIFY(QCoreApplication::installTranslator(&french));
    // For developers, in English.
    expectDebugLine(path("missing/app_fr.qm"));

    QCOMPARE(import(chosen(), path("missing"), &error), 1);

    QCOMPARE(error.getLocalizedDescription(),
             u"Dans le dossier %2, le fichier %1 ne peut pas \u00eatre copi\u00e9"_qs.arg(
                 "app_fr.qm", path("missing/app_fr.qm")));
    QVERIFY(QCoreApplication::removeTranslator(&french));
    QCOMPARE(error.getLocalizedDescription(), failureText("app_fr.qm", path("missing/app_fr.qm")));
}

void TestLocalisationUpdaterImport::replacedFileIsGoneWhenTheCopyFails()
{
    QVERIFY(write(folder() + "/app_fr.qm", kOld));
    QVERIFY(QFile::setPermissions(chosen(), QFile::WriteOwner));
    TXError error;
    expectDebugLine(folder() + "/app_fr.qm");
    const OrdinaryRights rights;

    QCOMPARE(import(chosen(), folder(), &error), 1);

    QCOMPARE(error.domain, "LocalisationDomainError");
    QVERIFY(!QFile::exists(folder() + "/app_fr.qm"));
    QVERIFY(QFile::exists(chosen()));
    QCOMPARE(rememberedPath(), chosen());
}

void TestLocalisationUpdaterImport::folderThatCannotBeWrittenIsTold()
{
    QVERIFY(write(folder() + "/app_fr.qm", kOld));
    QVERIFY(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    TXError error;
    expectDebugLine(folder() + "/app_fr.qm");
    int result = 0;
    {
        const OrdinaryRights rights;
        result = import(chosen(), folder(), &error);
    }
    QVERIFY(QFile::setPermissions(folder(), QFile::Permissions(0x7700)));

    QCOMPARE(result, 1);
    QCOMPARE(error.domain, "LocalisationDomainError");
    QCOMPARE(contents(folder() + "/app_fr.qm"), kOld);
}

void TestLocalisationUpdaterImport::folderOfThatNameStays()
{
    QVERIFY(write(folder() + "/app_fr.qm/inner", kOld));
    expectDebugLine(folder() + "/app_fr.qm");

    QCOMPARE(import(chosen(), folder(), nullptr), 1);

    QCOMPARE(contents(folder() + "/app_fr.qm/inner"), kOld);
}

void TestLocalisationUpdaterImport::linkThatLeadsNowhereIsNotFollowed()
{
    QVERIFY(QFile::link(path("outside.qm"), folder() + "/app_fr.qm"));
    expectDebugLine(folder() + "/app_fr.qm");

    QCOMPARE(import(chosen(), folder(), nullptr), 1);

    QVERIFY(!QFile::exists(path("outside.qm")));
}

void TestLocalisationUpdaterImport::linkInTheFolderIsReplacedAndItsTargetStays()
{
    QVERIFY(write(path("outside.qm"), kOld));
    QVERIFY(QFile::link(path("outside.qm"), folder() + "/app_fr.qm"));

    QCOMPARE(import(chosen(), folder(), nullptr), 0);

    QCOMPARE(contents(folder() + "/app_fr.qm"), kNew);
    QVERIFY(!QFileInfo(folder() + "/app_fr.qm").isSymLink());
    QCOMPARE(contents(path("outside.qm")), kOld);
}

void TestLocalisationUpdaterImport::pipeInTheFolderIsReplaced()
{
    const QString pipe = folder() + "/app_fr.qm";
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    QCOMPARE(import(chosen(), folder(), nullptr), 0);

    QVERIFY(QFileInfo(pipe).isFile());
    QCOMPARE(contents(pipe), kNew);
}

void TestLocalisationUpdaterImport::fileItselfIsLeftAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folderName");
    QTest::newRow("same path") << "languages/app_fr.qm"
                               << "languages";
    QTest::newRow("dots") << "languages/app_fr.qm"
                          << "chosen/../languages";
    QTest::newRow("folder behind a link") << "languages/app_fr.qm"
                                          << "link";
    QTest::newRow("choice through a link to the folder") << "link/app_fr.qm"
                                                         << "languages";
    QTest::newRow("choice is a link to the file") << "links/app_fr.qm"
                                                  << "languages";
}

void TestLocalisationUpdaterImport::fileItselfIsLeftAlone()
{
    QFETCH(QString, file);
    QFETCH(QString, folderName);
    const QString destination = folder() + "/app_fr.qm";
    QVERIFY(write(destination, kOld));
    QVERIFY(QFile::link(folder(), path("link")));
    QVERIFY(QDir().mkpath(path("links")));
    QVERIFY(QFile::link(destination, path("links/app_fr.qm")));
    TXError error;
    const QString shown = QDir::cleanPath(path(folderName + "/app_fr.qm"));
    expectDebugLine(shown);

    QCOMPARE(import(path(file), path(folderName), &error), 1);

    QCOMPARE(contents(destination), kOld);
    QCOMPARE(error.domain, "LocalisationDomainError");
    QCOMPARE(error.getLocalizedDescription(), failureText("app_fr.qm", shown));
    QCOMPARE(rememberedPath(), path(file));
}

void TestLocalisationUpdaterImport::pipeIsNotOpened_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("pipe") << false;
    QTest::newRow("link to one") << true;
}

void TestLocalisationUpdaterImport::pipeIsNotOpened()
{
    QFETCH(bool, isLink);
    QCOMPARE(::mkfifo(QFile::encodeName(path("chosen/pipe.qm")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("chosen/pipe.qm"), path("chosen/link.qm")));
    const QString name = isLink ? "link.qm" : "pipe.qm";
    QVERIFY(write(folder() + '/' + name, kOld));
    TXError error;
    expectDebugLine(folder() + '/' + name);

    QCOMPARE(import(path("chosen/" + name), folder(), &error), 1);

    QCOMPARE(error.domain, "LocalisationDomainError");
    QCOMPARE(contents(folder() + '/' + name), kOld);
}

void TestLocalisationUpdaterImport::emptyFolderNameDoesNotMeanTheRoot()
{
    const QString name = QFileInfo(temporary->path()).fileName() + ".qm";
    QVERIFY(write(path(name), kNew));
    TXError error;
    expectDebugLine('/' + name);

    QCOMPARE(import(path(name), QString(), &error), 1);

    QVERIFY(!QFile::exists('/' + name));
    QCOMPARE(error.getLocalizedDescription(), failureText(name, '/' + name));
}

void TestLocalisationUpdaterImport::folderNameWithANulFails()
{
    TXError error;
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("^Impossible to copy file in this folder "));

    QCOMPARE(import(chosen(), folder() + QChar(0) + "x", &error), 1);

    QCOMPARE(error.domain, "LocalisationDomainError");
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList());
}

void TestLocalisationUpdaterImport::programWithoutWidgetsIsNotAsked_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"none", "core", "gui"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void TestLocalisationUpdaterImport::programWithoutWidgetsIsNotAsked()
{
    QFETCH(QString, kind);
    const InstalledHelper helper;

    const QJsonObject answer = helper.run({kind, "import", folder()});

    QCOMPARE(answer["result"].toInt(-1), 2);
    QCOMPARE(answer["hasError"].toBool(true), false);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalisationUpdaterImport>(argc, argv);
}

#include "tst_LocalisationUpdaterImport.moc"
