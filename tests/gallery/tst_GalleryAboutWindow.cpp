#include "DialogDriver.h"
#include "GalleryAboutWindow.h"
#include "GalleryLanguages.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "TestBase.h"

#include <QPushButton>

#include <memory>

/// The gallery's own About window, and the way to it from the header.
class TestGalleryAboutWindow : public TestBase
{
    Q_OBJECT

private slots:
    void tellsOfTheGallery();
    void headerOpensIt();
    void keyOpensItOnEveryPage();
    void keyIsNoPagesMnemonic();
    void keyIsToldWhereTheMouseRests();
    void closedWindowIsGone();

protected:
    void finish() override;

private:
    void openGallery();
    [[nodiscard]] QPushButton *aboutButton() const
    {
        return buttonOf<QPushButton>(*window, "About...");
    }

    [[nodiscard]] GalleryAboutWindow *aboutWindow() const
    {
        return window->findChild<GalleryAboutWindow *>(QString(), Qt::FindDirectChildrenOnly);
    }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};

void TestGalleryAboutWindow::openGallery()
{
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, GallerySettings());
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void TestGalleryAboutWindow::finish()
{
    window.reset();
    languages.reset();
}

void TestGalleryAboutWindow::tellsOfTheGallery()
{
    QCoreApplication::setApplicationVersion("1.2.3");
    GalleryAboutWindow about(GalleryAboutWindow::Version::WithQt);

    about.show();

    QCOMPARE(about.windowTitle(), "About TXGUICommon Gallery");
    QVERIFY(isRead(about, QStringLiteral("1.2.3 with Qt ") + qVersion()));
    QVERIFY(isRead(about, QString::fromUtf8("© Copyright 2024-2024 Tovra Hue Works")));
    const auto *logo = about.findChild<QLabel *>("appLogo");
    QCOMPARE(logo->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(96, 96));
    QVERIFY(GalleryAboutWindow::noticesPath().endsWith("/Resources/LegalNotices/"
                                                       + about.patentFileName()));
}

void TestGalleryAboutWindow::headerOpensIt()
{
    openGallery();
    DialogDriver driver;
    driver.expect([this](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), "About TXGUICommon Gallery");
        QCOMPARE(dialog.parentWidget(), window.get());
        dialog.reject();
    });

    DialogDriver::click(aboutButton());

    QTRY_VERIFY(!QApplication::activeModalWidget());
}

void TestGalleryAboutWindow::keyOpensItOnEveryPage()
{
    openGallery();
    for (int row = 0; row < galleryPages().size(); ++row) {
        window->showPage(row);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        bool isOpened = false;
        DialogDriver driver;
        driver.expect([&isOpened](QDialog &dialog) {
            isOpened = dialog.windowTitle() == "About TXGUICommon Gallery";
            dialog.reject();
        });

        QTest::keyClick(window.get(), Qt::Key_Y, Qt::AltModifier);

        // The button is seen to go down first.
        QTRY_VERIFY(isOpened);
        QTRY_VERIFY(!aboutWindow());
    }
}

void TestGalleryAboutWindow::keyIsNoPagesMnemonic()
{
    openGallery();
    for (int row = 0; row < galleryPages().size(); ++row) {
        window->showPage(row);
    }
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString text = mnemonicText(widget);
        QVERIFY2(QKeySequence::mnemonic(text) != aboutButton()->shortcut(), qPrintable(text));
    }
}

void TestGalleryAboutWindow::keyIsToldWhereTheMouseRests()
{
    openGallery();

    QCOMPARE(aboutButton()->shortcut(), QKeySequence("Alt+Y"));
    QCOMPARE(aboutButton()->toolTip(), "About this program (Alt+Y)");
}

void TestGalleryAboutWindow::closedWindowIsGone()
{
    openGallery();
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    DialogDriver::click(aboutButton());

    QTRY_VERIFY(!aboutWindow());
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryAboutWindow>(argc, argv);
}

#include "tst_GalleryAboutWindow.moc"
