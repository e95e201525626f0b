#include "ContrastStyle.h"
#include "GalleryAppearance.h"

#include "Contrast.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QTreeWidget>

#include <memory>

namespace {

template<class Widget>
std::unique_ptr<QWidget> make()
{
    return std::make_unique<Widget>();
}

std::unique_ptr<QWidget> makeEditableBox()
{
    auto box = std::make_unique<QComboBox>();
    box->setEditable(true);
    return box;
}

std::unique_ptr<QWidget> makeTitledBox()
{
    return std::make_unique<QGroupBox>(QStringLiteral("Title"));
}

std::unique_ptr<QWidget> makeScrollBar()
{
    auto bar = std::make_unique<QScrollBar>(Qt::Horizontal);
    bar->setRange(0, 10);
    return bar;
}

} // namespace

using Maker = std::unique_ptr<QWidget> (*)();
Q_DECLARE_METATYPE(Maker)

class TestContrastStyle : public TestBase
{
    Q_OBJECT

private slots:
    void edgesAreSeenOnBlack_data();
    void edgesAreSeenOnBlack();
    void frameOfABoxIsBelowItsTitle();
    void keyboardIsSeen();
    void flatButtonsHaveNoEdge();
    void fieldsWithoutAFrameGetNone();
    void sizesAreTheStylesOwn();
    void arrowOfASelectedRowIsSeen();

protected:
    void prepare() override { applyGalleryColours(GalleryColours::Contrast); }
    void finish() override;

private:
    static QColor line() { return QApplication::palette().color(QPalette::Mid); }
};

void TestContrastStyle::finish()
{
    applyGalleryStyle("Fusion");
    applyGalleryColours(GalleryColours::System);
}

void TestContrastStyle::edgesAreSeenOnBlack_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<qreal>("ratio");
    const std::pair<const char *, Maker> makers[] = {
        {"button", make<QPushButton>},    {"line", make<QLineEdit>},
        {"box", make<QComboBox>},         {"editable box", makeEditableBox},
        {"number", make<QSpinBox>},       {"check box", make<QCheckBox>},
        {"choice", make<QRadioButton>},   {"group", make<QGroupBox>},
        {"titled group", makeTitledBox},  {"slider", make<QSlider>},
        {"progress", make<QProgressBar>}, {"text", make<QTextEdit>},
        {"tabs", make<QTabWidget>},       {"scroll bar", makeScrollBar},
    };
    for (const char *style : {"Fusion", "Windows"}) {
        for (const auto &[name, maker] : makers) {
            QTest::addRow("%s, %s", style, name) << QString(style) << maker << 1.0;
            QTest::addRow("%s, %s at 1.5", style, name) << QString(style) << maker << 1.5;
        }
    }
}

/// At the left edge, and nothing but the edge: what is inside and has a colour does not help.
void TestContrastStyle::edgesAreSeenOnBlack()
{
    QFETCH(QString, style);
    QFETCH(Maker, maker);
    QFETCH(qreal, ratio);
    QVERIFY(applyGalleryStyle(style));
    const std::unique_ptr<QWidget> widget = maker();
    widget->resize(90, 40);
    widget->ensurePolished();

    QImage picture(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    widget->render(&picture);

    const QImage left = picture.copy(0, 0, qRound(picture.width() / 2.0), picture.height());
    QVERIFY(Contrast::bestOn(left, Qt::black) >= Contrast::kGlyph);
}

void TestContrastStyle::frameOfABoxIsBelowItsTitle()
{
    QGroupBox box(QStringLiteral("Title"));
    box.resize(120, 80);
    const int titleHeight = box.fontMetrics().height();

    const QImage picture = box.grab().toImage();

    QCOMPARE(picture.pixelColor(110, titleHeight / 2), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(0, titleHeight / 2), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(0, 60), line());
    QCOMPARE(picture.pixelColor(60, 79), line());
    QCOMPARE(picture.pixelColor(119, 60), line());
}

void TestContrastStyle::keyboardIsSeen()
{
    QLineEdit field;
    field.resize(90, 24);
    field.show();
    field.activateWindow();
    QTRY_VERIFY(field.hasFocus());

    const QColor edge = field.grab().toImage().pixelColor(0, 12);

    QCOMPARE(edge, QApplication::palette().color(QPalette::Highlight));
}

void TestContrastStyle::flatButtonsHaveNoEdge()
{
    QPushButton button;
    button.setFlat(true);
    button.resize(60, 30);

    QCOMPARE(button.grab().toImage().pixelColor(0, 15), QColor(Qt::black));
    button.setDown(true);
    QCOMPARE(button.grab().toImage().pixelColor(0, 15), line());
}

void TestContrastStyle::fieldsWithoutAFrameGetNone()
{
    QComboBox box;
    box.setFrame(false);
    box.setEditable(true);
    box.resize(90, 30);

    QCOMPARE(box.grab().toImage().pixelColor(0, 15), QColor(Qt::black));
}

void TestContrastStyle::sizesAreTheStylesOwn()
{
    const QPushButton button(QStringLiteral("Text"));
    const QComboBox box;
    const QSize buttonSize = button.sizeHint();
    const QSize boxSize = box.sizeHint();

    applyGalleryColours(GalleryColours::Light);

    QCOMPARE(button.sizeHint(), buttonSize);
    QCOMPARE(box.sizeHint(), boxSize);
}

void TestContrastStyle::arrowOfASelectedRowIsSeen()
{
    QTreeWidget tree;
    tree.setHeaderHidden(true);
    auto *item = new QTreeWidgetItem(&tree, {QStringLiteral("x")});
    new QTreeWidgetItem(item, {QStringLiteral("y")});
    tree.setCurrentItem(item);
    tree.resize(120, 60);
    tree.show();
    const QRect row = tree.visualItemRect(item);

    const QImage arrow =
        tree.viewport()->grab(QRect(0, row.top(), row.left(), row.height())).toImage();

    QCOMPARE(Contrast::groundOf(arrow), QApplication::palette().color(QPalette::Highlight));
    QVERIFY(Contrast::ofText(arrow) >= Contrast::kGlyph);
}

int main(int argc, char **argv)
{
    return runTest<TestContrastStyle>(argc, argv);
}

#include "tst_ContrastStyle.moc"
