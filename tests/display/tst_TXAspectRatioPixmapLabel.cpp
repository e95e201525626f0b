#include "TXAspectRatioPixmapLabel.h"

#include "PixelProbe.h"
#include "TestBase.h"

#include <QPixmap>
#include <QVBoxLayout>

#include <memory>

namespace {

QPixmap picture(const QSize &size, qreal ratio = 1.0)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

class TestTXAspectRatioPixmapLabel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { label = std::make_unique<TXAspectRatioPixmapLabel>(); }
    void finish() override { label.reset(); }

private slots:
    void newLabelIsPlain();
    void flagsReachTheWindow();
    void marginsTakeUpWhatIsTooMuch_data();
    void marginsTakeUpWhatIsTooMuch();
    void changeOfSizeRenewsTheMargins();
    void withoutAPictureMarginsStay();
    void nullPictureKeepsTheMargins();
    void labelWithoutASizeKeepsTheMargins_data();
    void labelWithoutASizeKeepsTheMargins();
    void pictureSetThroughTheBaseIsNotFollowed();
    void marginsDoNotDependOnTheDensityOfThePicture();
    void labelInALayoutCanBeMadeSmallerAgain_data();
    void labelInALayoutCanBeMadeSmallerAgain();
    void hintsAreThePicturesOrTheTexts();
    void hintsKeepRoomForTheHostsMargins();
    void scaledPictureKeepsItsProportions_data();
    void scaledPictureKeepsItsProportions();

private:
    std::unique_ptr<TXAspectRatioPixmapLabel> label;
};

void TestTXAspectRatioPixmapLabel::newLabelIsPlain()
{
    QVERIFY(label->pixmap().isNull());
    QVERIFY(!label->hasScaledContents());
    QCOMPARE(label->contentsMargins(), QMargins());
}

void TestTXAspectRatioPixmapLabel::flagsReachTheWindow()
{
    QWidget parent;
    const TXAspectRatioPixmapLabel tool(&parent, Qt::Tool);
    QCOMPARE(tool.parentWidget(), &parent);
    QVERIFY(tool.windowFlags().testFlag(Qt::Tool));
}

void TestTXAspectRatioPixmapLabel::marginsTakeUpWhatIsTooMuch_data()
{
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<QSize>("labelSize");
    QTest::addColumn<QMargins>("margins");
    const auto add = [](const char *name, QSize pictureSize, QSize labelSize, QMargins margins) {
        QTest::newRow(name) << pictureSize << labelSize << margins;
    };
    add("same proportions", {40, 20}, {200, 100}, {0, 0, 0, 0});
    add("too high", {40, 20}, {200, 160}, {0, 30, 0, 30});
    add("too wide", {40, 20}, {300, 100}, {50, 0, 50, 0});
    add("too high, odd rest", {40, 20}, {200, 161}, {0, 30, 0, 30});
    add("too wide, odd rest", {40, 20}, {301, 100}, {50, 0, 50, 0});
    // 2 * 101 / 3 is 67, and half of 33 is 16; halved one by one, 50 - 33 would be 17.
    add("too high, fractions cut off", {3, 2}, {101, 100}, {0, 16, 0, 16});
    add("too wide, fractions cut off", {2, 3}, {100, 101}, {16, 0, 16, 0});
    add("fraction below a pixel", {40, 20}, {201, 100}, {0, 0, 0, 0});
    add("far too high", {30000, 1}, {100, 100}, {0, 50, 0, 50});
    add("far too wide", {1, 30000}, {100, 100}, {50, 0, 50, 0});
    add("one pixel", {1, 1}, {1, 1}, {0, 0, 0, 0});
    // Of these, one product or both pass the range of int.
    add("large and too high", {1075, 1073}, {2000000, 2000000}, {0, 1860, 0, 1860});
    add("large and too wide", {1073, 1075}, {2000000, 2000000}, {1860, 0, 1860, 0});
    add("most that a widget keeps", {2, 1}, {2, 65535}, {0, 32767, 0, 32767});
    add("more than a widget keeps, high", {2, 1}, {2, 100000}, {0, 32767, 0, 32767});
    add("more than a widget keeps, wide", {1, 2}, {100000, 2}, {32767, 0, 32767, 0});
    add("large, exactly filled", {2000, 1999}, {2000000, 1999000}, {0, 0, 0, 0});
}

void TestTXAspectRatioPixmapLabel::marginsTakeUpWhatIsTooMuch()
{
    QFETCH(const QSize, pictureSize);
    QFETCH(const QSize, labelSize);
    label->resize(labelSize);
    label->setPixmap(picture(pictureSize));
    QCOMPARE(label->pixmap().size(), pictureSize);
    QCOMPARE(label->size(), labelSize);
    QTEST(label->contentsMargins(), "margins");
}

void TestTXAspectRatioPixmapLabel::changeOfSizeRenewsTheMargins()
{
    label->resize(300, 100);
    label->setPixmap(picture({40, 20}));
    label->show();
    label->resize(200, 160);
    QCOMPARE(label->contentsMargins(), QMargins(0, 30, 0, 30));
    label->resize(300, 100);
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
}

void TestTXAspectRatioPixmapLabel::withoutAPictureMarginsStay()
{
    label->setContentsMargins(1, 2, 3, 4);
    label->updateMargins();
    label->show();
    label->resize(300, 500);
    QCOMPARE(label->contentsMargins(), QMargins(1, 2, 3, 4));
}

