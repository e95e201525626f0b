#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "LanguagePage.h"
#include "LanguagePanel.h"
#include "PageChecks.h"
#include "PageInWindow.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// Takes the file in a file dialog.
void chooseFile(QDialog &dialog, const QString &path)
{
    auto *files = qobject_cast<QFileDialog *>(&dialog);
    QVERIFY(files);
    files->findChild<QLineEdit *>("fileNameEdit")->setText(path);
    DialogDriver::click(files->findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
}

} // namespace

/// The part of the page that is about languages. Each test has a folder of translations of its own,
/// which tells what there is to choose from; the French texts come from the program's folder.
class TestLanguagePage : public TestBase
{
    Q_OBJECT

private slots:
    void languagesOfTheFolderCanBeChosen();
    void chosenLanguageIsSpokenAndRemembered();
    void choiceAndStripFollowEachOther();
    void importedFileIsALanguageToChoose();
    void importedFileReplacesTheOneInUse();
    void importThatFailsIsTold();
    void cancelledImportChangesNothing();
    void damagedTranslationIsTold();
    void textsFollowTheLanguage();
    void withoutLanguagesThereIsNothingToChoose();
    void mnemonicsDoNotClash();
    void everyControlHasAName();
    void tabReachesEveryControl();

protected:
    void prepare() override;
    void finish() override;

private:
    void showPage();
    QComboBox *languageBox() const;
    QStringList languagesShown() const;
    void pick(const QString &language);
    void importFile(const QString &path);
    QString path(const QString &name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<LanguagePage> page;
};

void TestLanguagePage::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkdir("translations"));
    QVERIFY(QFile::copy(testTranslationsFolder() + "/gallerytest_fr.qm",
                        path("translations/gallerytest_fr.qm")));
    languages = std::make_unique<GalleryLanguages>(path("translations"));
    showPage();
}

void TestLanguagePage::finish()
{
    page.reset();
    languages.reset();
    folder.reset();
    QLocale::setDefault(QLocale::system());
}

void TestLanguagePage::showPage()
{
    page = std::make_unique<LanguagePage>();
    page->resize(860, 640);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

QComboBox *TestLanguagePage::languageBox() const
{
    return controlOf<QComboBox>(*page, "Texts of the gallery");
}

QStringList TestLanguagePage::languagesShown() const
{
    QStringList names;
    for (int i = 0; i < languageBox()->count(); ++i) {
        names.append(languageBox()->itemText(i));
    }
    return names;
}

void TestLanguagePage::pick(const QString &language)
{
    languageBox()->setFocus();
    const int wanted = languageBox()->findText(language);
    QVERIFY(wanted >= 0);
    while (languageBox()->currentIndex() != wanted) {
        QTest::keyClick(languageBox(),
                        languageBox()->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }
}

void TestLanguagePage::importFile(const QString &path)
{
    DialogDriver driver;
    driver.expect([&path](QDialog &dialog) { chooseFile(dialog, path); });
    DialogDriver::click(buttonOf(*page, "Import Translation..."));
}

void TestLanguagePage::languagesOfTheFolderCanBeChosen()
{
    QCOMPARE(languagesShown(), QStringList({"English", QString::fromUtf8("Français")}));
    QCOMPARE(languageBox()->currentText(), "English");
    const QString files = "gallerytest_fr.qm in " + QDir::toNativeSeparators(path("translations"));
    QVERIFY2(isRead(*page, files), qPrintable(allTexts(*page)));
}

void TestLanguagePage::chosenLanguageIsSpokenAndRemembered()
{
    pick(QString::fromUtf8("Français"));

    QCOMPARE(languages->current(), "fr");
    QCOMPARE(QCoreApplication::translate("GalleryPages", "Log"), "Journal");
    QCOMPARE(GallerySettings::load().language, "fr");

    pick("English");

    QCOMPARE(languages->current(), "en");
    QCOMPARE(QCoreApplication::translate("GalleryPages", "Log"), "Log");
    QCOMPARE(GallerySettings::load().language, "en");
}

void TestLanguagePage::choiceAndStripFollowEachOther()
{
    GallerySettings settings;
    settings.page = "language";
    GalleryWindow window(*languages, settings);
    const auto *inPage =
        window.currentPage()->findChild<LanguagePanel *>()->findChild<QComboBox *>();
    QComboBox *inStrip = nullptr;
    const auto boxes = window.findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        inStrip = box->accessibleName() == "Language" ? box : inStrip;
    }
    QVERIFY(inPage && inStrip);

    inStrip->setCurrentIndex(inStrip->findData("fr"));
    emit inStrip->activated(inStrip->currentIndex());
    QCOMPARE(inPage->currentData().toString(), "fr");
    QCOMPARE(languageBox()->currentData().toString(), "fr");

    pick("English");
    QCOMPARE(inStrip->currentData().toString(), "en");
    QCOMPARE(inPage->currentData().toString(), "en");
}

void TestLanguagePage::importedFileIsALanguageToChoose()
{
    QVERIFY(QFile::copy(testTranslationsFolder() + "/gallerytest_fr.qm", path("further_nl.qm")));

    importFile(path("further_nl.qm"));

    QVERIFY(QFile::exists(path("translations/further_nl.qm")));
    QVERIFY(isRead(*page, "Result 0: the file was copied."));
    QCOMPARE(languagesShown(),
             QStringList({"English", QString::fromUtf8("Français"), "Nederlands"}));
    QCOMPARE(languageBox()->currentText(), "English");
}

/// The same texts twice would not show it: what is imported is damaged, and its place is told.
void TestLanguagePage::importedFileReplacesTheOneInUse()
{
    pick(QString::fromUtf8("Français"));
    const QSignalSpy changes(languages.get(), SIGNAL(changed()));
    QFile file(path("gallerytest_fr.qm"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("other");
    file.close();

    importFile(file.fileName());

    QFile copy(path("translations/gallerytest_fr.qm"));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), "other");
    QCOMPARE(changes.count(), 1);
    QCOMPARE(languages->current(), "fr");
}

void TestLanguagePage::importThatFailsIsTold()
{
    QVERIFY(QFile::copy(testTranslationsFolder() + "/gallerytest_fr.qm", path("further_nl.qm")));
    // Not even an administrator writes into a folder that is none.
    QVERIFY(QDir(path("translations")).removeRecursively());
    QFile file(path("translations"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    // The library tells the log as well.
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Impossible to copy file"));
    DialogDriver driver;
    driver.expect([this](QDialog &dialog) { chooseFile(dialog, path("further_nl.qm")); });
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY2(box.text().startsWith("Impossible to copy file"), qPrintable(box.text()));
        QCOMPARE(box.icon(), QMessageBox::Critical);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(buttonOf(*page, "Import Translation..."));

    QVERIFY(isRead(*page, "Result 1: the file was not copied."));
    QCOMPARE(languagesShown(), QStringList("English"));
}

void TestLanguagePage::cancelledImportChangesNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });
    const QSignalSpy changes(languages.get(), SIGNAL(changed()));

    DialogDriver::click(buttonOf(*page, "Import Translation..."));

    QVERIFY(isRead(*page, "Result 2: cancelled."));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(languagesShown().size(), 2);
}

