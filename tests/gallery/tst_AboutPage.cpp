#include "../core/OrdinaryRights.h"
#include "AboutPage.h"
#include "DialogDriver.h"
#include "GallerySplash.h"
#include "OemLogo.h"
#include "OwnCommonData.h"
#include "PageInWindow.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QImageReader>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

QString installed()
{
    return QDir::cleanPath(OemLogo::installedPath());
}

QString copied()
{
    return QDir::cleanPath(OemLogo::cachedPath());
}

bool paint(const QString &path, const QColor &colour, const QSize &size = QSize(40, 30),
           const char *format = "PNG")
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image.save(path, format);
}

QColor colourOf(const QString &path)
{
    return QImage(path).pixelColor(0, 0);
}

/// Whether the user can read this in a label of the page.
bool isTold(const QWidget &page, const QString &part)
{
    const auto labels = page.findChildren<QLabel *>();
    return std::any_of(labels.cbegin(), labels.cend(), [&part](const QLabel *label) {
        return label->isVisible() && label->text().contains(part);
    });
}

QWidget *shownSplash()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (qobject_cast<TXSplashScreen *>(window) && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

/// The part of the page that is about the logos of the splash. The files lie beside the test's
/// program and in a common data folder of its own.
class TestAboutPage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void withoutALogoTheGallerysOwnPictureIsShown();
    void logoThatIsPutInIsShownAndCopied();
    void secondLogoReplacesTheFirstAndNotItsCopy();
    void cancelledChoiceChangesNothing();
    void logoThatIsRemovedLeavesItsCopy();
    void removedCopyIsGone();
    void removalAsksFirst();
    void anyFormatBecomesPng();
    void transparentPlacesStay();
    void largeLogoIsMadeToFit();
    void whatIsNoPictureIsToldAndNotPutIn_data();
    void whatIsNoPictureIsToldAndNotPutIn();
    void folderInPlaceOfTheLogoIsTold();
    void folderThatCannotBeWrittenIsTold();
    void logoThatCannotBeRemovedIsTold();
    void linkInPlaceOfTheLogoIsReplacedAndNotFollowed();
    void missingCommonFolderIsToldAndNotMade();
    void commonFolderThatCannotBeWrittenIsTold();
    void logoThatIsNoPictureIsTold();
    void whatOthersChangeIsSeenAtTheNextShow();
    void splashIsShownAndClosesByAClick();
    void splashClosesByItself();
    void splashGoesWithThePage();

private:
    void openPage();
    void click(const QString &text) const;
    void put(const QString &path) const;
    void removeBy(const QString &text) const;
    [[nodiscard]] QString file(const QString &name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<AboutPage> page;
};

void TestAboutPage::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(OwnCommonData::folder()));
    QVERIFY(QDir().mkpath(QFileInfo(installed()).path()));
    QVERIFY(paint(GallerySplash::ownPicturePath(), Qt::blue, QSize(96, 60)));
    openPage();
}

void TestAboutPage::finish()
{
    page.reset();
    folder.reset();
    QFile::remove(GallerySplash::ownPicturePath());
    QFile::remove(installed());
    QDir().rmpath(QFileInfo(installed()).path());
    QDir(OwnCommonData::folder()).removeRecursively();
}

