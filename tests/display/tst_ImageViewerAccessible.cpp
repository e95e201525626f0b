#include "ImageViewerAccessible.h"

#include "AccessibleEvents.h"
#include "ImageViewerEvents.h"
#include "TXImageViewer.h"
#include "TestBase.h"

#include <QAccessible>

#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr QSize kViewerSize(400, 300);

/// A picture with one pixel of another colour.
QPixmap pictureWithPixel(const QPoint &pixel, const QColor &colour)
{
    QImage image(100, 80, QImage::Format_ARGB32);
    image.fill(Qt::white);
    image.setPixelColor(pixel, colour);
    return QPixmap::fromImage(image);
}

} // namespace

class TestImageViewerAccessible : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AccessibleEvents::start(false);
        viewer = std::make_unique<TXImageViewer>();
        viewer->resize(kViewerSize);
    }
    void finish() override { viewer.reset(); }

private slots:
    void viewerIsAGraphicWithAName();
    void subclassesHaveTheInterfaceToo();
    void stateTellsOfTheFocus();
    void valueIsTheScale();
    void valueCanBeSet_data();
    void valueCanBeSet();
    void textTellsTheScale_data();
    void textTellsTheScale();
    void textWithoutAPictureSaysSo_data();
    void textWithoutAPictureSaysSo();
    void textTellsThePixelUnderTheMouseInEachPicture();
    void textLeavesThePixelOutWhereThereIsNone_data();
    void textLeavesThePixelOutWhereThereIsNone();
    void textFollowsAPictureThatMovesUnderTheMouse();
    void textTellsPicturesThatDoNotReachThere();
    void textIsPartOfTheDescription();
    void actionsZoom_data();
    void actionsZoom();
    void actionsHaveNamesAndKeys();
    void viewerThatMustNotZoomOffersNothing_data();
    void viewerThatMustNotZoomOffersNothing();
    void otherActionsDoWhatTheyDoForAnyWidget();
    void changesAreTold_data();
    void changesAreTold();
    void samePixelIsToldOnce();
    void nothingIsToldWhenNobodyListens();

private:
    [[nodiscard]] QAccessibleInterface *accessible() const
    {
        return QAccessible::queryAccessibleInterface(viewer.get());
    }
    [[nodiscard]] QString valueText() const { return accessible()->text(QAccessible::Value); }
    void showTwoPictures()
    {
        viewer->setPixmaps({pictureWithPixel({12, 34}, QColor(0xa0, 0xb0, 0xc0)),
                            pictureWithPixel({12, 34}, QColor(0xa0, 0xb1, 0xc0))});
        viewer->scale(2.0, TXImageViewer::Absolute);
    }

    std::unique_ptr<TXImageViewer> viewer;
};

void TestImageViewerAccessible::viewerIsAGraphicWithAName()
{
    QVERIFY(accessible());
    QCOMPARE(accessible()->role(), QAccessible::Graphic);
    QCOMPARE(accessible()->text(QAccessible::Name), "Image viewer");
    viewer->setAccessibleName(QStringLiteral("Print and original"));
    QCOMPARE(accessible()->text(QAccessible::Name), "Print and original");
    QCOMPARE(accessible()->childCount(), 0);
}

void TestImageViewerAccessible::subclassesHaveTheInterfaceToo()
{
    PaintedViewer subclass;
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&subclass);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Graphic);
    QVERIFY(interface->valueInterface());
}

void TestImageViewerAccessible::stateTellsOfTheFocus()
{
    viewer->show();
    QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
    QVERIFY(accessible()->state().focusable);
    viewer->setFocus();
    QVERIFY(accessible()->state().focused);
    viewer->clearFocus();
    QVERIFY(!accessible()->state().focused);
    viewer->setEnabled(false);
    QVERIFY(accessible()->state().disabled);
}

void TestImageViewerAccessible::valueIsTheScale()
{
    viewer->setScaleLimits(8.0, 0.25);
    viewer->setPixmap(picture(200, 150));
    viewer->scale(2.0, TXImageViewer::Absolute);
    QAccessibleValueInterface *value = accessible()->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toDouble(), 2.0);
    QCOMPARE(value->minimumValue().toDouble(), 0.25);
    QCOMPARE(value->maximumValue().toDouble(), 8.0);
    QCOMPARE(value->minimumStepSize().toDouble(), 0.0);
}

