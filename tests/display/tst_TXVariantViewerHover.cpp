#include "TXVariantViewer.h"

#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QEnterEvent>
#include <QVBoxLayout>

#include <memory>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedValue;

namespace {

const QColor kPaper(0xff, 0xf0, 0xd0);

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
    void endOfHoverEffectsPutsTheLightOut();
    void viewerWithoutParentTakesTheApplicationsPalette();
    void hoveredViewerFollowsALaterPalette_data();
    void hoveredViewerFollowsALaterPalette();

protected:
    void prepare() override;
    void finish() override;

private:
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

void TestTXVariantViewerHover::lightFollowsTheMouse()
{
    auto *box = new QVBoxLayout(window.get());
    box->setContentsMargins(40, 40, 40, 40);
    box->addWidget(root);
    window->resize(400, 300);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    TXVariantViewer *entry = entriesOf(*root).at(1);
    const auto moveTo = [this](const QWidget *widget, QPoint place) {
        QTest::mouseMove(window->windowHandle(), widget->mapTo(window.get(), place));
    };

    moveTo(window.get(), {5, 5});
    moveTo(root, {5, root->height() / 2});
    QTRY_VERIFY(isLit(root));
    moveTo(entry, entry->rect().center());
    QTRY_VERIFY(isLit(entry));
    QVERIFY(!isLit(root));
    moveTo(root, {5, root->height() / 2});
    QTRY_VERIFY(isLit(root));
    moveTo(entry, entry->rect().center());
    QTRY_VERIFY(!isLit(root));
    moveTo(window.get(), {5, 5});
    QTRY_VERIFY(!isLit(entry));
    QVERIFY(!isLit(root));
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
