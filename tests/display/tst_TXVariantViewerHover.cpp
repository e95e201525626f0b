#include "TXVariantViewer.h"

#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QEnterEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedValue;

namespace {

const QColor kPaper(0xff, 0xf0, 0xd0);
constexpr int kLongLevel = 500;

bool isLit(const QWidget *viewer)
{
    return viewer->palette().brush(QPalette::Active, viewer->backgroundRole()) == QBrush(Qt::white);
}

QPalette paletteOf(const QColor &window)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    return palette;
}

void enter(QWidget *widget)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(widget, &event);
}

void leave(QWidget *widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(widget, &event);
}

bool isInView(const QWidget &widget, const QWidget &port)
{
    return QRect(widget.mapTo(&port, QPoint(0, 0)), widget.size()).intersects(port.rect());
}

/// Counts who is told of another palette, and who could ask to be painted then.
class PaletteWatch : public QObject
{
public:
    explicit PaletteWatch(const QWidget *viewport)
        : port(viewport)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::PaletteChange && port->isAncestorOf(widget)) {
            ++changes;
            const bool isSeen = isInView(*widget, *port);
            changesInView += isSeen ? 1 : 0;
            asking += !isSeen && widget->updatesEnabled() ? 1 : 0;
            silentInView += isSeen && !widget->updatesEnabled() ? 1 : 0;
        }
        return false;
    }

    int changes = 0;
    int changesInView = 0;
    int asking = 0;
    int silentInView = 0;

private:
    const QWidget *port;
};

/// An open level in a scroll area, of which a few entries can be seen.
TXVariantViewer *showLongLevel(QScrollArea &area)
{
    QVariantMap map;
    for (int i = 0; i < kLongLevel; ++i) {
        map.insert(QStringLiteral("key %1").arg(i, 4), QVariantList{i});
    }
    auto *viewer = new TXVariantViewer(&area);
    area.setWidget(viewer);
    area.setWidgetResizable(true);
    area.resize(300, 300);
    viewer->setValue(map);
    viewer->setHoverEffects();
    viewer->expand();
    area.show();
    return viewer;
}

/// The colour at a place of a window as it stands on the screen; none outside.
QColor colourOnScreen(QWidget &window, const QPoint &place)
{
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    return shown.rect().contains(place) ? shown.pixelColor(place) : QColor();
}

} // namespace

class TestTXVariantViewerHover : public TestBase
{
    Q_OBJECT

private slots:
    void hoverPaintsTheBackgroundRoleWhiteInAllGroups();
    void nothingIsLitWithoutTheRootsFlag();
    void flagOfAViewerWithinIsIgnored();
    void lightMovesInAndOut();
    void lightFollowsTheMouse();
    void lightGoesOutWhenTheMouseLeavesAtOnce();
    void entriesOutOfViewAskForNoPaint();
    void entriesComeIntoViewInTheLightOfTheMoment();
    void endOfHoverEffectsPutsTheLightOut();
    void viewerWithoutParentTakesTheApplicationsPalette();
    void hoveredViewerFollowsALaterPalette_data();
    void hoveredViewerFollowsALaterPalette();

protected:
    void prepare() override;
    void finish() override;

private:
    void showWithRoomAround();
    void moveMouse(const QWidget &widget, QPoint place);

    std::unique_ptr<QWidget> window;
    TXVariantViewer *root = nullptr;
    QPalette before;
};

void TestTXVariantViewerHover::prepare()
{
    before = QApplication::palette();
    window = std::make_unique<QWidget>();
    window->setPalette(paletteOf(kPaper));
    root = new TXVariantViewer(window.get());
    root->setHoverEffects();
    root->setValue(nestedValue());
    root->expand();
}

void TestTXVariantViewerHover::finish()
{
    window.reset();
    QApplication::setPalette(before);
}

