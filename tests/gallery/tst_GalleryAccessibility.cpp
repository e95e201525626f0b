#include "Contrast.h"
#include "FormControls.h"
#include "GalleryAppearance.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageViews.h"
#include "TestBase.h"

#include <QApplication>
#include <QImage>
#include <QLabel>

#include <memory>

namespace {

QString asLines(const QStringList &found)
{
    return QLatin1Char('\n') + found.join(QLatin1Char('\n'));
}

/// The control as it is seen in its window, with what is around it.
QImage seen(const QWidget &control)
{
    constexpr int kAround = 4;
    QWidget *window = control.window();
    const QRect place(control.mapTo(window, QPoint()), control.size());
    return window->grab(place.adjusted(-kAround, -kAround, kAround, kAround)).toImage();
}

/// Whether the focus is seen by more than a tint or a cursor in a text.
bool showsFocus(QWidget &control, QWidget &elsewhere)
{
    constexpr int kLeastPixels = 20;
    elsewhere.setFocus(Qt::TabFocusReason);
    const QImage without = seen(control);
    control.setFocus(Qt::TabFocusReason);
    return control.hasFocus() && Contrast::changedPixels(without, seen(control)) >= kLeastPixels;
}

/// The controls of the page or window that do not show it.
QStringList unseen(QWidget &form)
{
    const QList<QWidget *> stops = FormControls::tabStops(form);
    QStringList found;
    for (QWidget *stop : stops) {
        QWidget *elsewhere = stop == stops.first() ? stops.last() : stops.first();
        form.window()->setAttribute(Qt::WA_KeyboardFocusChange);
        FormControls::scrollTo(*stop);
        if (!showsFocus(*stop, *elsewhere)) {
            found.append(FormControls::inWords(*stop));
        }
    }
    return found;
}

} // namespace

/// What every page offers to those who do not see it, and where the focus is seen.
class TestGalleryAccessibility : public TestBase
{
    Q_OBJECT

private slots:
    void everyControlHasAName_data() { addPages(); }
    void everyControlHasAName();
    void picturesSayWhatTheyShow_data() { addPages(); }
    void picturesSayWhatTheyShow();
    void furtherWindowsHaveNamesToo_data() { addPages(); }
    void furtherWindowsHaveNamesToo();
    void pagesOfPluginsHaveNamesToo_data();
    void pagesOfPluginsHaveNamesToo();
    void namesAreWithoutMarks_data() { addPages(); }
    void namesAreWithoutMarks();
    void namesTellControlsApart_data() { addPages(); }
    void namesTellControlsApart();
    void everyControlShowsItsFocus_data() { addPagesInColours(); }
    void everyControlShowsItsFocus();
    void furtherWindowsShowTheFocusToo_data() { addPagesInColours(); }
    void furtherWindowsShowTheFocusToo();

protected:
    void prepare() override;
    void finish() override;

private:
    static void addPages();
    static void addPagesInColours();
    /// Opens the page of the current row; null when it did not become active or lacks its plug-in.
    [[nodiscard]] QWidget *openPage(GalleryColours colours = GalleryColours::System);

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};

void TestGalleryAccessibility::prepare()
{
    QApplication::setCursorFlashTime(0);
    useGalleryPlugins();
    languages = std::make_unique<GalleryLanguages>(QString{});
}

void TestGalleryAccessibility::finish()
{
    window.reset();
    languages.reset();
    applyGalleryColours(GalleryColours::System);
}

void TestGalleryAccessibility::addPages()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("plugin");
    for (const PageView &view : pageViews()) {
        QTest::newRow(view.name.constData()) << view.page << view.plugin;
    }
}

void TestGalleryAccessibility::addPagesInColours()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<GalleryColours>("colours");
    for (const PageView &view : pageViews()) {
        for (const auto colours :
             {GalleryColours::Light, GalleryColours::Dark, GalleryColours::Contrast}) {
            QTest::addRow("%s, %s", view.name.constData(), qPrintable(galleryColoursName(colours)))
                << view.page << view.plugin << colours;
        }
    }
}

QWidget *TestGalleryAccessibility::openPage(GalleryColours colours)
{
    QFETCH(QString, name);
    QFETCH(QString, plugin);
    GallerySettings settings;
    settings.page = name;
    settings.colours = colours;
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    return QTest::qWaitForWindowActive(window.get()) && choosePlugin(*window, plugin)
        ? window->currentPage()
        : nullptr;
}

void TestGalleryAccessibility::everyControlHasAName()
{
    QVERIFY(openPage());
    // The strip above the pages and the list beside them as well.
    const QStringList found = FormControls::nameless(*window);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestGalleryAccessibility::picturesSayWhatTheyShow()
{
    QWidget *page = openPage();
    QVERIFY(page);
    const QStringList found = FormControls::mutePictures(*page);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

/// The windows that the page shows for its pictures in the manual.
void TestGalleryAccessibility::furtherWindowsHaveNamesToo()
{
    QVERIFY(openPage());
    const QList<GalleryFurtherWindow> windows = window->currentPage()->furtherWindows();
    for (const GalleryFurtherWindow &further : windows) {
        const QStringList found = FormControls::nameless(*further.window);
        QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
        QCOMPARE(FormControls::unclean(*further.window, FormControls::Names::Unseen),
                 QStringList());
    }
}

void TestGalleryAccessibility::pagesOfPluginsHaveNamesToo_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::newRow("colours") << QStringLiteral("ColourPreferences");
    QTest::newRow("reports") << QStringLiteral("ReportPreferences");
}

void TestGalleryAccessibility::pagesOfPluginsHaveNamesToo()
{
    QFETCH(const QString, plugin);
    const std::unique_ptr<ConfWidget> page = makePluginPage(plugin);
    QVERIFY(page);
    const QStringList found = FormControls::nameless(*page);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
    QCOMPARE(FormControls::ambiguous(*page), QStringList());
}

void TestGalleryAccessibility::namesAreWithoutMarks()
{
    QVERIFY(openPage());
    const QStringList found = FormControls::unclean(*window, FormControls::Names::Unseen);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestGalleryAccessibility::namesTellControlsApart()
{
    QWidget *page = openPage();
    QVERIFY(page);
    const QStringList found = FormControls::ambiguous(*page);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestGalleryAccessibility::everyControlShowsItsFocus()
{
    QFETCH(GalleryColours, colours);
    QWidget *page = openPage(colours);
    QVERIFY(page);
    QVERIFY(!FormControls::tabStops(*page).isEmpty());
    const QStringList found = unseen(*page);
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

void TestGalleryAccessibility::furtherWindowsShowTheFocusToo()
{
    QFETCH(GalleryColours, colours);
    QVERIFY(openPage(colours));
    const QList<GalleryFurtherWindow> windows = window->currentPage()->furtherWindows();
    for (const GalleryFurtherWindow &further : windows) {
        further.window->show();
        // One may be a part of the page.
        QWidget *top = further.window->window();
        top->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), top);
        const QStringList found = unseen(*further.window);
        QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryAccessibility>(argc, argv);
}

#include "tst_GalleryAccessibility.moc"
