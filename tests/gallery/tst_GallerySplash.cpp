#include "GallerySplash.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QScreen>
#include <QSignalSpy>

namespace {

bool paintOwnPicture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image.save(GallerySplash::ownPicturePath());
}

} // namespace

class TestGallerySplash : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void ownPictureHasTwoPixelsForOne();
    void isShownOnTheScreenThatIsWanted();
    void withoutAPictureNothingIsShown();
    void lineIsWrittenOnADarkStrip_data();
    void lineIsWrittenOnADarkStrip();
    void longLineStaysInside();
    void finishClosesWhenTheWindowIsUp();
    void shippedPictureFitsAnyScreen();
};

void TestGallerySplash::prepare()
{
    QVERIFY(QDir().mkpath(QFileInfo(GallerySplash::ownPicturePath()).path()));
    QVERIFY(paintOwnPicture(QSize(400, 200)));
}

void TestGallerySplash::finish()
{
    QFile::remove(GallerySplash::ownPicturePath());
    QDir().rmpath(QFileInfo(GallerySplash::ownPicturePath()).path());
}

void TestGallerySplash::ownPictureHasTwoPixelsForOne()
{
    GallerySplash splash;

    splash.open();

    QVERIFY(splash.isVisible());
    QCOMPARE(splash.size(), QSize(200, 100));
}

void TestGallerySplash::isShownOnTheScreenThatIsWanted()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    GallerySplash splash(screen);

    splash.open();

    QCOMPARE(splash.screen(), screen);
    QVERIFY(screen->geometry().contains(splash.geometry()));
}

void TestGallerySplash::withoutAPictureNothingIsShown()
{
    QVERIFY(QFile::remove(GallerySplash::ownPicturePath()));
    GallerySplash splash;

    splash.open();
    splash.tell("Loading");

    QVERIFY(!splash.isVisible());
    QVERIFY(splash.message().isEmpty());
}

void TestGallerySplash::lineIsWrittenOnADarkStrip_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void TestGallerySplash::lineIsWrittenOnADarkStrip()
{
    QFETCH(qreal, ratio);
    GallerySplash splash;
    splash.open();
    const PixelProbe before(splash, ratio);
    QVERIFY(before.isNear(QPoint(2, 97), Qt::red));

    splash.tell("Loading");

    const PixelProbe after(splash, ratio);
    QCOMPARE(splash.message(), "Loading");
    QVERIFY(after.isNear(QPoint(2, 10), Qt::red));
    QVERIFY(after.at(QPoint(2, 97)).lightness() < 80);
    QVERIFY(after.countColours(QRect(16, 75, 80, 24)) > 5);
}

void TestGallerySplash::longLineStaysInside()
{
    GallerySplash splash;
    splash.open();

    splash.tell(QString(1000, u'W'));

    const PixelProbe probe(splash);
    QCOMPARE(probe.countColours(QRect(190, 78, 10, 20)), 1);
    QCOMPARE(splash.size(), QSize(200, 100));
}

void TestGallerySplash::finishClosesWhenTheWindowIsUp()
{
    QWidget window;
    GallerySplash splash;
    splash.open();
    window.show();

    splash.finish(&window);

    QVERIFY(!splash.isVisible());
    QVERIFY(window.windowHandle()->isExposed());
}

void TestGallerySplash::shippedPictureFitsAnyScreen()
{
    const QImage image(QCoreApplication::applicationDirPath()
                       + "/../gallery/Resources/Images/splash@2x.png");

    QCOMPARE(image.devicePixelRatio(), 2.0);
    QCOMPARE(image.size(), QSize(960, 600));
    QVERIFY(!image.hasAlphaChannel());
}

int main(int argc, char **argv)
{
    return runTest<TestGallerySplash>(argc, argv);
}

#include "tst_GallerySplash.moc"
