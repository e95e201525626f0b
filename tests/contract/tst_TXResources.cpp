#include "TXResources.h"

#include "HelperProcess.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QImage>
#include <QPixmap>

#include <iterator>

namespace {

struct Stock
{
    const char *name;
    QPixmap (*make)();
    int side;
    /// What the picture is mostly painted in; the middle itself may be covered by the white mark.
    QRgb colour;
};

constexpr Stock kStock[] = {
    {"success", TXDisplayFixBulletStaticImage, 32, 0xff2e9e4f},
    {"failure", TXDisplayErrorBulletStaticImage, 32, 0xffd13438},
    {"warning", TXDisplayWarningBulletStaticImage, 32, 0xffc97800},
    {"little information", TXDisplayLittleInformationBulletStaticImage, 16, 0xff1f76d2},
    {"little warning", TXDisplayLittleWarningBulletStaticImage, 16, 0xffc97800},
    {"little error", TXDisplayLittleErrorBulletStaticImage, 16, 0xffd13438},
};

int countOf(const QImage &image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class TestTXResources : public TestBase
{
    Q_OBJECT

private slots:
    void pictureHasItsSizeAndColour_data();
    void pictureHasItsSizeAndColour();
    void picturesDifferFromOneAnother();
    void pictureIsTheSameEachTime();
    void scaledApplicationGetsMorePixels();
};

void TestTXResources::pictureHasItsSizeAndColour_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kStock)); ++i) {
        QTest::addRow("%s", kStock[i].name) << i;
    }
}

void TestTXResources::pictureHasItsSizeAndColour()
{
    QFETCH(int, index);
    const Stock &stock = kStock[index];

    const QPixmap pixmap = stock.make();

    QCOMPARE(pixmap.size(), QSize(stock.side, stock.side));
    QCOMPARE(pixmap.devicePixelRatio(), 1.0);
    const QImage image = pixmap.toImage();
    QVERIFY(countOf(image, stock.colour) > stock.side * stock.side / 6);
    QCOMPARE(PixelProbe(image).at({0, 0}).alpha(), 0);
}

void TestTXResources::picturesDifferFromOneAnother()
{
    for (const Stock &one : kStock) {
        for (const Stock &other : kStock) {
            if (&one != &other) {
                QVERIFY2(one.make().toImage() != other.make().toImage(), one.name);
            }
        }
    }
}

void TestTXResources::pictureIsTheSameEachTime()
{
    for (const Stock &stock : kStock) {
        QCOMPARE(stock.make().toImage(), stock.make().toImage());
    }
}

void TestTXResources::scaledApplicationGetsMorePixels()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));

    QCOMPARE(askHelper("bullet", {}, environment), QByteArray("64x64@2"));
    QCOMPARE(askHelper("bullet"), QByteArray("32x32@1"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXResources>(argc, argv);
}

#include "tst_TXResources.moc"
