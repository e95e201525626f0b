#include "AboutPage.h"
#include "AboutWindowPanel.h"
#include "DialogDriver.h"
#include "GalleryAboutWindow.h"
#include "PageInWindow.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace {

QString shippedNotices()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../gallery/Resources/LegalNotices/")
        + QFileInfo(GalleryAboutWindow::noticesPath()).fileName();
}

} // namespace

/// The part of the page that is about the About window, and what holds for the whole page.
class TestAboutPageWindow : public TestBase
{
    Q_OBJECT

public slots:
    void noteUrl(const QUrl &url) { openedUrls.append(url); }

protected:
    void prepare() override;
    void finish() override;

private slots:
    void windowIsOpenedWithAndWithoutTheVersionOfQt_data();
    void windowIsOpenedWithAndWithoutTheVersionOfQt();
    void noticesAreOpenedFromACopy();
    void missingNoticesAreTold();
    void pictureOfTheWindowIsTaken();
    void mnemonicsAreDistinct();
    void everyControlIsNamedAndReached();
    void textsFollowTheLanguage();
    void pageIsNotTooWide();

private:
    std::unique_ptr<QTemporaryDir> temporary;
    std::unique_ptr<AboutPage> page;
    QList<QUrl> openedUrls;
    QByteArray temporaryBefore;
};

void TestAboutPageWindow::prepare()
{
    temporary = std::make_unique<QTemporaryDir>();
    temporaryBefore = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temporary->path()));
    QDesktopServices::setUrlHandler("file", this, "noteUrl");
    page = std::make_unique<AboutPage>();
    page->resize(860, 560);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestAboutPageWindow::finish()
{
    page.reset();
    openedUrls.clear();
    QDesktopServices::unsetUrlHandler("file");
    if (temporaryBefore.isEmpty()) {
        qunsetenv("TMPDIR");
    } else {
        qputenv("TMPDIR", temporaryBefore);
    }
    temporary.reset();
    QFile::remove(GalleryAboutWindow::noticesPath());
    QDir().rmpath(QFileInfo(GalleryAboutWindow::noticesPath()).path());
}

void TestAboutPageWindow::windowIsOpenedWithAndWithoutTheVersionOfQt_data()
{
    QTest::addColumn<bool>("withQt");
    QTest::newRow("with") << true;
    QTest::newRow("without") << false;
}

void TestAboutPageWindow::windowIsOpenedWithAndWithoutTheVersionOfQt()
{
    QFETCH(bool, withQt);
    auto *box = page->findChild<QCheckBox *>();
    if (box->isChecked() != withQt) {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    QCOMPARE(box->isChecked(), withQt);
    DialogDriver driver;
    driver.expect([withQt](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), "About TXGUICommon Gallery");
        QCOMPARE(allTexts(dialog).contains(QStringLiteral("with Qt ") + qVersion()), withQt);
        dialog.reject();
    });

    DialogDriver::click(buttonOf(*page, "Open About Window"));

    QTRY_VERIFY(!QApplication::activeModalWidget());
}

void TestAboutPageWindow::noticesAreOpenedFromACopy()
{
    QVERIFY(QDir().mkpath(QFileInfo(GalleryAboutWindow::noticesPath()).path()));
    QVERIFY(QFile::copy(shippedNotices(), GalleryAboutWindow::noticesPath()));

    DialogDriver::click(buttonOf(*page, "Open Legal Notices"));

    QCOMPARE(openedUrls.size(), 1);
    QFile opened(openedUrls.constFirst().toLocalFile());
    QCOMPARE(QFileInfo(opened).path(), temporary->path());
    QVERIFY(opened.open(QFile::ReadOnly));
    const QByteArray text = opened.readAll();
    for (const char *named :
         {"Permission is hereby granted", "TXGUICommon", "Qt 6", "libsodium", "libcurl"}) {
        QVERIFY2(text.contains(named), named);
    }
}

void TestAboutPageWindow::missingNoticesAreTold()
{
    DialogDriver::click(buttonOf(*page, "Open Legal Notices"));

    QVERIFY(openedUrls.isEmpty());
    QVERIFY(
        isRead(*page, "There are no notices at \"" + GalleryAboutWindow::noticesPath() + "\"."));
}

void TestAboutPageWindow::pictureOfTheWindowIsTaken()
{
    const QList<GalleryFurtherWindow> windows = page->furtherWindows();

    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.first().name, "window");
    QCOMPARE(windows.first().window->windowTitle(), "About TXGUICommon Gallery");
    QVERIFY(windows.first().window->isVisible());
}

void TestAboutPageWindow::mnemonicsAreDistinct()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("about")), QStringList());
}

void TestAboutPageWindow::everyControlIsNamedAndReached()
{
    QCOMPARE(namelessControls(*page), QStringList());
    buttonOf(*page, "Put In a Logo...")->setFocus();
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestAboutPageWindow::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QVERIFY(buttonOf(*page, "SHOW SPLASH"));
    QVERIFY(buttonOf(*page, "OPEN ABOUT WINDOW"));
    QVERIFY(isRead(*page, "THERE IS NONE."));
    QVERIFY(isRead(*page, "INSTALLED LOGO"));
    QCOMPARE(page->description(), page->description().toUpper());

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Show Splash"));
    QVERIFY(isRead(*page, "There is none."));
}

void TestAboutPageWindow::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestAboutPageWindow>(argc, argv);
}

#include "tst_AboutPageWindow.moc"
