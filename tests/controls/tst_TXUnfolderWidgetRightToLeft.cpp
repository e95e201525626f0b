#include "TXUnfolderWidget.h"

#include "ApplicationPicture.h"
#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr QSize kSize(240, 80);
constexpr int kTriangle = 13;

/// Red at the left, green at the right: a picture that shows when it is mirrored.
QImage twoSided()
{
    QImage picture(kTriangle, kTriangle, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    for (int x = kTriangle / 2; x < kTriangle; ++x) {
        for (int y = 0; y < kTriangle; ++y) {
            picture.setPixelColor(x, y, Qt::green);
        }
    }
    return picture;
}

/// Where the two pictures differ, in device-independent pixels.
QRect difference(const QImage &left, const QImage &right)
{
    QRect area;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            area |= left.pixel(x, y) == right.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return area;
}

QRect areaOf(const QColor &colour, const QImage &picture)
{
    QImage without = picture;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour) {
                without.setPixelColor(x, y, Qt::transparent);
            }
        }
    }
    return difference(picture, without);
}

} // namespace

class TestTXUnfolderWidgetRightToLeft : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void allButTheTitleIsMirrored_data() { addLooks(); }
    void allButTheTitleIsMirrored();
    void triangleStandsAtTheRightAndPointsToTheLeft_data();
    void triangleStandsAtTheRightAndPointsToTheLeft();
    void titleIsWhole_data();
    void titleIsWhole();
    void titleStandsBesideTheTriangle();
    void clicksFindWhatIsSeen();
    void clicksElsewhereDoNothing();
    void pressThatLeavesTheTitleDoesNothing();
    void sheetOfAHostIsLeftToTheStyle();

private:
    static void addLooks();
    [[nodiscard]] QImage picture(Qt::LayoutDirection direction, qreal ratio = 1)
    {
        box->setLayoutDirection(direction);
        return PixelProbe(*box, ratio).image();
    }
    /// What the title puts on the box.
    [[nodiscard]] QRect ink(Qt::LayoutDirection direction);

    std::unique_ptr<ApplicationPicture> closed;
    std::unique_ptr<ApplicationPicture> open;
    std::unique_ptr<TXUnfolderWidget> box;
};

void TestTXUnfolderWidgetRightToLeft::prepare()
{
    closed = std::make_unique<ApplicationPicture>("triangle_closed.png", twoSided());
    open = std::make_unique<ApplicationPicture>("triangle_open.png", twoSided());
    QVERIFY(closed->isInstalled() && open->isInstalled());
    box = std::make_unique<TXUnfolderWidget>(nullptr);
    box->setTitle("Conversion");
    new QVBoxLayout(box.get());
    box->resize(kSize);
}

void TestTXUnfolderWidgetRightToLeft::finish()
{
    box.reset();
    open.reset();
    closed.reset();
}

void TestTXUnfolderWidgetRightToLeft::addLooks()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("isFlat");
    QTest::addColumn<double>("ratio");
    for (const char *style : {"fusion", "windows"}) {
        for (const bool isFlat : {true, false}) {
            for (const double ratio : {1.0, 2.0}) {
                // Lines of the other style lie between pixels there.
                if (ratio > 1 && style != QLatin1String("fusion")) {
                    continue;
                }
                QTest::addRow("%s, %s, ratio %.0f", style, isFlat ? "flat" : "framed", ratio)
                    << style << isFlat << ratio;
            }
        }
    }
}

QRect TestTXUnfolderWidgetRightToLeft::ink(Qt::LayoutDirection direction)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::blue);
    box->setPalette(palette);
    const QImage with = picture(direction);
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Window));
    box->setPalette(palette);
    return difference(with, picture(direction));
}

void TestTXUnfolderWidgetRightToLeft::allButTheTitleIsMirrored()
{
    QFETCH(QString, style);
    QFETCH(bool, isFlat);
    QFETCH(double, ratio);
    const QString before = QApplication::style()->name();
    QApplication::setStyle(style);
    box->setFlat(isFlat);
    box->setTitle("          ");

    const QImage leftToRight = picture(Qt::LeftToRight, ratio);
    const QImage rightToLeft = picture(Qt::RightToLeft, ratio);
    QApplication::setStyle(before);

    QCOMPARE(rightToLeft, leftToRight.mirrored(true, false));
}

