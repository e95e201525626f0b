#include "FocusFrame.h"

#include "AccessibleInterfaces.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QPainter>

namespace {

/// Paints nothing but the frame.
class FramedWidget : public QWidget
{
    Q_OBJECT

public:
    explicit FramedWidget(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    bool isPainterKept = false;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(Qt::magenta);
        painter.setBrush(Qt::cyan);
        painter.translate(3, 4);
        const QTransform before = painter.transform();
        FocusFrame::paint(painter, *this, QRect(7, 6, 40, 20));
        isPainterKept = painter.pen() == QPen(Qt::magenta) && painter.brush() == QBrush(Qt::cyan)
            && painter.transform() == before && !painter.testRenderHint(QPainter::Antialiasing);
    }
};

class DerivedWidget : public FramedWidget
{
    Q_OBJECT

public:
    using FramedWidget::FramedWidget;
};

class NamedInterface : public QAccessibleWidget
{
public:
    explicit NamedInterface(FramedWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Whitespace)
    { }
};

/// Two widgets side by side.
struct Window
{
    Window()
    {
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(first);
        layout->addWidget(second);
        first->setFixedSize(60, 40);
        second->setFixedSize(60, 40);
        window.setPalette(QPalette(Qt::white));
    }

    QWidget window;
    FramedWidget *first = new FramedWidget(&window);
    FramedWidget *second = new FramedWidget(&window);
};

bool isEmpty(const PixelProbe &probe)
{
    return probe.countColours(QRect(0, 0, 60, 40)) == 1;
}

} // namespace

/// The frame, and the other thing that all self-painted widgets share: how they get their
/// accessible interface.
class TestFocusFrame : public TestBase
{
    Q_OBJECT

private slots:
    void frameIsWantedForTheKeyboardOnly();
    void clickAfterTabKeepsTheFrameWanted();
    void frameStandsAroundTheArea_data();
    void frameStandsAroundTheArea();
    void withoutFocusNothingIsPainted();
    void interfaceIsMadeForTheClassAndThoseBelow();
};

void TestFocusFrame::frameIsWantedForTheKeyboardOnly()
{
    Window parts;
    parts.window.show();
    parts.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&parts.window));

    QTest::mouseClick(parts.first, Qt::LeftButton);
    QVERIFY(parts.first->hasFocus());
    QVERIFY(!FocusFrame::isWanted(*parts.first));
    QVERIFY(isEmpty(PixelProbe(*parts.first)));

    QTest::keyClick(parts.first, Qt::Key_Tab);
    QVERIFY(parts.second->hasFocus());
    QVERIFY(FocusFrame::isWanted(*parts.second));
    QVERIFY(!FocusFrame::isWanted(*parts.first));
    QVERIFY(!isEmpty(PixelProbe(*parts.second)));
}

void TestFocusFrame::clickAfterTabKeepsTheFrameWanted()
{
    Window parts;
    parts.window.show();
    parts.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&parts.window));
    parts.first->setFocus();
    QTest::keyClick(parts.first, Qt::Key_Tab);
    QVERIFY(parts.second->hasFocus());

    QTest::mouseClick(parts.first, Qt::LeftButton);

    QVERIFY(parts.first->hasFocus());
    QVERIFY(FocusFrame::isWanted(*parts.first));
}

void TestFocusFrame::frameStandsAroundTheArea_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("ratio 1") << 1.0;
    QTest::addRow("ratio 2") << 2.0;
}

void TestFocusFrame::frameStandsAroundTheArea()
{
    QFETCH(qreal, ratio);
    Window parts;
    parts.window.show();
    parts.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&parts.window));
    parts.first->setFocus(Qt::TabFocusReason);
    parts.window.setAttribute(Qt::WA_KeyboardFocusChange);

    const PixelProbe probe(*parts.first, ratio);

    QVERIFY(parts.first->isPainterKept);
    // Where the painter was moved to, and nowhere else.
    for (const QPoint &place : {QPoint(30, 10), QPoint(30, 29), QPoint(10, 20), QPoint(49, 20)}) {
        QCOMPARE(probe.at(place), parts.first->palette().color(QPalette::Highlight));
    }
    for (const QRect &area : {QRect(12, 12, 36, 16), QRect(0, 0, 60, 10), QRect(0, 30, 60, 10),
                              QRect(0, 0, 10, 40), QRect(50, 0, 10, 40)}) {
        QCOMPARE(probe.countColours(area), 1);
    }
}

void TestFocusFrame::withoutFocusNothingIsPainted()
{
    Window parts;
    parts.window.setAttribute(Qt::WA_KeyboardFocusChange);

    QVERIFY(!FocusFrame::isWanted(*parts.first));
    QVERIFY(isEmpty(PixelProbe(*parts.first)));
    QVERIFY(parts.first->isPainterKept);
}

void TestFocusFrame::interfaceIsMadeForTheClassAndThoseBelow()
{
    AccessibleInterfaces::install<FramedWidget, NamedInterface>();
    AccessibleInterfaces::install<FramedWidget, NamedInterface>();
    FramedWidget widget;
    DerivedWidget derived;
    QWidget other;

    const auto roleOf = [](QWidget &asked) {
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&asked);
        return accessible != nullptr ? accessible->role() : QAccessible::NoRole;
    };

    QCOMPARE(roleOf(widget), QAccessible::Whitespace);
    QCOMPARE(roleOf(derived), QAccessible::Whitespace);
    QVERIFY(roleOf(other) != QAccessible::Whitespace);
    const auto make = &AccessibleInterfaces::make<FramedWidget, NamedInterface>;
    QCOMPARE(make("QWidget", &widget), nullptr);
    QCOMPARE(make("", &widget), nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestFocusFrame>(argc, argv);
}

#include "tst_FocusFrame.moc"
