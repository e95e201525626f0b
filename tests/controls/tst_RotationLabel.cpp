#include "RotationLabel.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int kSide = 120;

/// The area in which the label paints something, in device-independent pixels.
QRect inkOf(RotationLabel &label, qreal ratio = 1.0)
{
    const PixelProbe probe(label, ratio);
    const QColor background = label.palette().color(QPalette::Window);
    QRect ink;
    for (int y = 0; y < label.height(); ++y) {
        for (int x = 0; x < label.width(); ++x) {
            if (!probe.isNear({x, y}, background, 40)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// How dark the row or the column of the ink is, as a share of its length.
double inkInRow(RotationLabel &label, const QRect &row)
{
    const PixelProbe probe(label);
    const QColor background = label.palette().color(QPalette::Window);
    int dark = 0;
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left(); x <= row.right(); ++x) {
            dark += probe.isNear({x, y}, background, 40) ? 0 : 1;
        }
    }
    return double(dark) / (row.width() * row.height());
}

/// Counts what a widget is told.
class EventCounter : public QObject
{
public:
    explicit EventCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        ++counts[event->type()];
        return false;
    }

    QHash<QEvent::Type, int> counts;
};

} // namespace

class TestRotationLabel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { label.reset(); }

private slots:
    void startsUpright();
    void optionsHaveTheirNumbers();
    void hintIsTheTextsSize_data();
    void hintIsTheTextsSize();
    void hintFollowsTextAndFont();
    void hintOfNoText();
    void hintHasNoFrame();
    void settingTheRotationOnlyStores();
    void fontChangeAsksForRoomAndPaint();
    void textIsPaintedTurned_data();
    void textIsPaintedTurned();
    void alignmentTurnsAlong_data();
    void alignmentTurnsAlong();
    void lettersAreTurnedNotMirrored();
    void marginsMoveTurnedTextByTwiceTheirWidth();
    void frameIsPainted();
    void markupIsShownAsItIs();
    void ampersandIsShownAsItIs();
    void pixmapIsNotShown();
    void unknownRotationIsTransposedOnly();
    void emptyAndTinyLabelsDoNoHarm();
    void disabledTextIsPaler();
    void assistiveToolsReadTheText();

private:
    void turn(RotationLabel::RotationOption option)
    {
        label->setRotation(option);
        label->update();
    }

    std::unique_ptr<RotationLabel> label;
};

void TestRotationLabel::prepare()
{
    label = std::make_unique<RotationLabel>(nullptr);
    label->resize(kSide, kSide);
    label->setText("Luminance");
}