void TestAboutPage::openPage()
{
    page = std::make_unique<AboutPage>();
    page->resize(860, 560);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestAboutPage::click(const QString &text) const
{
    DialogDriver::click(buttonOf(*page, text));
}

void TestAboutPage::put(const QString &path) const
{
    DialogDriver driver;
    driver.expect([&path](QDialog &dialog) {
        auto *files = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(files);
        files->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        DialogDriver::click(files->findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
    });
    click("Put In a Logo...");
}

void TestAboutPage::removeBy(const QString &text) const
{
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    click(text);
}

void TestAboutPage::withoutALogoTheGallerysOwnPictureIsShown()
{
    QVERIFY(isRead(*page, "There is none."));
    QVERIFY(isRead(*page, "There is none yet."));
    QVERIFY(isRead(*page, "The gallery's own picture."));
    QVERIFY(isRead(*page, installed()));
    QVERIFY(isRead(*page, copied()));
    QVERIFY(!buttonOf(*page, "Remove Logo...")->isEnabled());
    QVERIFY(!buttonOf(*page, "Remove Copy...")->isEnabled());
}

void TestAboutPage::logoThatIsPutInIsShownAndCopied()
{
    QVERIFY(paint(file("logo.png"), Qt::red));

    put(file("logo.png"));

    QCOMPARE(colourOf(installed()), QColor(Qt::red));
    QCOMPARE(colourOf(copied()), QColor(Qt::red));
    QVERIFY(isRead(*page, "The installed logo."));
    QCOMPARE(allTexts(*page).count(QString::fromUtf8("40 × 30 pixels, ")), 2);
    QVERIFY(buttonOf(*page, "Remove Logo...")->isEnabled());
    QVERIFY(buttonOf(*page, "Remove Copy...")->isEnabled());
    QVERIFY(QFileInfo::exists(file("logo.png")));
}

void TestAboutPage::secondLogoReplacesTheFirstAndNotItsCopy()
{
    QVERIFY(paint(file("first.png"), Qt::red));
    QVERIFY(paint(file("second.png"), Qt::green, QSize(70, 70)));
    put(file("first.png"));

    put(file("second.png"));

    QCOMPARE(colourOf(installed()), QColor(Qt::green));
    QCOMPARE(colourOf(copied()), QColor(Qt::red));
    QVERIFY(isRead(*page, "The installed logo."));
}

void TestAboutPage::cancelledChoiceChangesNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    click("Put In a Logo...");

    QVERIFY(!QFileInfo::exists(installed()));
    QVERIFY(isRead(*page, "There is none."));
}

void TestAboutPage::logoThatIsRemovedLeavesItsCopy()
{
    QVERIFY(paint(file("logo.png"), Qt::red));
    put(file("logo.png"));

    removeBy("Remove Logo...");

    QVERIFY(!QFileInfo::exists(installed()));
    QCOMPARE(colourOf(copied()), QColor(Qt::red));
    QVERIFY(isRead(*page, "The copy, since there is no installed logo."));
}

void TestAboutPage::removedCopyIsGone()
{
    QVERIFY(paint(copied(), Qt::red));
    openPage();
    QVERIFY(isRead(*page, "The copy, since there is no installed logo."));

    removeBy("Remove Copy...");

    QVERIFY(!QFileInfo::exists(copied()));
    QVERIFY(isRead(*page, "The gallery's own picture."));
}

void TestAboutPage::removalAsksFirst()
{
    QVERIFY(paint(file("logo.png"), Qt::red));
    put(file("logo.png"));
    DialogDriver driver;
    for (const QString &named : {installed(), copied()}) {
        driver.expectMessageBox([named](QMessageBox &box) {
            QVERIFY2(box.text().contains(named), qPrintable(box.text()));
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            DialogDriver::click(box, QDialogButtonBox::No);
        });
    }

    click("Remove Logo...");
    click("Remove Copy...");

    QVERIFY(QFileInfo::exists(installed()));
    QVERIFY(QFileInfo::exists(copied()));
}

void TestAboutPage::anyFormatBecomesPng()
{
    // Its suffix says something else, too.
    QVERIFY(paint(file("logo.png"), Qt::red, QSize(40, 30), "BMP"));

    put(file("logo.png"));

    QCOMPARE(QImageReader::imageFormat(installed()), "png");
    QCOMPARE(colourOf(installed()), QColor(Qt::red));
}

void TestAboutPage::transparentPlacesStay()
{
    QVERIFY(paint(file("logo.png"), Qt::transparent));

    put(file("logo.png"));

    QCOMPARE(colourOf(installed()).alpha(), 0);
}

void TestAboutPage::largeLogoIsMadeToFit()
{
    QVERIFY(paint(file("logo.png"), Qt::red, QSize(4000, 1000)));

    put(file("logo.png"));

    QCOMPARE(QImage(installed()).size(), QSize(960, 240));
}

void TestAboutPage::whatIsNoPictureIsToldAndNotPutIn_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("start of a picture") << QByteArray("BM");
}

void TestAboutPage::whatIsNoPictureIsToldAndNotPutIn()
{
    QFETCH(QByteArray, content);
    QVERIFY(paint(file("good.png"), Qt::red));
    put(file("good.png"));
    QFile bad(file("bad.png"));
    QVERIFY(bad.open(QFile::WriteOnly));
    bad.write(content);
    bad.close();

    put(bad.fileName());

    QVERIFY2(isTold(*page, "\"bad.png\" cannot be read: "), qPrintable(allTexts(*page)));
    QCOMPARE(colourOf(installed()), QColor(Qt::red));
    put(file("good.png"));
    QVERIFY(!isTold(*page, "cannot be read"));
}

void TestAboutPage::folderInPlaceOfTheLogoIsTold()
{
    const auto tidy = qScopeGuard([] { QDir(installed()).removeRecursively(); });
    QVERIFY(QDir().mkpath(installed() + "/kept"));
    QVERIFY(paint(file("logo.png"), Qt::red));

    put(file("logo.png"));

    QVERIFY2(isTold(*page, "The logo \"" + installed() + "\" cannot be written: "),
             qPrintable(allTexts(*page)));
    QVERIFY(isRead(*page, "\"oemLogo.png\" is no file."));
    QVERIFY(isRead(*page, "The gallery's own picture."));
    removeBy("Remove Logo...");
    QVERIFY(isTold(*page, "The logo \"" + installed() + "\" cannot be removed: "));
    QVERIFY(QFileInfo(installed() + "/kept").isDir());
}

