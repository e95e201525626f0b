#include "GalleryAppearance.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QStyle>
#include <QTreeWidget>

namespace {

/// Relative luminance from 0 to 1, as web pages are checked with.
qreal luminance(const QColor &colour)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : qPow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

qreal contrast(const QColor &left, const QColor &right)
{
    const qreal brighter = qMax(luminance(left), luminance(right));
    const qreal darker = qMin(luminance(left), luminance(right));
    return (brighter + 0.05) / (darker + 0.05);
}

/// Of what is painted, the most visible on this ground.
qreal bestContrast(const QImage &picture, const QColor &ground)
{
    qreal best = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            best = qMax(best, contrast(picture.pixelColor(x, y), ground));
        }
    }
    return best;
}

} // namespace

class TestGalleryAppearance : public TestBase
{
    Q_OBJECT

private slots:
    void textsStandOutFromTheirGround_data();
    void textsStandOutFromTheirGround();
    void uncheckedBoxesStandOutFromADarkGround();
    void openWindowsFollowAtOnce();
    void systemColoursComeBack();
    void styleIsFoundWithoutCase();
    void unknownStyleChangesNothing();
    void styleKeepsThePalette();
    void namesAreReadBack_data();
    void namesAreReadBack();

protected:
    void finish() override;
};

void TestGalleryAppearance::finish()
{
    applyGalleryStyle("Fusion");
    applyGalleryColours(GalleryColours::System);
}

void TestGalleryAppearance::textsStandOutFromTheirGround_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    QTest::addColumn<qreal>("ratio");
    // 4.5 is what plain text is to have, 3 what large and secondary text is to have.
    QTest::newRow("window") << int(QPalette::WindowText) << int(QPalette::Window) << 4.5;
    QTest::newRow("view") << int(QPalette::Text) << int(QPalette::Base) << 4.5;
    QTest::newRow("other row") << int(QPalette::Text) << int(QPalette::AlternateBase) << 4.5;
    QTest::newRow("button") << int(QPalette::ButtonText) << int(QPalette::Button) << 4.5;
    QTest::newRow("link") << int(QPalette::Link) << int(QPalette::Base) << 4.5;
    QTest::newRow("tool tip") << int(QPalette::ToolTipText) << int(QPalette::ToolTipBase) << 4.5;
    QTest::newRow("muted") << int(QPalette::PlaceholderText) << int(QPalette::Window) << 3.0;
    QTest::newRow("selected") << int(QPalette::HighlightedText) << int(QPalette::Highlight) << 3.0;
}

void TestGalleryAppearance::textsStandOutFromTheirGround()
{
    QFETCH(int, text);
    QFETCH(int, ground);
    QFETCH(qreal, ratio);
    for (const auto colours : {GalleryColours::Light, GalleryColours::Dark}) {
        applyGalleryColours(colours);
        const QPalette palette = QApplication::palette();

        const qreal found = contrast(palette.color(QPalette::ColorRole(text)),
                                     palette.color(QPalette::ColorRole(ground)));

        QVERIFY2(found >= ratio, qPrintable(QString::number(found)));
    }
}

void TestGalleryAppearance::uncheckedBoxesStandOutFromADarkGround()
{
    applyGalleryColours(GalleryColours::Dark);
    const QPalette palette = QApplication::palette();
    QCheckBox box;
    box.ensurePolished();
    QTreeWidget tree;
    tree.setHeaderHidden(true);
    auto *item = new QTreeWidgetItem(&tree, {QString()});
    item->setCheckState(0, Qt::Unchecked);
    tree.resize(100, 40);
    tree.setFrameShape(QFrame::NoFrame);

    // 3 is what parts of controls are to have.
    QVERIFY(bestContrast(box.grab().toImage(), palette.color(QPalette::Window)) >= 3);
    QVERIFY(bestContrast(tree.grab().toImage(), palette.color(QPalette::Base)) >= 3);
}

void TestGalleryAppearance::openWindowsFollowAtOnce()
{
    QWidget window;
    QWidget child(&window);
    window.show();

    applyGalleryColours(GalleryColours::Dark);

    QTRY_VERIFY(luminance(window.palette().color(QPalette::Window)) < 0.1);
    QVERIFY(luminance(child.palette().color(QPalette::Window)) < 0.1);
}

void TestGalleryAppearance::systemColoursComeBack()
{
    const QColor before = QApplication::palette().color(QPalette::Window);
    applyGalleryColours(GalleryColours::Dark);

    applyGalleryColours(GalleryColours::System);

    QCOMPARE(QApplication::palette().color(QPalette::Window), before);
}

void TestGalleryAppearance::styleIsFoundWithoutCase()
{
    QCOMPARE(galleryStyleKey("wINDOWS"), "Windows");

    QVERIFY(applyGalleryStyle("wINDOWS"));

    QCOMPARE(QApplication::style()->name(), "windows");
}

void TestGalleryAppearance::unknownStyleChangesNothing()
{
    QVERIFY(!applyGalleryStyle("none such"));
    QVERIFY(!applyGalleryStyle(QString()));

    QCOMPARE(QApplication::style()->name(), "fusion");
}

void TestGalleryAppearance::styleKeepsThePalette()
{
    applyGalleryColours(GalleryColours::Dark);
    const QPalette before = QApplication::palette();

    QVERIFY(applyGalleryStyle("Windows"));

    QCOMPARE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    QCOMPARE(QApplication::palette().color(QPalette::Mid), before.color(QPalette::Mid));
}

void TestGalleryAppearance::namesAreReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<GalleryColours>("colours");
    QTest::newRow("system") << "system" << GalleryColours::System;
    QTest::newRow("light") << "light" << GalleryColours::Light;
    QTest::newRow("dark") << "dark" << GalleryColours::Dark;
}

void TestGalleryAppearance::namesAreReadBack()
{
    QFETCH(QString, name);
    QFETCH(GalleryColours, colours);
    const auto other =
        colours == GalleryColours::Dark ? GalleryColours::Light : GalleryColours::Dark;

    QCOMPARE(galleryColoursName(colours), name);
    QCOMPARE(galleryColoursFromName(name, other), colours);
    QCOMPARE(galleryColoursFromName(name.toUpper(), other), other);
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryAppearance>(argc, argv);
}

#include "tst_GalleryAppearance.moc"