void TestTXUnfolderWidgetRightToLeft::triangleStandsAtTheRightAndPointsToTheLeft_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestTXUnfolderWidgetRightToLeft::triangleStandsAtTheRightAndPointsToTheLeft()
{
    QFETCH(double, ratio);
    for (const bool isOpen : {true, false}) {
        box->setChecked(isOpen);
        const QImage image = picture(Qt::RightToLeft, ratio);
        const QRect red = areaOf(Qt::red, image);
        const QRect green = areaOf(Qt::green, image);
        QCOMPARE((red | green).size(), QSize(kTriangle, kTriangle) * ratio);
        QVERIFY(green.right() < red.left());
        QVERIFY(red.right() >= image.width() - 12 * ratio);
    }
}

void TestTXUnfolderWidgetRightToLeft::titleIsWhole_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("plain") << "Conversion";
    QTest::newRow("mnemonic") << "C&onversion";
    QTest::newRow("wide end") << "WWWW";
    QTest::newRow("Arabic") << QString::fromUtf8("التحويل");
    QTest::newRow("Arabic with mnemonic") << QString::fromUtf8("التحويل (&O)");
}

void TestTXUnfolderWidgetRightToLeft::titleIsWhole()
{
    QFETCH(QString, title);
    box->setTitle(title);
    const int width = ink(Qt::RightToLeft).width();
    // As it is without any box around it.
    QImage room(kSize, QImage::Format_RGB32);
    room.fill(Qt::white);
    const QImage empty = room;
    QPainter painter(&room);
    painter.setFont(box->font());
    painter.drawText(room.rect(), Qt::AlignCenter | Qt::TextShowMnemonic, title);
    painter.end();
    QVERIFY(qAbs(difference(room, empty).width() - width) <= 1);
}

void TestTXUnfolderWidgetRightToLeft::titleStandsBesideTheTriangle()
{
    const QRect title = ink(Qt::RightToLeft);
    const QRect triangle = areaOf(Qt::green, picture(Qt::RightToLeft));
    QVERIFY(title.right() < triangle.left());
    QVERIFY(triangle.left() - title.right() < 16);
}

void TestTXUnfolderWidgetRightToLeft::clicksFindWhatIsSeen()
{
    const QRect title = ink(Qt::RightToLeft);
    const QRect triangle = areaOf(Qt::red, picture(Qt::RightToLeft));
    const QSignalSpy toggled(box.get(), SIGNAL(toggled(bool)));
    int count = 0;
    for (const QPoint &place :
         {title.center(), triangle.center(), QPoint(title.left() + 1, title.center().y()),
          QPoint(title.right(), title.center().y())}) {
        QTest::mouseClick(box.get(), Qt::LeftButton, {}, place);
        QCOMPARE(toggled.size(), ++count);
    }
}

void TestTXUnfolderWidgetRightToLeft::clicksElsewhereDoNothing()
{
    const QRect title = ink(Qt::RightToLeft);
    const QSignalSpy toggled(box.get(), SIGNAL(toggled(bool)));
    for (const QPoint &place :
         {QPoint(8, title.center().y()), QPoint(title.left() - 10, title.center().y()),
          QPoint(title.center().x(), kSize.height() - 10)}) {
        QTest::mouseClick(box.get(), Qt::LeftButton, {}, place);
    }
    QTest::mouseClick(box.get(), Qt::RightButton, {}, title.center());
    QCOMPARE(toggled.size(), 0);
}

void TestTXUnfolderWidgetRightToLeft::pressThatLeavesTheTitleDoesNothing()
{
    const QPoint inside = ink(Qt::RightToLeft).center();
    const QSignalSpy toggled(box.get(), SIGNAL(toggled(bool)));
    QTest::mousePress(box.get(), Qt::LeftButton, {}, inside);
    QTest::mouseMove(box.get(), {8, inside.y()});
    QTest::mouseRelease(box.get(), Qt::LeftButton, {}, {8, inside.y()});
    QCOMPARE(toggled.size(), 0);
}

/// Such as one for a check mark, which reads the same both ways.
void TestTXUnfolderWidgetRightToLeft::sheetOfAHostIsLeftToTheStyle()
{
    QGroupBox plain("Conversion");
    plain.setFlat(true);
    plain.setCheckable(true);
    plain.setFont(box->font());
    plain.resize(kSize);
    plain.setLayoutDirection(Qt::RightToLeft);
    for (const char *sheet : {"", "QGroupBox::indicator {width: 20px;}"}) {
        box->setStyleSheet(sheet);
        plain.setStyleSheet(sheet);
        QCOMPARE(picture(Qt::RightToLeft), PixelProbe(plain).image());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXUnfolderWidgetRightToLeft>(argc, argv);
}

#include "tst_TXUnfolderWidgetRightToLeft.moc"
