#include "PaperArea.h"

#include "PixelProbe.h"
#include "TestBase.h"

#include "TXVariantViewer.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>

namespace {

QPalette darkPalette()
{
    return {Qt::white,
            QColor(0x30, 0x30, 0x30),
            Qt::white,
            Qt::black,
            Qt::darkGray,
            Qt::white,
            Qt::white,
            Qt::black,
            QColor(0x22, 0x22, 0x22)};
}

QPalette lightPalette()
{
    return {Qt::black,
            QColor(0xf0, 0xf0, 0xf0),
            Qt::white,
            Qt::darkGray,
            Qt::gray,
            Qt::black,
            Qt::white,
            Qt::white,
            QColor(0xf3, 0xf3, 0xf3)};
}

} // namespace

class TestPaperArea : public TestBase
{
    Q_OBJECT

private slots:
    void lightColoursStayThoseOfTheSurroundings();
    void darkColoursGiveLightPaper();
    void viewerThatWasLitFollowsThePalette();
    void viewerStandsAtTheTop();

private:
    void prepare() override;
    void finish() override { window.reset(); }
    [[nodiscard]] TXVariantViewer &viewer() const { return *area->viewer(); }

    std::unique_ptr<QWidget> window;
    PaperArea *area = nullptr;
};

void TestPaperArea::prepare()
{
    window = std::make_unique<QWidget>();
    window->setPalette(lightPalette());
    area = new PaperArea(window.get());
    auto *rows = new QVBoxLayout(window.get());
    rows->addWidget(area);
    window->resize(400, 300);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestPaperArea::lightColoursStayThoseOfTheSurroundings()
{
    QCOMPARE(viewer().palette().color(QPalette::Window), QColor(0xf3, 0xf3, 0xf3));
    QCOMPARE(PixelProbe(*area).at({200, 150}), QColor(0xf3, 0xf3, 0xf3));
}

void TestPaperArea::darkColoursGiveLightPaper()
{
    window->setPalette(darkPalette());

    const QColor paper = PixelProbe(*area).at({200, 150});
    QVERIFY2(paper.lightness() > 200, qPrintable(paper.name()));
    // The light of a hover is white, and must be seen.
    QVERIFY(paper != QColor(Qt::white));
    QVERIFY(viewer().palette().color(QPalette::WindowText).lightness() < 64);
    QCOMPARE(area->verticalScrollBar()->palette().color(QPalette::Window),
             QColor(0x22, 0x22, 0x22));

    window->setPalette(lightPalette());
    QCOMPARE(PixelProbe(*area).at({200, 150}), QColor(0xf3, 0xf3, 0xf3));
}

void TestPaperArea::viewerThatWasLitFollowsThePalette()
{
    viewer().setHoverEffects(true);
    viewer().setValue(QVariantList{QVariantList{1}, 2});
    viewer().expand();
    auto *inner = viewer().findChild<TXVariantViewer *>();
    window->setPalette(darkPalette());
    for (TXVariantViewer *lit : {&viewer(), inner}) {
        lit->hover();
        QCOMPARE(lit->palette().color(QPalette::Window), QColor(Qt::white));
        lit->unhover();
    }

    window->setPalette(lightPalette());

    QCOMPARE(viewer().palette().color(QPalette::Window), QColor(0xf3, 0xf3, 0xf3));
    QCOMPARE(inner->palette().color(QPalette::Window), QColor(0xf3, 0xf3, 0xf3));
    QCOMPARE(inner->palette().color(QPalette::WindowText), QColor(Qt::black));
}

void TestPaperArea::viewerStandsAtTheTop()
{
    viewer().setValue("short");
    QTRY_VERIFY(viewer().height() < 40);

    QVERIFY(viewer().mapTo(area, QPoint()).y() < 20);
    QVERIFY(viewer().width() > 300);
}

int main(int argc, char **argv)
{
    return runTest<TestPaperArea>(argc, argv);
}

#include "tst_PaperArea.moc"
