#include "FormControls.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageViews.h"
#include "TestBase.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>

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

/// A style shows the default button of a dialog like one with the focus.
bool isLeftToTheStyle(const QWidget &control)
{
    const auto *button = qobject_cast<const QPushButton *>(&control);
    return button != nullptr && button->isDefault();
}

bool showsFocus(QWidget &control, QWidget &elsewhere)
{
    elsewhere.setFocus(Qt::TabFocusReason);
    const QImage without = seen(control);
    control.setFocus(Qt::TabFocusReason);
    return control.hasFocus() && seen(control) != without;
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
    void everyControlShowsItsFocus_data() { addPages(); }
    void everyControlShowsItsFocus();

protected:
    void prepare() override;
    void finish() override;

private:
    static void addPages();
    /// Opens the page of the current row; null when it did not become active or lacks its plug-in.
    [[nodiscard]] QWidget *openPage();

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
}

void TestGalleryAccessibility::addPages()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("plugin");
    for (const PageView &view : pageViews()) {
        QTest::newRow(view.name.constData()) << view.page << view.plugin;
    }
}

QWidget *TestGalleryAccessibility::openPage()
{
    QFETCH(QString, name);
    QFETCH(QString, plugin);
    GallerySettings settings;
    settings.page = name;
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
    QWidget *page = openPage();
    QVERIFY(page);
    const QList<QWidget *> stops = FormControls::tabStops(*page);
    QVERIFY(!stops.isEmpty());
    QStringList found;
    for (QWidget *stop : stops) {
        QWidget *elsewhere = stop == stops.first() ? stops.last() : stops.first();
        window->setAttribute(Qt::WA_KeyboardFocusChange);
        FormControls::scrollTo(*stop);
        if (!isLeftToTheStyle(*stop) && !showsFocus(*stop, *elsewhere)) {
            found.append(FormControls::inWords(*stop));
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(asLines(found)));
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryAccessibility>(argc, argv);
}

#include "tst_GalleryAccessibility.moc"