void TestImageViewerAccessible::valueCanBeSet_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("scale");
    QTest::newRow("within") << QVariant(3.0) << 3.0;
    QTest::newRow("whole number") << QVariant(4) << 4.0;
    QTest::newRow("too large") << QVariant(100.0) << 16.0;
    QTest::newRow("negative") << QVariant(-1.0) << 0.0078125;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 2.0;
    QTest::newRow("words") << QVariant(QStringLiteral("large")) << 2.0;
    QTest::newRow("nothing") << QVariant() << 2.0;
}

void TestImageViewerAccessible::valueCanBeSet()
{
    QFETCH(const QVariant, value);
    viewer->setPixmap(picture(200, 150));
    accessible()->valueInterface()->setCurrentValue(value);
    QTEST(viewer->scale(), "scale");
}

void TestImageViewerAccessible::textTellsTheScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QString>("text");
    QTest::newRow("half") << 0.5 << QStringLiteral("50 %");
    QTest::newRow("natural") << 1.0 << QStringLiteral("100 %");
    QTest::newRow("large") << 16.0 << QStringLiteral("1,600 %");
    QTest::newRow("least") << 0.0078125 << QStringLiteral("0.7813 %");
    QTest::newRow("a third") << 1.0 / 3.0 << QStringLiteral("33.33 %");
}

void TestImageViewerAccessible::textTellsTheScale()
{
    QFETCH(const double, scale);
    viewer->setPixmap(picture(200, 150));
    viewer->scale(scale, TXImageViewer::Absolute);
    QTEST(valueText(), "text");
}

void TestImageViewerAccessible::textWithoutAPictureSaysSo_data()
{
    QTest::addColumn<QList<QPixmap>>("pictures");
    QTest::newRow("none") << QList<QPixmap>();
    QTest::newRow("null") << QList<QPixmap>{QPixmap(), picture(10, 10)};
}

void TestImageViewerAccessible::textWithoutAPictureSaysSo()
{
    QFETCH(const QList<QPixmap>, pictures);
    QCOMPARE(valueText(), "No picture");
    viewer->setPixmaps(pictures);
    moveMouse(*viewer, {200.0, 150.0});
    QCOMPARE(valueText(), "No picture");
}

void TestImageViewerAccessible::textTellsThePixelUnderTheMouseInEachPicture()
{
    showTwoPictures();
    // In a zone of 200 x 300, pixel (12, 34) of 100 x 80 stands at (24, 138) to (25, 139).
    moveMouse(*viewer, {24.0, 138.0});
    QCOMPARE(valueText(), "200 %, pixel 12, 34: #a0b0c0, #a0b1c0");
    moveMouse(*viewer, {225.0, 139.0});
    QCOMPARE(valueText(), "200 %, pixel 12, 34: #a0b0c0, #a0b1c0");
    moveMouse(*viewer, {226.0, 139.0});
    QCOMPARE(valueText(), "200 %, pixel 13, 34: #ffffff, #ffffff");
}

void TestImageViewerAccessible::textLeavesThePixelOutWhereThereIsNone_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::newRow("above the picture") << QPointF(24.0, 10.0);
    QTest::newRow("last column") << QPointF(198.0, 138.0);
    QTest::newRow("outside of all zones") << QPointF(500.0, 138.0);
}

void TestImageViewerAccessible::textLeavesThePixelOutWhereThereIsNone()
{
    QFETCH(const QPointF, place);
    showTwoPictures();
    QCOMPARE(valueText(), "200 %");
    moveMouse(*viewer, {24.0, 138.0});
    moveMouse(*viewer, place);
    QCOMPARE(valueText(), "200 %");
    moveMouse(*viewer, {24.0, 138.0});
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(viewer.get(), &leave);
    QCOMPARE(valueText(), "200 %");
}

void TestImageViewerAccessible::textFollowsAPictureThatMovesUnderTheMouse()
{
    showTwoPictures();
    moveMouse(*viewer, {26.0, 138.0});
    viewer->setPosition({1.0, 0.0});
    QCOMPARE(valueText(), "200 %, pixel 12, 34: #a0b0c0, #a0b1c0");
}