void TestLanguagePage::damagedTranslationIsTold()
{
    const QString inProgram = testTranslationsFolder() + "/pagedamaged_eu.qm";
    for (const QString &place : {inProgram, path("translations/pagedamaged_eu.qm")}) {
        QFile file(place);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no translation");
    }

    languages->lookAgain();
    pick(GalleryLanguages::displayName("eu"));
    QVERIFY(QFile::remove(inProgram));

    const QString told = languages->errors().value(0).getLocalizedDescription();
    QVERIFY(told.contains("pagedamaged_eu.qm"));
    QVERIFY(isRead(*page, told));

    pick("English");
    QVERIFY(!isRead(*page, told));
}

void TestLanguagePage::textsFollowTheLanguage()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });
    DialogDriver::click(buttonOf(*page, "Import Translation..."));
    CapitalTranslator capitals;
    QVERIFY(QCoreApplication::installTranslator(&capitals));
    QTRY_VERIFY(isRead(*page, "RESULT 2: CANCELLED."));

    const QStringList small = smallTexts(*page->findChild<LanguagePanel *>(), {});
    const QString files = "gallerytest_fr.qm IN " + QDir::toNativeSeparators(path("translations"));
    QCOMPARE(small, QStringList(files));
    QVERIFY(QCoreApplication::removeTranslator(&capitals));
    QCoreApplication::sendPostedEvents();
}

void TestLanguagePage::withoutLanguagesThereIsNothingToChoose()
{
    page.reset();
    languages.reset();
    showPage();

    QCOMPARE(languageBox()->count(), 0);
    QVERIFY(!buttonOf(*page, "Import Translation...")->isEnabled());
}

void TestLanguagePage::mnemonicsDoNotClash()
{
    QVERIFY(mnemonicsOn(*page) > 6);
    QCOMPARE(mnemonicsClashingAt("language"), QStringList());
}

void TestLanguagePage::everyControlHasAName()
{
    QCOMPARE(namelessControls(*page), QStringList());
}

void TestLanguagePage::tabReachesEveryControl()
{
    languageBox()->setFocus();

    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestLanguagePage>(argc, argv);
}

#include "tst_LanguagePage.moc"