void TestTXVariantViewerHover::hoverPaintsTheBackgroundRoleWhiteInAllGroups()
{
    root->setBackgroundRole(QPalette::Mid);
    const QPalette unlit = root->palette();
    root->hover();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(root->palette().brush(group, QPalette::Mid), QBrush(Qt::white));
        QCOMPARE(root->palette().brush(group, QPalette::Window),
                 unlit.brush(group, QPalette::Window));
        QCOMPARE(root->palette().brush(group, QPalette::Text), unlit.brush(group, QPalette::Text));
    }
    root->unhover();
    QCOMPARE(root->palette(), window->palette());
}

void TestTXVariantViewerHover::nothingIsLitWithoutTheRootsFlag()
{
    root->setHoverEffects(false);
    TXVariantViewer *entry = entriesOf(*root).first();
    enter(root);
    QVERIFY(!isLit(root));
    enter(entry);
    QVERIFY(!isLit(entry));
    leave(entry);
    QVERIFY(!isLit(root));
}

void TestTXVariantViewerHover::flagOfAViewerWithinIsIgnored()
{
    TXVariantViewer *entry = entriesOf(*root).first();
    entry->setHoverEffects(false);
    QVERIFY(entry->hoverEffects());
    enter(entry);
    QVERIFY(isLit(entry));
    leave(entry);

    root->setHoverEffects(false);
    entry->setHoverEffects(true);
    QVERIFY(!entry->hoverEffects());
    enter(entry);
    QVERIFY(!isLit(entry));
}

void TestTXVariantViewerHover::lightMovesInAndOut()
{
    TXVariantViewer *entry = entriesOf(*root).first();
    TXVariantViewer *sibling = entriesOf(*root).last();
    entry->expand();
    TXVariantViewer *inner = entriesOf(*entry).first();

    enter(root);
    QVERIFY(isLit(root));
    enter(entry);
    QVERIFY(!isLit(root));
    QVERIFY(isLit(entry));
    QVERIFY(!isLit(sibling));
    enter(inner);
    QVERIFY(!isLit(root));
    QVERIFY(!isLit(entry));
    QVERIFY(isLit(inner));

    leave(inner);
    QVERIFY(isLit(entry));
    QVERIFY(!isLit(root));
    leave(entry);
    QVERIFY(isLit(root));
    leave(root);
    for (const QWidget *viewer : {root, entry, inner, sibling}) {
        QCOMPARE(viewer->palette().color(QPalette::Window), kPaper);
    }
}

void TestTXVariantViewerHover::showWithRoomAround()
{
    auto *box = new QVBoxLayout(window.get());
    box->setContentsMargins(40, 40, 40, 40);
    box->addWidget(root);
    window->resize(400, 300);
    window->show();
}

void TestTXVariantViewerHover::moveMouse(const QWidget &widget, QPoint place)
{
    QTest::mouseMove(window->windowHandle(), widget.mapTo(window.get(), place));
}

void TestTXVariantViewerHover::lightFollowsTheMouse()
{
    showWithRoomAround();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const TXVariantViewer *entry = entriesOf(*root).at(1);
    const QPoint onMargin(5, root->height() / 2);

    moveMouse(*window, {5, 5});
    moveMouse(*root, onMargin);
    QTRY_VERIFY(isLit(root));
    moveMouse(*entry, entry->rect().center());
    QTRY_VERIFY(isLit(entry));
    QVERIFY(!isLit(root));
    moveMouse(*root, onMargin);
    QTRY_VERIFY(isLit(root));
}

void TestTXVariantViewerHover::lightGoesOutWhenTheMouseLeavesAtOnce()
{
    showWithRoomAround();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const TXVariantViewer *entry = entriesOf(*root).at(1);

    moveMouse(*window, {5, 5});
    moveMouse(*entry, entry->rect().center());
    QTRY_VERIFY(isLit(entry));
    moveMouse(*window, {5, 5});
    QTRY_VERIFY(!isLit(entry));
    QVERIFY(!isLit(root));
}

