#include "GalleryAppearance.h"
#include "GalleryHeader.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "Mnemonics.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStyle>

#include <memory>

class TestGalleryWindow : public TestBase
{
    Q_OBJECT

private slots:
    void startsAtTheFirstPage();
    void everyPageCanBeShown();
    void rememberedPageIsShown();
    void unknownRememberedPageIsTheFirst();
    void paletteIsAppliedToAllWindowsAndRemembered();
    void highContrastKeepsTheStyle();
    void styleIsAppliedAndRemembered();
    void languageIsAppliedAndRemembered();
    void startingWritesNoSettings();
    void geometryAndPageAreRememberedWhenClosed();
    void keysGoThroughThePages();
    void f6MovesBetweenListAndPage();
    void tabReachesListAndChoices();
    void everyControlHasAnAccessibleName();
    void headerFitsOnASmallScreen();
    void mnemonicsDoNotClashOnAnyPage();
    void closingWhileAJobRunsEndsCleanly();

protected:
    void prepare() override;
    void finish() override;

private:
    void open(const GallerySettings &settings = GallerySettings());
    QComboBox *box(const QString &accessibleName) const;
    void pick(QComboBox *choice, const QString &text);
    QListWidget *list() const { return window->findChild<QListWidget *>(); }
    QString pageOfWindow() const { return galleryPages()[list()->currentRow()].name(); }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};

void TestGalleryWindow::prepare()
{
    languages = std::make_unique<GalleryLanguages>(testTranslationsFolder());
}

void TestGalleryWindow::finish()
{
    window.reset();
    languages.reset();
    applyGalleryStyle("Fusion");
    applyGalleryColours(GalleryColours::System);
    QLocale::setDefault(QLocale::system());
}