void TestAboutPage::folderThatCannotBeWrittenIsTold()
{
    const OrdinaryRights rights;
    const QString images = QFileInfo(installed()).path();
    const auto restore = qScopeGuard([&images] {
        QFile::setPermissions(images, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });
    QVERIFY(paint(file("logo.png"), Qt::red));
    QVERIFY(QFile::setPermissions(images, QFile::ReadOwner | QFile::ExeOwner));

    put(file("logo.png"));

    QVERIFY2(isTold(*page, "The logo \"" + installed() + "\" cannot be written: "),
             qPrintable(allTexts(*page)));
    QVERIFY(isRead(*page, "There is none."));
}

void TestAboutPage::logoThatCannotBeRemovedIsTold()
{
    const OrdinaryRights rights;
    QVERIFY(paint(copied(), Qt::red));
    openPage();
    const auto restore = qScopeGuard([] {
        QFile::setPermissions(OwnCommonData::folder(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });
    QVERIFY(QFile::setPermissions(OwnCommonData::folder(), QFile::ReadOwner | QFile::ExeOwner));

    removeBy("Remove Copy...");

    QVERIFY2(isTold(*page, "The logo \"" + copied() + "\" cannot be removed: "),
             qPrintable(allTexts(*page)));
    QVERIFY(QFileInfo::exists(copied()));
}

void TestAboutPage::linkInPlaceOfTheLogoIsReplacedAndNotFollowed()
{
    QVERIFY(paint(file("elsewhere.png"), Qt::green));
    QVERIFY(paint(file("logo.png"), Qt::red));
    QVERIFY(QFile::link(file("elsewhere.png"), installed()));

    put(file("logo.png"));

    QVERIFY(!QFileInfo(installed()).isSymLink());
    QCOMPARE(colourOf(installed()), QColor(Qt::red));
    QCOMPARE(colourOf(file("elsewhere.png")), QColor(Qt::green));
}

void TestAboutPage::missingCommonFolderIsToldAndNotMade()
{
    QVERIFY(QDir(OwnCommonData::folder()).removeRecursively());
    QVERIFY(paint(file("logo.png"), Qt::red));

    put(file("logo.png"));

    QVERIFY(
        isRead(*page, "No copy is kept: there is no folder \"" + OwnCommonData::folder() + "\"."));
    QVERIFY(isRead(*page, "The installed logo."));
    QVERIFY(!QFileInfo::exists(OwnCommonData::folder()));
}

void TestAboutPage::commonFolderThatCannotBeWrittenIsTold()
{
    const OrdinaryRights rights;
    const auto restore = qScopeGuard([] {
        QFile::setPermissions(OwnCommonData::folder(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });
    QVERIFY(QFile::setPermissions(OwnCommonData::folder(), QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(paint(installed(), Qt::red));

    openPage();

    QVERIFY2(isRead(*page,
                    "No copy is kept: the folder \"" + OwnCommonData::folder()
                        + "\" cannot be written."),
             qPrintable(allTexts(*page)));
}

void TestAboutPage::logoThatIsNoPictureIsTold()
{
    QFile text(installed());
    QVERIFY(text.open(QFile::WriteOnly));
    text.write("<b>no picture</b>");
    text.close();

    openPage();

    QVERIFY(isTold(*page, "\"oemLogo.png\" cannot be read: "));
    QVERIFY(isRead(*page, "The gallery's own picture."));
    QVERIFY(!QFileInfo::exists(copied()));
}

void TestAboutPage::whatOthersChangeIsSeenAtTheNextShow()
{
    page->hide();
    QVERIFY(paint(installed(), Qt::red));

    page->show();

    QVERIFY(isRead(*page, "The installed logo."));
}

void TestAboutPage::splashIsShownAndClosesByAClick()
{
    QVERIFY(paint(installed(), Qt::red, QSize(300, 200)));

    click("Show Splash");

    QWidget *splash = shownSplash();
    QVERIFY(splash);
    QCOMPARE(splash->size(), QSize(300, 200));
    QTest::mouseClick(splash, Qt::LeftButton);
    QVERIFY(!shownSplash());
}

void TestAboutPage::splashClosesByItself()
{
    click("Show Splash");
    QVERIFY(shownSplash());
    auto *timer = page->findChild<QTimer *>();
    QVERIFY(timer && timer->isActive());
    QCOMPARE(timer->interval(), 4000);

    timer->start(0);

    QTRY_VERIFY(!shownSplash());
}

void TestAboutPage::splashGoesWithThePage()
{
    click("Show Splash");
    QVERIFY(shownSplash());

    page.reset();

    QVERIFY(!shownSplash());
}

int main(int argc, char **argv)
{
    const OwnCommonData commonData(argv);
    return runTest<TestAboutPage>(argc, argv);
}

#include "tst_AboutPage.moc"