void TestTXVariantViewerHover::entriesOutOfViewAskForNoPaint()
{
    QScrollArea area;
    TXVariantViewer *viewer = showLongLevel(area);
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    entriesOf(*viewer).at(400)->expand();
    entriesOf(*viewer).at(401)->setUpdatesEnabled(false);
    // The mouse may be where the window has come up.
    leave(viewer);
    const PaletteWatch watch(area.viewport());

    enter(viewer);
    enter(entriesOf(*viewer).first());

    // Key, viewer and label of each entry, twice, but for the few that are lit themselves.
    QVERIFY(watch.changes > 5 * kLongLevel);
    QCOMPARE(watch.asking, 0);
    QVERIFY(watch.changesInView > 0);
    QCOMPARE(watch.silentInView, 0);
    for (const QWidget *widget : viewer->findChildren<QWidget *>()) {
        const bool isOfHost = entriesOf(*viewer).at(401)->isAncestorOf(widget)
            || widget == entriesOf(*viewer).at(401);
        QCOMPARE(widget->updatesEnabled(), !isOfHost);
    }
}

void TestTXVariantViewerHover::entriesComeIntoViewInTheLightOfTheMoment()
{
    QScrollArea area;
    area.setPalette(paletteOf(kPaper));
    TXVariantViewer *viewer = showLongLevel(area);
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const auto *last =
        qobject_cast<QLabel *>(viewer->layout()->itemAt(viewer->layout()->count() - 2)->widget());
    const auto colourOfLast = [&] {
        return colourOnScreen(area, last->mapTo(&area, last->rect().bottomRight()));
    };

    enter(viewer);
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    QTRY_COMPARE(colourOfLast(), QColor(Qt::white));
    area.verticalScrollBar()->setValue(0);
    QTRY_COMPARE(colourOfLast(), QColor());
    enter(entriesOf(*viewer).first());
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    QTRY_COMPARE(colourOfLast(), kPaper);
}

void TestTXVariantViewerHover::endOfHoverEffectsPutsTheLightOut()
{
    root->hover();
    QVERIFY(isLit(root));
    root->setHoverEffects(false);
    QCOMPARE(root->palette(), window->palette());
    QVERIFY(!root->property("hoverEffects").toBool());
}

void TestTXVariantViewerHover::viewerWithoutParentTakesTheApplicationsPalette()
{
    TXVariantViewer viewer(nullptr);
    viewer.setHoverEffects();
    enter(&viewer);
    QVERIFY(isLit(&viewer));
    leave(&viewer);
    QCOMPARE(viewer.palette(), QApplication::palette());
    enter(&viewer);
    viewer.childEntered();
    QVERIFY(!isLit(&viewer));
    viewer.childLeaved();
    QVERIFY(isLit(&viewer));
    viewer.setHoverEffects(false);
    QCOMPARE(viewer.palette(), QApplication::palette());
}

void TestTXVariantViewerHover::hoveredViewerFollowsALaterPalette_data()
{
    QTest::addColumn<bool>("isOfTheApplication");
    QTest::addRow("of the application") << true;
    QTest::addRow("of the window") << false;
}

void TestTXVariantViewerHover::hoveredViewerFollowsALaterPalette()
{
    QFETCH(bool, isOfTheApplication);
    const QColor dark(0x20, 0x22, 0x24);
    if (isOfTheApplication) {
        window->setPalette(QPalette());
        QApplication::setPalette(paletteOf(kPaper));
        QTRY_COMPARE(root->palette().color(QPalette::Window), kPaper);
    }
    TXVariantViewer *entry = entriesOf(*root).first();
    enter(root);
    enter(entry);
    leave(entry);
    leave(root);
    QCOMPARE(root->palette().color(QPalette::Window), kPaper);
    QCOMPARE(entry->palette().color(QPalette::Window), kPaper);

    if (isOfTheApplication) {
        QApplication::setPalette(paletteOf(dark));
    } else {
        window->setPalette(paletteOf(dark));
    }
    QTRY_COMPARE(root->palette().color(QPalette::Window), dark);
    QCOMPARE(entry->palette().color(QPalette::Window), dark);
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerHover>(argc, argv);
}

#include "tst_TXVariantViewerHover.moc"