void TestRotationLabel::startsUpright()
{
    QCOMPARE(label->rotation(), RotationLabel::NoRotation);
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void TestRotationLabel::optionsHaveTheirNumbers()
{
    QCOMPARE(int(RotationLabel::NoRotation), 0);
    QCOMPARE(int(RotationLabel::RotateClockwise), 1);
    QCOMPARE(int(RotationLabel::RotateCounterClockwise), 2);
    QCOMPARE(QMetaEnum::fromType<RotationLabel::RotationOption>().keyCount(), 3);
}

void TestRotationLabel::hintIsTheTextsSize_data()
{
    QTest::addColumn<RotationLabel::RotationOption>("option");
    QTest::addColumn<bool>("isTransposed");
    QTest::newRow("upright") << RotationLabel::NoRotation << false;
    QTest::newRow("clockwise") << RotationLabel::RotateClockwise << true;
    QTest::newRow("counter-clockwise") << RotationLabel::RotateCounterClockwise << true;
    QTest::newRow("unknown") << RotationLabel::RotationOption(3) << true;
}

void TestRotationLabel::hintIsTheTextsSize()
{
    QFETCH(RotationLabel::RotationOption, option);
    QFETCH(bool, isTransposed);
    const QFontMetrics metrics(label->font());
    const QSize upright(metrics.horizontalAdvance("Luminance"), metrics.height());
    QVERIFY(upright.width() > 2 * upright.height());

    label->setRotation(option);

    QCOMPARE(label->rotation(), option);
    QCOMPARE(label->sizeHint(), isTransposed ? upright.transposed() : upright);
    QCOMPARE(label->minimumSizeHint(), label->sizeHint());
}

void TestRotationLabel::hintFollowsTextAndFont()
{
    label->setRotation(RotationLabel::RotateClockwise);
    const QSize before = label->sizeHint();
    label->setText("Luminance factor");
    QVERIFY(label->sizeHint().height() > before.height());
    QCOMPARE(label->sizeHint().width(), before.width());

    // Only polishing brings this font, and the hint is right at the first question.
    RotationLabel styled;
    styled.setText("Luminance");
    styled.setStyleSheet("font-size: 40px;");
    QVERIFY(styled.sizeHint().height() > 2 * before.width());
}

void TestRotationLabel::hintOfNoText()
{
    label->clear();
    QCOMPARE(label->sizeHint(), QSize(0, label->fontMetrics().height()));
    label->setRotation(RotationLabel::RotateCounterClockwise);
    QCOMPARE(label->sizeHint(), QSize(label->fontMetrics().height(), 0));
}

void TestRotationLabel::hintHasNoFrame()
{
    const QSize before = label->sizeHint();
    label->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    label->setLineWidth(7);
    label->setMargin(3);
    QCOMPARE(label->sizeHint(), before);
}

void TestRotationLabel::settingTheRotationOnlyStores()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *inner = new RotationLabel(&window);
    inner->setText("Hue");
    layout->addWidget(inner);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    EventCounter ofLabel(inner);
    EventCounter ofWindow(&window);

    inner->setRotation(RotationLabel::RotateClockwise);
    QCoreApplication::processEvents();

    QCOMPARE(ofLabel.counts.value(QEvent::Paint), 0);
    QCOMPARE(ofWindow.counts.value(QEvent::LayoutRequest), 0);
    QCOMPARE(inner->rotation(), RotationLabel::RotateClockwise);
}

void TestRotationLabel::fontChangeAsksForRoomAndPaint()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *inner = new RotationLabel(&window);
    inner->setText("Hue");
    inner->setRotation(RotationLabel::RotateCounterClockwise);
    layout->addWidget(inner);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    EventCounter ofLabel(inner);
    EventCounter ofWindow(&window);

    QFont font = inner->font();
    font.setPixelSize(60);
    inner->setFont(font);
    QCoreApplication::processEvents();

    QVERIFY(ofLabel.counts.value(QEvent::Paint) > 0);
    QVERIFY(ofWindow.counts.value(QEvent::LayoutRequest) > 0);
    QVERIFY(inner->height() >= QFontMetrics(font).horizontalAdvance("Hue"));
}

void TestRotationLabel::textIsPaintedTurned_data()
{
    QTest::addColumn<RotationLabel::RotationOption>("option");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QPalette>("palette");
    for (const int option : {0, 1, 2}) {
        for (const qreal ratio : {1.0, 2.0}) {
            for (const bool isDark : {false, true}) {
                QTest::addRow("%d, ratio %g, %s", option, ratio, isDark ? "dark" : "light")
                    << RotationLabel::RotationOption(option) << ratio
                    << (isDark ? darkPalette() : QPalette());
            }
        }
    }
}

/// The text begins at the left, runs down from the top, or up from the bottom.
void TestRotationLabel::textIsPaintedTurned()
{
    QFETCH(RotationLabel::RotationOption, option);
    QFETCH(qreal, ratio);
    QFETCH(QPalette, palette);
    label->setPalette(palette);
    turn(option);
    const QSize text = label->sizeHint();

    const QRect ink = inkOf(*label, ratio);

    QVERIFY(ink.isValid());
    const int middle = kSide / 2;
    if (option == RotationLabel::NoRotation) {
        QVERIFY(ink.left() <= 2);
        QVERIFY(qAbs(ink.right() - text.width()) <= 3);
        QVERIFY(qAbs(ink.center().y() - middle) <= 3);
    } else {
        const bool isDown = option == RotationLabel::RotateClockwise;
        QVERIFY(isDown ? ink.top() <= 2 : ink.bottom() >= kSide - 3);
        QVERIFY(qAbs(ink.height() - text.height()) <= 4);
        QVERIFY(qAbs(ink.center().x() - middle) <= 3);
        QVERIFY(ink.width() < text.width());
    }
}

