#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageViews.h"
#include "TestBase.h"

#include <QApplication>
#include <QListWidget>
#include <QRadioButton>
#include <QSet>

#include <memory>

namespace {

/// More presses than any page has controls.
constexpr int kMostPresses = 400;

QString nameOf(const QWidget &widget)
{
    QStringList names;
    for (const QWidget *step = &widget; step && !step->isWindow(); step = step->parentWidget()) {
        names.prepend(step->objectName().isEmpty()
                          ? QString::fromLatin1(step->metaObject()->className())
                          : step->objectName());
    }
    return names.mid(qMax(0, int(names.size()) - 3)).join(QLatin1Char('/'));
}

/// Whether the arrow keys of the chosen button lead to this one, and Tab passes it by.
bool isReachedFromAnotherButton(const QWidget &widget)
{
    const auto *button = qobject_cast<const QRadioButton *>(&widget);
    return button && !button->isChecked();
}

/// Whether Tab has to come to this widget by itself, rather than to another that stands for it.
bool isTabStop(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible()
        && !widget.focusProxy() && !isReachedFromAnotherButton(widget);
}

QList<QWidget *> tabStopsOf(const QWidget &page)
{
    QList<QWidget *> stops;
    const auto children = page.findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (isTabStop(*child) && child->window() == page.window()) {
            stops.append(child);
        }
    }
    return stops;
}

/// The widgets that get the focus one after the other by this key, until it comes back to `start`.
QList<QWidget *> walk(QWidget &start, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QList<QWidget *> steps;
    start.setFocus(Qt::TabFocusReason);
    for (int press = 0; press < kMostPresses; ++press) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QWidget *const next = QApplication::focusWidget();
        steps.append(next);
        if (next == &start || !next) {
            break;
        }
    }
    return steps;
}

QStringList missingFrom(const QList<QWidget *> &steps, const QList<QWidget *> &stops)
{
    const QSet<QWidget *> reached(steps.begin(), steps.end());
    QStringList missing;
    for (const QWidget *stop : stops) {
        if (!reached.contains(const_cast<QWidget *>(stop))) {
            missing.append(nameOf(*stop));
        }
    }
    return missing;
}

/// Whether both stand on a form whose order is the library's own affair, tested there.
bool haveOwnOrder(const QWidget &current, const QWidget &next)
{
    const QWidget *form = current.parentWidget();
    return form == next.parentWidget() && form->inherits("EMailSenderWidget");
}

/// Where the widget is in its window.
QRect placeOf(const QWidget &widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

bool haveCommonPart(int first, int last, int otherFirst, int otherLast)
{
    return first <= otherLast && otherFirst <= last;
}

/// Whether a reader of the page would meet `next` before `current`: above it in the same column, or
/// to its left in the same row.
bool isBackwards(const QRect &current, const QRect &next)
{
    if (haveCommonPart(current.top(), current.bottom(), next.top(), next.bottom())) {
        return next.right() < current.left();
    }
    return next.bottom() < current.top()
        && haveCommonPart(current.left(), current.right(), next.left(), next.right());
}

/// The steps from one control of the page to another that go against the order of reading.
QStringList backwardSteps(const QList<QWidget *> &steps, const QWidget &page)
{
    QStringList found;
    for (qsizetype i = 1; i < steps.size(); ++i) {
        const QWidget &current = *steps[i - 1];
        const QWidget &next = *steps[i];
        if (page.isAncestorOf(&current) && page.isAncestorOf(&next) && !haveOwnOrder(current, next)
            && isBackwards(placeOf(current), placeOf(next))) {
            found.append(nameOf(current) + QStringLiteral(" -> ") + nameOf(next));
        }
    }
    return found;
}

} // namespace

/// Every page by keyboard alone.
class TestGalleryKeyboard : public TestBase
{
    Q_OBJECT

private slots:
    void tabReachesEveryControlAndComesBack_data() { addPages(); }
    void tabReachesEveryControlAndComesBack();
    void backtabGoesTheSameWayBack_data() { addPages(); }
    void backtabGoesTheSameWayBack();
    void tabFollowsTheOrderOfReading_data() { addPages(); }
    void tabFollowsTheOrderOfReading();

protected:
    void prepare() override;
    void finish() override;

private:
    static void addPages();
    /// Opens the page of the current row; false when it did not become active or lacks its plug-in.
    [[nodiscard]] bool open();

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};

void TestGalleryKeyboard::prepare()
{
    useGalleryPlugins();
    languages = std::make_unique<GalleryLanguages>(QString{});
}

void TestGalleryKeyboard::finish()
{
    window.reset();
    languages.reset();
}

void TestGalleryKeyboard::addPages()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("plugin");
    for (const PageView &view : pageViews()) {
        QTest::newRow(view.name.constData()) << view.page << view.plugin;
    }
}

bool TestGalleryKeyboard::open()
{
    QFETCH(QString, name);
    QFETCH(QString, plugin);
    GallerySettings settings;
    settings.page = name;
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    return QTest::qWaitForWindowActive(window.get()) && choosePlugin(*window, plugin);
}

void TestGalleryKeyboard::tabReachesEveryControlAndComesBack()
{
    QVERIFY(open());
    const QList<QWidget *> stops = tabStopsOf(*window->currentPage());
    QVERIFY(!stops.isEmpty());
    const QList<QWidget *> steps = walk(*stops.first(), Qt::Key_Tab, Qt::NoModifier);
    QVERIFY2(steps.last() == stops.first(),
             qPrintable(QStringLiteral("stays at ") + nameOf(*steps.last())));
    const QStringList missing = missingFrom(steps, stops);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1String(", "))));
}

void TestGalleryKeyboard::backtabGoesTheSameWayBack()
{
    QVERIFY(open());
    const QList<QWidget *> stops = tabStopsOf(*window->currentPage());
    QVERIFY(!stops.isEmpty());
    QList<QWidget *> there = walk(*stops.first(), Qt::Key_Tab, Qt::NoModifier);
    QList<QWidget *> back = walk(*stops.first(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(back.size(), there.size());
    there.removeLast();
    back.removeLast();
    std::reverse(back.begin(), back.end());
    QCOMPARE(back, there);
}

void TestGalleryKeyboard::tabFollowsTheOrderOfReading()
{
    QVERIFY(open());
    const QList<QWidget *> stops = tabStopsOf(*window->currentPage());
    QVERIFY(!stops.isEmpty());
    // From the page's first control on: the list of pages stands before it.
    auto *list = window->findChild<QListWidget *>();
    const QList<QWidget *> steps = walk(*list, Qt::Key_Tab, Qt::NoModifier);
    const QStringList backwards = backwardSteps(steps, *window->currentPage());
    QVERIFY2(backwards.isEmpty(), qPrintable(backwards.join(QStringLiteral("; "))));
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryKeyboard>(argc, argv);
}

#include "tst_GalleryKeyboard.moc"
