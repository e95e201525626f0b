#include "FocusFrame.h"
#include "GalleryAppearance.h"

#include "Contrast.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <memory>

namespace {

/// As the widgets that paint themselves.
class FramedWidget : public QWidget
{
public:
    FramedWidget() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        FocusFrame::paint(painter, *this, rect());
    }
};

template<class Widget>
std::unique_ptr<QWidget> make()
{
    auto widget = std::make_unique<Widget>();
    widget->setFixedSize(120, 40);
    return widget;
}

/// With a text, as the focus of these is shown around it.
template<class Button>
std::unique_ptr<QWidget> makeButton()
{
    auto button = std::make_unique<Button>(QStringLiteral("Black point"));
    button->setFixedSize(120, 40);
    return button;
}

} // namespace

using Maker = std::unique_ptr<QWidget> (*)();
Q_DECLARE_METATYPE(Maker)

/// What tells a keyboard user where the focus is stands out in each palette.
class TestFocusMarks : public TestBase
{
    Q_OBJECT

private slots:
    void focusIsSeen_data();
    void focusIsSeen();

protected:
    void finish() override { applyGalleryColours(GalleryColours::System); }
};

void TestFocusMarks::focusIsSeen_data()
{
    QTest::addColumn<GalleryColours>("colours");
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<qreal>("ratio");
    const std::pair<const char *, Maker> makers[] = {{"painted widget", make<FramedWidget>},
                                                     {"check box", makeButton<QCheckBox>},
                                                     {"choice", makeButton<QRadioButton>},
                                                     {"button", makeButton<QPushButton>}};
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        for (const auto &[name, maker] : makers) {
            QTest::addRow("contrast, %s at %g", name, ratio)
                << GalleryColours::Contrast << maker << ratio;
        }
        // The other palettes leave the controls to the style.
        for (const auto colours : {GalleryColours::Light, GalleryColours::Dark}) {
            QTest::addRow("%s, painted widget at %g", qPrintable(galleryColoursName(colours)),
                          ratio)
                << colours << Maker(make<FramedWidget>) << ratio;
        }
    }
}

/// Compared with the same widget without the focus, pixel by pixel.
void TestFocusMarks::focusIsSeen()
{
    QFETCH(GalleryColours, colours);
    QFETCH(Maker, maker);
    QFETCH(qreal, ratio);
    applyGalleryColours(colours);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *other = new FramedWidget;
    auto *widget = maker().release();
    layout->addWidget(other);
    layout->addWidget(widget);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    const QImage before = PixelProbe(*widget, ratio).image();

    QTest::keyClick(other, Qt::Key_Tab);
    QTRY_VERIFY(widget->hasFocus());
    const QImage after = PixelProbe(*widget, ratio).image();

    int seen = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const qreal found = Contrast::between(before.pixelColor(x, y), after.pixelColor(x, y));
            seen += found >= Contrast::kGlyph ? 1 : 0;
        }
    }
    QVERIFY2(seen > widget->width() * ratio, qPrintable(QString::number(seen)));
}

int main(int argc, char **argv)
{
    return runTest<TestFocusMarks>(argc, argv);
}

#include "tst_FocusMarks.moc"