void TestImageViewerAccessible::textTellsPicturesThatDoNotReachThere()
{
    viewer->setPixmaps({pictureWithPixel({12, 34}, QColor(255, 0, 255, 128)), picture(12, 80),
                        picture(13, 35, QColor(4, 5, 6)), QPixmap()});
    viewer->scale(1.0, TXImageViewer::Absolute);
    // Zones of 100 x 300.
    moveMouse(*viewer, {12.0, 144.0});
    QCOMPARE(valueText(), "100 %, pixel 12, 34: #80ff00ff, none, #040506, none");
}

void TestImageViewerAccessible::textIsPartOfTheDescription()
{
    const auto description = [this] {
        return accessible()->text(QAccessible::Description);
    };
    QCOMPARE(description(), "No picture");
    showTwoPictures();
    moveMouse(*viewer, {24.0, 138.0});
    const QString text = QStringLiteral("200 %, pixel 12, 34: #a0b0c0, #a0b1c0");
    QCOMPARE(description(), text);
    viewer->setToolTip(QStringLiteral("Drag to move"));
    QCOMPARE(description(), text + "\nDrag to move");
    viewer->setAccessibleDescription(QStringLiteral("Side by side"));
    QCOMPARE(description(), "Side by side\n" + text);
}

void TestImageViewerAccessible::actionsZoom_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<double>("scale");
    QTest::newRow("in") << QAccessibleActionInterface::increaseAction() << 8.0;
    QTest::newRow("out") << QAccessibleActionInterface::decreaseAction() << 2.0;
    QTest::newRow("fit") << QStringLiteral("Fit") << 1.0;
    QTest::newRow("unknown") << QStringLiteral("Turn") << 4.0;
}

void TestImageViewerAccessible::actionsZoom()
{
    QFETCH(const QString, action);
    viewer->setPixmap(picture(400, 300));
    viewer->scale(4.0, TXImageViewer::Absolute);
    accessible()->actionInterface()->doAction(action);
    QTEST(viewer->scale(), "scale");
}

void TestImageViewerAccessible::actionsHaveNamesAndKeys()
{
    QAccessibleActionInterface *actions = accessible()->actionInterface();
    const QString in = QAccessibleActionInterface::increaseAction();
    const QString out = QAccessibleActionInterface::decreaseAction();
    const QString fit = QStringLiteral("Fit");
    QCOMPARE(actions->localizedActionName(in), "Zoom in");
    QCOMPARE(actions->localizedActionName(out), "Zoom out");
    QCOMPARE(actions->localizedActionName(fit), "Fit");
    QCOMPARE(actions->keyBindingsForAction(in), QStringList{QStringLiteral("+")});
    QCOMPARE(actions->keyBindingsForAction(out), QStringList{QStringLiteral("-")});
    QCOMPARE(actions->keyBindingsForAction(fit),
             (QStringList{QStringLiteral("Home"), QStringLiteral("0")}));
    QVERIFY(actions->actionNames().contains(in));
    QVERIFY(actions->actionNames().contains(out));
    QVERIFY(actions->actionNames().contains(fit));
}

void TestImageViewerAccessible::viewerThatMustNotZoomOffersNothing_data()
{
    QTest::addColumn<double>("lowerLimit");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QStringList>("actions");
    const QString setFocus = QAccessibleActionInterface::setFocusAction();
    QTest::newRow("zooming turned off") << -1.0 << true << QStringList{setFocus};
    QTest::newRow("disabled") << 0.5 << false << QStringList();
    QTest::newRow("both") << -1.0 << false << QStringList();
}

