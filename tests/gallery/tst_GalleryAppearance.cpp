#include "ContrastStyle.h"
#include "GalleryAppearance.h"

#include "Contrast.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTreeWidget>

#include <memory>

namespace {

template<class Widget>
std::unique_ptr<QWidget> make()
{
    return std::make_unique<Widget>();
}

} // namespace

using Maker = std::unique_ptr<QWidget> (*)();
Q_DECLARE_METATYPE(Maker)

class TestGalleryAppearance : public TestBase
{
    Q_OBJECT

private slots:
    void textsStandOutFromTheirGround_data();
    void textsStandOutFromTheirGround();
    void disabledTextsAreRead_data();
    void disabledTextsAreRead();
    void highContrastIsWhiteOnBlack();
    void uncheckedBoxesStandOutFromADarkGround();
    void fieldsStandOutFromADarkGround_data();
    void fieldsStandOutFromADarkGround();
    void headOfATreeHasOneGroundInTheDark();
    void outlinesOfTheDarkEndWithIt();
    void paletteIsToldByItsLook();
    void openWindowsFollowAtOnce();
    void systemColoursComeBack();
    void styleIsFoundWithoutCase();
    void unknownStyleChangesNothing();
    void styleKeepsThePalette();
    void highContrastDrawsOverEachStyle();
    void highContrastStaysUnderASheet();
    void namesAreReadBack_data();
    void namesAreReadBack();

protected:
    void finish() override;

private:
    static qreal contrast(QPalette::ColorGroup group, int text, int ground);
};

qreal TestGalleryAppearance::contrast(QPalette::ColorGroup group, int text, int ground)
{
    const QPalette palette = QApplication::palette();
    return Contrast::between(palette.color(group, QPalette::ColorRole(text)),
                             palette.color(group, QPalette::ColorRole(ground)));
}

void TestGalleryAppearance::finish()
{
    qApp->setStyleSheet(QString());
    applyGalleryStyle("Fusion");
    applyGalleryColours(GalleryColours::System);
}

void TestGalleryAppearance::textsStandOutFromTheirGround_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    QTest::newRow("window") << int(QPalette::WindowText) << int(QPalette::Window);
    QTest::newRow("view") << int(QPalette::Text) << int(QPalette::Base);
    QTest::newRow("other row") << int(QPalette::Text) << int(QPalette::AlternateBase);
    QTest::newRow("button") << int(QPalette::ButtonText) << int(QPalette::Button);
    QTest::newRow("pressed") << int(QPalette::ButtonText) << int(QPalette::Midlight);
    QTest::newRow("link") << int(QPalette::Link) << int(QPalette::Base);
    QTest::newRow("link in window") << int(QPalette::Link) << int(QPalette::Window);
    QTest::newRow("visited") << int(QPalette::LinkVisited) << int(QPalette::Base);
    QTest::newRow("tool tip") << int(QPalette::ToolTipText) << int(QPalette::ToolTipBase);
    QTest::newRow("muted") << int(QPalette::PlaceholderText) << int(QPalette::Window);
    QTest::newRow("placeholder") << int(QPalette::PlaceholderText) << int(QPalette::Base);
    QTest::newRow("selected") << int(QPalette::HighlightedText) << int(QPalette::Highlight);
}

void TestGalleryAppearance::textsStandOutFromTheirGround()
{
    QFETCH(int, text);
    QFETCH(int, ground);
    for (const auto colours :
         {GalleryColours::Light, GalleryColours::Dark, GalleryColours::Contrast}) {
        applyGalleryColours(colours);
        const bool isHigh = colours == GalleryColours::Contrast;

        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const qreal found = contrast(group, text, ground);
            QVERIFY2(found >= (isHigh ? Contrast::kHigh : Contrast::kText),
                     qPrintable(galleryColoursName(colours) + QString::number(found)));
        }
    }
}

void TestGalleryAppearance::disabledTextsAreRead_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    QTest::newRow("window") << int(QPalette::WindowText) << int(QPalette::Window);
    QTest::newRow("field") << int(QPalette::Text) << int(QPalette::Base);
    QTest::newRow("button") << int(QPalette::ButtonText) << int(QPalette::Button);
    QTest::newRow("selected") << int(QPalette::HighlightedText) << int(QPalette::Highlight);
    QTest::newRow("placeholder") << int(QPalette::PlaceholderText) << int(QPalette::Base);
}

void TestGalleryAppearance::disabledTextsAreRead()
{
    QFETCH(int, text);
    QFETCH(int, ground);
    for (const auto colours :
         {GalleryColours::Light, GalleryColours::Dark, GalleryColours::Contrast}) {
        applyGalleryColours(colours);
        const bool isHigh = colours == GalleryColours::Contrast;

        const qreal found = contrast(QPalette::Disabled, text, ground);

        QVERIFY2(found >= (isHigh ? Contrast::kText : Contrast::kDisabled),
                 qPrintable(galleryColoursName(colours) + QString::number(found)));
    }
}

void TestGalleryAppearance::highContrastIsWhiteOnBlack()
{
    applyGalleryColours(GalleryColours::Contrast);

    const QPalette palette = QApplication::palette();
    QCOMPARE(palette.color(QPalette::Window), QColor(Qt::black));
    QCOMPARE(palette.color(QPalette::WindowText), QColor(Qt::white));
    for (const auto role : {QPalette::Mid, QPalette::Highlight, QPalette::Light}) {
        QVERIFY(Contrast::between(palette.color(role), Qt::black) >= Contrast::kHigh);
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

    QVERIFY(Contrast::bestOn(box.grab().toImage(), palette.color(QPalette::Window))
            >= Contrast::kGlyph);
    QVERIFY(Contrast::bestOn(tree.grab().toImage(), palette.color(QPalette::Base))
            >= Contrast::kGlyph);
}

void TestGalleryAppearance::fieldsStandOutFromADarkGround_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("line") << Maker(make<QLineEdit>);
    QTest::newRow("text") << Maker(make<QPlainTextEdit>);
    QTest::newRow("rich text") << Maker(make<QTextEdit>);
    QTest::newRow("date") << Maker(make<QDateEdit>);
}