void TestGalleryWindow::open(const GallerySettings &settings)
{
    window.reset();
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

QComboBox *TestGalleryWindow::box(const QString &accessibleName) const
{
    const auto boxes = window->findChildren<QComboBox *>();
    for (QComboBox *candidate : boxes) {
        if (candidate->accessibleName() == accessibleName) {
            return candidate;
        }
    }
    return nullptr;
}

/// As a user does it: with the keyboard.
void TestGalleryWindow::pick(QComboBox *choice, const QString &text)
{
    QVERIFY(choice);
    QVERIFY2(choice->findText(text) >= 0, qPrintable(text));
    choice->setFocus();
    for (int i = 0; i < choice->count() && choice->currentText() != text; ++i) {
        const bool isBelow = choice->findText(text) > choice->currentIndex();
        QTest::keyClick(choice, isBelow ? Qt::Key_Down : Qt::Key_Up);
    }
    QCOMPARE(choice->currentText(), text);
}

void TestGalleryWindow::startsAtTheFirstPage()
{
    open();

    QCOMPARE(list()->currentRow(), 0);
    QVERIFY(window->currentPage()->isVisible());
    QVERIFY(window->windowTitle().startsWith(galleryPages().first().translatedTitle()));
    QVERIFY(list()->hasFocus());
}

void TestGalleryWindow::everyPageCanBeShown()
{
    open();
    for (int row = 0; row < galleryPages().size(); ++row) {
        window->showPage(row);

        QVERIFY(window->currentPage()->isVisible());
        QVERIFY(!window->currentPage()->description().isEmpty());
        QCOMPARE(window->currentPage()->accessibleName(), galleryPages()[row].translatedTitle());
    }
    window->showPage(-1);
    window->showPage(int(galleryPages().size()));
    QCOMPARE(list()->currentRow(), int(galleryPages().size()) - 1);
}

void TestGalleryWindow::rememberedPageIsShown()
{
    GallerySettings settings;
    settings.page = galleryPages().last().name();

    open(settings);

    QCOMPARE(pageOfWindow(), settings.page);
}

void TestGalleryWindow::unknownRememberedPageIsTheFirst()
{
    GallerySettings settings;
    settings.page = "none such";

    open(settings);

    QCOMPARE(list()->currentRow(), 0);
}

void TestGalleryWindow::paletteIsAppliedToAllWindowsAndRemembered()
{
    open();
    QWidget other;
    other.show();

    pick(box("Palette"), "Dark");

    QTRY_VERIFY(window->palette().color(QPalette::Window).lightness() < 64);
    QVERIFY(other.palette().color(QPalette::Window).lightness() < 64);
    QCOMPARE(GallerySettings::load().colours, GalleryColours::Dark);
}

void TestGalleryWindow::highContrastKeepsTheStyle()
{
    open();

    pick(box("Palette"), "High Contrast");

    QTRY_COMPARE(window->palette().color(QPalette::Window), QColor(Qt::black));
    QCOMPARE(GallerySettings::load().colours, GalleryColours::Contrast);
    open(GallerySettings::load());
    QCOMPARE(box("Palette")->currentText(), "High Contrast");
    QCOMPARE(box("Style")->currentText(), "Fusion");
}

void TestGalleryWindow::styleIsAppliedAndRemembered()
{
    open();

    pick(box("Style"), "Windows");

    QCOMPARE(galleryStyleName(), "windows");
    QCOMPARE(GallerySettings::load().style, "Windows");
}

void TestGalleryWindow::languageIsAppliedAndRemembered()
{
    open();
    QCOMPARE(list()->item(0)->text(), "Log");

    pick(box("Language"), QString::fromUtf8("Français"));

    QTRY_COMPARE(list()->item(0)->text(), "Journal");
    QVERIFY(window->windowTitle().startsWith("Journal"));
    QCOMPARE(box("Palette")->itemText(2), "Sombre");
    QCOMPARE(GallerySettings::load().language, "fr");
    QCOMPARE(window->currentPage()->locale().language(), QLocale::French);
}

void TestGalleryWindow::startingWritesNoSettings()
{
    GallerySettings settings;
    settings.colours = GalleryColours::Dark;
    settings.style = "Windows";
    settings.language = "fr";

    open(settings);

    QCOMPARE(box("Palette")->currentText(), "Sombre");
    QCOMPARE(box("Style")->currentText(), "Windows");
    QCOMPARE(box("Language")->currentData().toString(), "fr");
    QVERIFY(QSettings().allKeys().isEmpty());
}

void TestGalleryWindow::geometryAndPageAreRememberedWhenClosed()
{
    open();
    window->resize(880, 610);

    window->close();

    const GallerySettings saved = GallerySettings::load();
    QCOMPARE(saved.page, pageOfWindow());
    open(saved);
    QCOMPARE(window->size(), QSize(880, 610));
}

void TestGalleryWindow::keysGoThroughThePages()
{
    open();
    const int count = list()->count();

    for (int step = 1; step <= count; ++step) {
        QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(list()->currentRow(), step % count);
    }
    QTest::keyClick(window.get(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(list()->currentRow(), count - 1);
}

void TestGalleryWindow::f6MovesBetweenListAndPage()
{
    open();
    QVERIFY(list()->hasFocus());

    QTest::keyClick(window.get(), Qt::Key_F6);
    QVERIFY(window->currentPage()->isAncestorOf(QApplication::focusWidget()));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    QVERIFY(list()->hasFocus());
}

void TestGalleryWindow::tabReachesListAndChoices()
{
    open();
    QSet<QWidget *> reached;
    for (QWidget *focused = QApplication::focusWidget(); focused && !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached.insert(focused);
        QTest::keyClick(focused, Qt::Key_Tab);
    }

    QVERIFY(reached.contains(list()));
    for (const char *name : {"Palette", "Style", "Language"}) {
        QVERIFY2(reached.contains(box(name)), name);
    }
}

void TestGalleryWindow::everyControlHasAnAccessibleName()
{
    open();
    for (int row = 0; row < galleryPages().size(); ++row) {
        window->showPage(row);
        const auto widgets = window->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const QWidget *parent = widget->parentWidget();
            const bool isPart = parent && parent->focusPolicy() != Qt::NoFocus;
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0 || isPart) {
                continue;
            }
            const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                     widget->metaObject()->className());
        }
    }
}

/// Of 1366 pixels at 200 %.
void TestGalleryWindow::headerFitsOnASmallScreen()
{
    open();

    window->resize(683, 384);

    QCOMPARE(window->width(), 683);
    auto *header = window->findChild<GalleryHeader *>();
    const auto parts = header->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *part : parts) {
        QVERIFY(header->rect().contains(part->geometry()));
        for (const QWidget *other : parts) {
            QVERIFY(other == part || !other->geometry().intersects(part->geometry()));
        }
    }
}

void TestGalleryWindow::mnemonicsDoNotClashOnAnyPage()
{
    open();
    for (int row = 0; row < galleryPages().size(); ++row) {
        window->showPage(row);

        QCOMPARE(clashingMnemonics(*window), QStringList());
    }
}

void TestGalleryWindow::closingWhileAJobRunsEndsCleanly()
{
    GallerySettings settings;
    settings.page = "log";
    open(settings);
    window->currentPage()->fillForPicture();
    QVERIFY(!window->currentPage()->isReady());

    window->close();
    window.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryWindow>(argc, argv);
}

#include "tst_GalleryWindow.moc"