void TestTXAspectRatioPixmapLabel::nullPictureKeepsTheMargins()
{
    label->resize(300, 100);
    label->setPixmap(picture({40, 20}));
    label->setPixmap(QPixmap());
    QVERIFY(label->pixmap().isNull());
    label->updateMargins();
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
}

void TestTXAspectRatioPixmapLabel::labelWithoutASizeKeepsTheMargins_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("no width") << QSize(0, 100);
    QTest::newRow("no height") << QSize(100, 0);
    QTest::newRow("neither") << QSize(0, 0);
}

void TestTXAspectRatioPixmapLabel::labelWithoutASizeKeepsTheMargins()
{
    QFETCH(const QSize, size);
    label->setContentsMargins(1, 2, 3, 4);
    label->setMinimumSize(0, 0);
    label->resize(size);
    QCOMPARE(label->size(), size);
    label->setPixmap(picture({40, 20}));
    QCOMPARE(label->contentsMargins(), QMargins(1, 2, 3, 4));
}

void TestTXAspectRatioPixmapLabel::pictureSetThroughTheBaseIsNotFollowed()
{
    label->resize(300, 100);
    label->setPixmap(picture({40, 20}));
    static_cast<QLabel *>(label.get())->setPixmap(picture({20, 40}));
    label->updateMargins();
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
}

void TestTXAspectRatioPixmapLabel::marginsDoNotDependOnTheDensityOfThePicture()
{
    label->resize(300, 100);
    label->setPixmap(picture({80, 40}, 2.0));
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
}

void TestTXAspectRatioPixmapLabel::labelInALayoutCanBeMadeSmallerAgain_data()
{
    QTest::addColumn<QSize>("large");
    QTest::newRow("high") << QSize(200, 600);
    QTest::newRow("wide") << QSize(700, 100);
    QTest::newRow("both") << QSize(500, 600);
}

void TestTXAspectRatioPixmapLabel::labelInALayoutCanBeMadeSmallerAgain()
{
    QFETCH(const QSize, large);
    const QSize pictureSize(200, 100);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *inLayout = new TXAspectRatioPixmapLabel(&window);
    layout->addWidget(inLayout);
    inLayout->setPixmap(picture(pictureSize));
    window.resize(large);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(inLayout->size(), large);
    QVERIFY(inLayout->contentsMargins() != QMargins());

    QCOMPARE(inLayout->sizeHint(), pictureSize);
    QCOMPARE(inLayout->minimumSizeHint(), pictureSize);
    layout->activate();
    QCOMPARE(window.minimumSize(), pictureSize);
    window.resize(pictureSize);
    QCOMPARE(inLayout->size(), pictureSize);
    QCOMPARE(inLayout->contentsMargins(), QMargins());
}

void TestTXAspectRatioPixmapLabel::hintsAreThePicturesOrTheTexts()
{
    label->resize(300, 100);
    label->setPixmap(picture({80, 40}, 2.0));
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
    QCOMPARE(label->sizeHint(), QSize(40, 20));

    label->setText(QStringLiteral("No picture yet"));
    QCOMPARE(label->contentsMargins(), QMargins(50, 0, 50, 0));
    const QLabel plain(label->text());
    QCOMPARE(label->sizeHint(), plain.sizeHint());
    QCOMPARE(label->minimumSizeHint(), plain.minimumSizeHint());
}

void TestTXAspectRatioPixmapLabel::hintsKeepRoomForTheHostsMargins()
{
    label->setContentsMargins(1, 2, 3, 4);
    label->QLabel::setPixmap(picture({40, 20}));
    QCOMPARE(label->sizeHint(), QSize(44, 26));

    label->resize(300, 100);
    label->setPixmap(picture({40, 20}));
    QCOMPARE(label->sizeHint(), QSize(40, 20));
    label->setContentsMargins(0, 2, 0, 4);
    QCOMPARE(label->sizeHint(), QSize(40, 26));
    QCOMPARE(label->minimumSizeHint(), QSize(40, 26));
}

void TestTXAspectRatioPixmapLabel::scaledPictureKeepsItsProportions_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("shown");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("wide, ratio 1") << QSize(300, 100) << QRect(50, 0, 200, 100) << 1.0;
    QTest::newRow("wide, ratio 2") << QSize(300, 100) << QRect(50, 0, 200, 100) << 2.0;
    QTest::newRow("high, ratio 1") << QSize(200, 160) << QRect(0, 30, 200, 100) << 1.0;
    QTest::newRow("high, ratio 2") << QSize(200, 160) << QRect(0, 30, 200, 100) << 2.0;
}

void TestTXAspectRatioPixmapLabel::scaledPictureKeepsItsProportions()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, shown);
    QFETCH(const qreal, ratio);
    label->setScaledContents(true);
    label->resize(size);
    label->setPixmap(picture({40, 20}, ratio));
    const PixelProbe probe(*label, ratio);
    const QPoint middle = shown.center();
    for (const QPoint &place : {shown.topLeft(), shown.bottomRight(), middle}) {
        QCOMPARE(probe.at(place), QColor(Qt::red));
    }
    const QRect around = shown.adjusted(-1, -1, 1, 1);
    for (const QPoint &place :
         {QPoint(around.left(), middle.y()), QPoint(around.right(), middle.y()),
          QPoint(middle.x(), around.top()), QPoint(middle.x(), around.bottom())}) {
        if (label->rect().contains(place)) {
            QVERIFY(probe.at(place) != QColor(Qt::red));
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXAspectRatioPixmapLabel>(argc, argv);
}

#include "tst_TXAspectRatioPixmapLabel.moc"