void TestRotationLabel::alignmentTurnsAlong_data()
{
    QTest::addColumn<RotationLabel::RotationOption>("option");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Qt::Edges>("edges");
    const auto add = [](const char *name, RotationLabel::RotationOption option,
                        Qt::Alignment alignment, Qt::Edges edges) {
        QTest::newRow(name) << option << alignment << edges;
    };
    add("upright", RotationLabel::NoRotation, Qt::AlignRight | Qt::AlignTop,
        Qt::RightEdge | Qt::TopEdge);
    add("clockwise, start and top", RotationLabel::RotateClockwise, Qt::AlignLeft | Qt::AlignTop,
        Qt::TopEdge | Qt::RightEdge);
    add("clockwise, end and bottom", RotationLabel::RotateClockwise,
        Qt::AlignRight | Qt::AlignBottom, Qt::BottomEdge | Qt::LeftEdge);
    add("counter-clockwise, start and top", RotationLabel::RotateCounterClockwise,
        Qt::AlignLeft | Qt::AlignTop, Qt::BottomEdge | Qt::LeftEdge);
    add("counter-clockwise, end and bottom", RotationLabel::RotateCounterClockwise,
        Qt::AlignRight | Qt::AlignBottom, Qt::TopEdge | Qt::RightEdge);
}

void TestRotationLabel::alignmentTurnsAlong()
{
    QFETCH(RotationLabel::RotationOption, option);
    QFETCH(Qt::Alignment, alignment);
    QFETCH(Qt::Edges, edges);
    label->setAlignment(alignment);
    turn(option);

    const QRect ink = inkOf(*label);

    constexpr int kNear = 8;
    QCOMPARE(ink.left() < kNear, edges.testFlag(Qt::LeftEdge));
    QCOMPARE(ink.right() >= kSide - kNear, edges.testFlag(Qt::RightEdge));
    QCOMPARE(ink.top() < kNear, edges.testFlag(Qt::TopEdge));
    QCOMPARE(ink.bottom() >= kSide - kNear, edges.testFlag(Qt::BottomEdge));
}

/// An L has its stem on the left and its foot below.
void TestRotationLabel::lettersAreTurnedNotMirrored()
{
    QFont font = label->font();
    font.setPixelSize(60);
    font.setBold(true);
    label->setFont(font);
    label->setText("L");
    constexpr double kFull = 0.8;

    turn(RotationLabel::RotateClockwise);
    QRect ink = inkOf(*label);
    QVERIFY(inkInRow(*label, {ink.left(), ink.top() + 4, ink.width(), 1}) > kFull);
    QVERIFY(inkInRow(*label, {ink.left() + 4, ink.top(), 1, ink.height()}) > kFull);
    QVERIFY(inkInRow(*label, {ink.left(), ink.bottom() - 4, ink.width(), 1}) < 1 - kFull / 2);

    turn(RotationLabel::RotateCounterClockwise);
    ink = inkOf(*label);
    QVERIFY(inkInRow(*label, {ink.left(), ink.bottom() - 4, ink.width(), 1}) > kFull);
    QVERIFY(inkInRow(*label, {ink.right() - 4, ink.top(), 1, ink.height()}) > kFull);
    QVERIFY(inkInRow(*label, {ink.left(), ink.top() + 4, ink.width(), 1}) < 1 - kFull / 2);
}