void TestImageViewerAccessible::viewerThatMustNotZoomOffersNothing()
{
    QFETCH(const double, lowerLimit);
    QFETCH(const bool, isEnabled);
    viewer->setPixmap(picture(400, 300));
    viewer->setScaleLimits(lowerLimit, 16.0);
    viewer->scale(4.0, TXImageViewer::Absolute);
    viewer->setEnabled(isEnabled);
    QAccessibleActionInterface *actions = accessible()->actionInterface();
    QTEST(actions->actionNames(), "actions");
    for (const QString &action :
         {QAccessibleActionInterface::increaseAction(),
          QAccessibleActionInterface::decreaseAction(), QStringLiteral("Fit")}) {
        actions->doAction(action);
        QCOMPARE(viewer->scale(), 4.0);
    }
    for (const double value : {-0.5, 1.0, 8.0}) {
        accessible()->valueInterface()->setCurrentValue(value);
        QCOMPARE(viewer->scale(), 4.0);
    }
}

void TestImageViewerAccessible::otherActionsDoWhatTheyDoForAnyWidget()
{
    viewer->show();
    QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
    viewer->clearFocus();
    QAccessibleActionInterface *actions = accessible()->actionInterface();
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(viewer->hasFocus());
}

void TestImageViewerAccessible::changesAreTold_data()
{
    using Call = std::function<void(TXImageViewer &)>;
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("told");
    const auto add = [](const char *name, const QStringList &told, const Call &call) {
        QTest::newRow(name) << call << told;
    };
    add("factor", {"value 3", "description 300 %, pixel 24, 36: #ffffff, #ffffff"},
        [](TXImageViewer &v) { v.scale(3.0, TXImageViewer::Absolute); });
    add("scaling", {"value 1", "description 100 %"},
        [](TXImageViewer &v) { v.scale(TXImageViewer::ScaleNatural); });
    add("limits", {"value 4", "description 400 %, pixel 31, 37: #ffffff, #ffffff"},
        [](TXImageViewer &v) { v.setScaleLimits(4.0, 5.0); });
    add("wheel", {"value 4", "description 400 %, pixel 31, 37: #ffffff, #ffffff"},
        [](TXImageViewer &v) {
            turnWheelBy(v, {0, 120});
        });
    add("key", {"value 1", "description 100 %"},
        [](TXImageViewer &v) { pressKey(v, Qt::Key_Minus); });
    add("pictures", {"description 200 %"}, [](TXImageViewer &v) { v.setPixmap(picture(10, 10)); });
    add("other pixel", {"description 200 %, pixel 15, 34: #ffffff, #ffffff"}, [](TXImageViewer &v) {
        moveMouse(v, {30.0, 138.0});
    });
    add("moved pictures", {"description 200 %, pixel 9, 34: #ffffff, #ffffff"},
        [](TXImageViewer &v) {
            v.setPosition({3.0, 0.0});
        });
    add("left", {"description 200 %"}, [](TXImageViewer &v) { moveMouse(v, {500.0, 10.0}); });
}

void TestImageViewerAccessible::changesAreTold()
{
    QFETCH(const std::function<void(TXImageViewer &)>, call);
    showTwoPictures();
    moveMouse(*viewer, {24.0, 138.0});
    AccessibleEvents::start(true);
    call(*viewer);
    QTEST(AccessibleEvents::take(), "told");
}

void TestImageViewerAccessible::samePixelIsToldOnce()
{
    showTwoPictures();
    AccessibleEvents::start(true);
    moveMouse(*viewer, {24.0, 138.0});
    const QString pixel = QStringLiteral("description 200 %, pixel 12, 34: #a0b0c0, #a0b1c0");
    QCOMPARE(AccessibleEvents::take(), QStringList{pixel});
    moveMouse(*viewer, {25.0, 139.0});
    moveMouse(*viewer, {224.0, 138.0});
    QCOMPARE(AccessibleEvents::take(), QStringList());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(viewer.get(), &leave);
    QApplication::sendEvent(viewer.get(), &leave);
    QCOMPARE(AccessibleEvents::take(), QStringList{"description 200 %"});
    moveMouse(*viewer, {24.0, 10.0});
    QCOMPARE(AccessibleEvents::take(), QStringList());
}

void TestImageViewerAccessible::nothingIsToldWhenNobodyListens()
{
    showTwoPictures();
    moveMouse(*viewer, {24.0, 138.0});
    viewer->scale(4.0, TXImageViewer::Absolute);
    QCOMPARE(AccessibleEvents::take(), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestImageViewerAccessible>(argc, argv);
}

#include "tst_ImageViewerAccessible.moc"
