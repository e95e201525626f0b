#include "GalleryGrabber.h"
#include "GalleryHeader.h"
#include "GalleryLanguages.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LongTranslator.h"
#include "TestBase.h"

#include <QComboBox>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>

class TestGalleryGrabber : public TestBase
{
    Q_OBJECT

private slots:
    void pageThatIsNotReadyInTimeIsAnError();
    void pictureShowsTheWholePage();
    void headerIsLaidOutForTheLanguage();

protected:
    void finish() override { QLocale::setDefault(QLocale::system()); }
};

void TestGalleryGrabber::pageThatIsNotReadyInTimeIsAnError()
{
    const QTemporaryDir folder;
    GalleryLanguages languages(folder.path());
    GalleryWindow window(languages, GallerySettings());
    GalleryGrabber grabber(window, folder.path(), 0);

    QVERIFY(!grabber.grab(QStringLiteral("log")));

    QVERIFY(grabber.error().contains(QStringLiteral("log")));
    QVERIFY(grabber.error().contains(QStringLiteral("not ready")));
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestGalleryGrabber::pictureShowsTheWholePage()
{
    const QTemporaryDir folder;
    GalleryLanguages languages(folder.path());
    GalleryWindow window(languages, GallerySettings());
    // Too low for any page.
    window.resize(900, 200);
    GalleryGrabber grabber(window, folder.path());
    QTest::ignoreMessage(QtWarningMsg, "A message of Qt's own logging, written by hand");

    QVERIFY2(grabber.grab(QStringLiteral("log")), qPrintable(grabber.error()));

    const QImage image(folder.filePath(QStringLiteral("log.png")));
    QCOMPARE(image.width(), 900);
    QVERIFY(image.height() > 400);
    QVERIFY(grabber.error().isEmpty());
}

/// The language changes right before the picture, as it does for one in another language.
void TestGalleryGrabber::headerIsLaidOutForTheLanguage()
{
    const QTemporaryDir folder;
    GalleryLanguages languages(folder.path());
    GalleryWindow window(languages, GallerySettings());
    GalleryGrabber grabber(window, folder.path());
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);

    QVERIFY2(grabber.grab(QStringLiteral("lists")), qPrintable(grabber.error()));

    const auto *header = window.findChild<GalleryHeader *>();
    const auto *colours = header->findChild<QComboBox *>();
    QVERIFY(LongTranslator::isSpoken(colours->itemText(0)));
    QVERIFY(colours->width() >= colours->sizeHint().width());
    const auto *about = header->findChild<QPushButton *>();
    QVERIFY(LongTranslator::isSpoken(about->text()));
    QVERIFY(about->width() >= about->sizeHint().width());
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryGrabber>(argc, argv);
}

#include "tst_GalleryGrabber.moc"