void TestRotationLabel::marginsMoveTurnedTextByTwiceTheirWidth()
{
    constexpr int kMargin = 10;
    label->setAlignment(Qt::AlignCenter);
    const auto centreWith = [this](RotationLabel::RotationOption option, int margin) {
        label->setContentsMargins(margin, margin, margin, margin);
        turn(option);
        return inkOf(*label).center();
    };
    for (const int option : {0, 1, 2}) {
        const auto rotation = RotationLabel::RotationOption(option);
        const QPoint moved = centreWith(rotation, kMargin) - centreWith(rotation, 0);
        const QPoint expected = option == 0 ? QPoint(0, 0)
            : option == 1                   ? QPoint(-2 * kMargin, 0)
                                            : QPoint(0, -2 * kMargin);
        QCOMPARE(moved, expected);
    }
}

void TestRotationLabel::frameIsPainted()
{
    label->setPalette(darkPalette());
    label->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    label->setLineWidth(3);
    label->setText("Hue");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const int option : {0, 1, 2}) {
            turn(RotationLabel::RotationOption(option));
            const PixelProbe probe(*label, ratio);
            for (const QPoint &place :
                 {QPoint(1, 60), QPoint(kSide - 2, 60), QPoint(60, 1), QPoint(60, kSide - 2)}) {
                QVERIFY(probe.isNear(place, Qt::white));
            }
            QVERIFY(probe.isNear({110, 110}, darkPalette().color(QPalette::Window)));
        }
    }
}

void TestRotationLabel::markupIsShownAsItIs()
{
    label->setText("<b>L</b>");
    label->setTextFormat(Qt::RichText);
    const int advance = label->fontMetrics().horizontalAdvance("<b>L</b>");

    QCOMPARE(label->sizeHint().width(), advance);
    QVERIFY(qAbs(inkOf(*label).width() - advance) <= 4);
}

void TestRotationLabel::ampersandIsShownAsItIs()
{
    QWidget buddy;
    label->setText("W");
    const QRect plain = inkOf(*label);
    label->setBuddy(&buddy);
    label->setText("&W");

    const QRect ink = inkOf(*label);

    QVERIFY(ink.width() >= plain.width() + label->fontMetrics().horizontalAdvance('&') - 3);
    // No line below the letter either.
    QVERIFY(qAbs(ink.bottom() - plain.bottom()) <= 1);
}

void TestRotationLabel::pixmapIsNotShown()
{
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::red);
    label->setPixmap(pixmap);
    QVERIFY(!inkOf(*label).isValid());
    QCOMPARE(label->sizeHint().width(), 0);
}

void TestRotationLabel::unknownRotationIsTransposedOnly()
{
    label->resize(kSide, 30);
    label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    turn(RotationLabel::RotationOption(3));
    // The contents' rectangle is 30 wide and 120 high: its bottom is outside, and what is wider is
    // cut.
    QVERIFY(!inkOf(*label).isValid());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const int width = inkOf(*label).width();
    QVERIFY(width > 20 && width <= 30);
}

void TestRotationLabel::emptyAndTinyLabelsDoNoHarm()
{
    for (const int option : {0, 1, 2}) {
        turn(RotationLabel::RotationOption(option));
        label->setText("Luminance");
        label->resize(1, 1);
        QCOMPARE(label->grab().size(), QSize(1, 1));
        label->clear();
        label->resize(kSide, kSide);
        QVERIFY(!inkOf(*label).isValid());
    }
}

void TestRotationLabel::disabledTextIsPaler()
{
    turn(RotationLabel::RotateClockwise);
    const QRect ink = inkOf(*label);
    const PixelProbe enabled(*label);
    label->setEnabled(false);
    const PixelProbe disabled(*label);
    int darkest = 255;
    int darkestDisabled = 255;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x) {
            darkest = qMin(darkest, enabled.at({x, y}).lightness());
            darkestDisabled = qMin(darkestDisabled, disabled.at({x, y}).lightness());
        }
    }
    QVERIFY(darkestDisabled > darkest + 50);
}

void TestRotationLabel::assistiveToolsReadTheText()
{
    label->setRotation(RotationLabel::RotateCounterClockwise);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(label.get());
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Name), "Luminance");
    QCOMPARE(accessible->role(), QAccessible::StaticText);
}

int main(int argc, char **argv)
{
    return runTest<TestRotationLabel>(argc, argv);
}

#include "tst_RotationLabel.moc"