void TestGalleryAppearance::fieldsStandOutFromADarkGround()
{
    QFETCH(Maker, maker);
    applyGalleryColours(GalleryColours::Dark);
    const std::unique_ptr<QWidget> field = maker();
    field->resize(120, 30);
    field->ensurePolished();

    const QImage edge = field->grab(QRect(0, 0, 60, 3)).toImage();
    const qreal found = Contrast::bestOn(edge, QApplication::palette().color(QPalette::Window));

    QVERIFY2(found >= Contrast::kGlyph, qPrintable(QString::number(found)));
}

/// Beside the last column too, where a header is filled with the colour of the window.
void TestGalleryAppearance::headOfATreeHasOneGroundInTheDark()
{
    applyGalleryColours(GalleryColours::Dark);
    QTreeWidget tree;
    tree.setHeaderLabels({QStringLiteral("Patch")});
    tree.header()->setStretchLastSection(false);
    tree.resize(300, 80);
    tree.ensurePolished();

    const QImage head = tree.header()->grab().toImage();

    const QColor beside = head.pixelColor(head.width() - 5, head.height() / 2);
    QVERIFY(Contrast::between(beside, QApplication::palette().color(QPalette::Window)) < 1.5);
}

void TestGalleryAppearance::outlinesOfTheDarkEndWithIt()
{
    applyGalleryColours(GalleryColours::Dark);
    for (const auto colours :
         {GalleryColours::Light, GalleryColours::Contrast, GalleryColours::System}) {
        applyGalleryColours(colours);

        const QColor window = QApplication::palette().color(QPalette::Window);
        QCOMPARE(QLineEdit().palette().color(QPalette::Window), window);
        QCOMPARE(QTreeWidget().header()->palette().color(QPalette::Window), window);
    }
}

void TestGalleryAppearance::paletteIsToldByItsLook()
{
    for (const auto colours :
         {GalleryColours::Light, GalleryColours::Dark, GalleryColours::Contrast}) {
        applyGalleryColours(colours);

        QCOMPARE(shownGalleryColours(QApplication::palette()), colours);
    }
    QCOMPARE(shownGalleryColours(QPalette(Qt::black)), GalleryColours::Dark);
    QCOMPARE(shownGalleryColours(QPalette(Qt::white)), GalleryColours::Light);
}

void TestGalleryAppearance::openWindowsFollowAtOnce()
{
    QWidget window;
    QWidget child(&window);
    window.show();

    applyGalleryColours(GalleryColours::Dark);

    QTRY_VERIFY(Contrast::luminance(window.palette().color(QPalette::Window)) < 0.1);
    QVERIFY(Contrast::luminance(child.palette().color(QPalette::Window)) < 0.1);
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

    QCOMPARE(galleryStyleName(), "windows");
}

void TestGalleryAppearance::unknownStyleChangesNothing()
{
    QVERIFY(!applyGalleryStyle("none such"));
    QVERIFY(!applyGalleryStyle(QString()));

    QCOMPARE(galleryStyleName(), "fusion");
}

void TestGalleryAppearance::styleKeepsThePalette()
{
    applyGalleryColours(GalleryColours::Dark);
    const QPalette before = QApplication::palette();

    QVERIFY(applyGalleryStyle("Windows"));

    QCOMPARE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    QCOMPARE(QApplication::palette().color(QPalette::Mid), before.color(QPalette::Mid));
}

void TestGalleryAppearance::highContrastDrawsOverEachStyle()
{
    for (const QString &key : {QStringLiteral("Windows"), QStringLiteral("Fusion")}) {
        applyGalleryColours(GalleryColours::Contrast);

        QVERIFY(applyGalleryStyle(key));

        QVERIFY(qobject_cast<ContrastStyle *>(QApplication::style()));
        QCOMPARE(galleryStyleName(), key.toLower());
        applyGalleryColours(GalleryColours::Light);
        QVERIFY(!qobject_cast<ContrastStyle *>(QApplication::style()));
        QCOMPARE(galleryStyleName(), key.toLower());
    }
}

void TestGalleryAppearance::highContrastStaysUnderASheet()
{
    const QString sheet = QStringLiteral("QLineEdit { border: 1px solid palette(mid); }");
    applyGalleryColours(GalleryColours::Contrast);
    qApp->setStyleSheet(sheet);

    QVERIFY(applyGalleryStyle("Windows"));

    QCOMPARE(qApp->styleSheet(), sheet);
    qApp->setStyleSheet(QString());
    QVERIFY(qobject_cast<ContrastStyle *>(QApplication::style()));
    QCOMPARE(galleryStyleName(), "windows");
}

void TestGalleryAppearance::namesAreReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<GalleryColours>("colours");
    QTest::newRow("system") << "system" << GalleryColours::System;
    QTest::newRow("light") << "light" << GalleryColours::Light;
    QTest::newRow("dark") << "dark" << GalleryColours::Dark;
    QTest::newRow("contrast") << "contrast" << GalleryColours::Contrast;
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
