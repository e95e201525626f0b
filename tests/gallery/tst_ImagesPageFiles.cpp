#include "DifferenceLegend.h"
#include "ImagesPageTest.h"
#include "PictureFiles.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QImageReader>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

#include <sys/stat.h>

class TestImagesPageFiles : public ImagesPageTest
{
    Q_OBJECT

private slots:
    void chosenFilesTakeThePlaceOfTheChart();
    void differenceOfTwoFilesIsReadOut();
    void singleFileHasNoDifference();
    void chartComesBack();
    void cancelledChoiceChangesNothing();
    void folderOfThePicturesIsRemembered();
    void badFileIsToldAndWhatWasShownStays_data();
    void badFileIsToldAndWhatWasShownStays();
    void messageOnABadFileFollowsTheLanguage();
    void goodFilesAfterABadOneClearTheMessage();
    void messageOnABadFileGoesWhenTheUserGoesOn_data();
    void messageOnABadFileGoesWhenTheUserGoesOn();
    void differingSizesAreTold();
    void pixelBeyondASmallerPictureHasNoColour();
    void pixelOfALargerPictureIsReadInIt();
    void onlyPixelOfAPictureIsRead();
    void moreFilesThanZonesAreTold();
    void namesMayHoldAnything();
    void longNameDoesNotWidenThePage();
    void focusComesBackToTheButton();

private:
    void prepare() override
    {
        folder = std::make_unique<QTemporaryDir>();
        ImagesPageTest::prepare();
    }
    void finish() override
    {
        ImagesPageTest::finish();
        folder.reset();
        QImageReader::setAllocationLimit(limit);
    }
    [[nodiscard]] QString path(const QString &name) const { return folder->filePath(name); }
    [[nodiscard]] bool write(const QString &name, const QColor &colour,
                             const QSize &size = QSize(90, 60)) const
    {
        return writePicture(path(name), size, colour);
    }
    void open(const QStringList &names);

    [[nodiscard]] bool isNarrow() const;

    std::unique_ptr<QTemporaryDir> folder;
    const int limit = QImageReader::allocationLimit();
};

bool TestImagesPageFiles::isNarrow() const
{
    // Layouts ask again for the size of a label with another text.
    QCoreApplication::sendPostedEvents();
    return page->minimumSizeHint().width() <= 850;
}

/// Chooses files in the dialog that the button opens, and waits until they are read.
void TestImagesPageFiles::open(const QStringList &names)
{
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), "Open Pictures");
        QStringList quoted;
        for (const QString &name : names) {
            quoted.append('"' + path(name) + '"');
        }
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(quoted.join(' '));
        DialogDriver::click(dialog.findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
    });
    click("Open Pictures...");
    QVERIFY(isReadyInTime());
}

void TestImagesPageFiles::chosenFilesTakeThePlaceOfTheChart()
{
    QVERIFY(write("a.png", Qt::red));
    QVERIFY(write("b.png", Qt::green));

    open({"a.png", "b.png"});

    QCOMPARE(viewer->pixmaps().size(), 2);
    QCOMPARE(picture(0).size(), QSize(90, 60));
    QCOMPARE(picture(0).pixelColor(5, 5), QColor(Qt::red));
    QCOMPARE(picture(1).pixelColor(5, 5), QColor(Qt::green));
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
    QVERIFY(buttonOf<QCheckBox>(*page, "1 a.png")->isVisible());
    QVERIFY(buttonOf<QCheckBox>(*page, "2 b.png")->isVisible());
    QVERIFY(!buttonOf(*page, "3 Difference")->isVisible());
    QVERIFY(!page->findChild<DifferenceLegend *>()->isVisible());
    QVERIFY(!allTexts(*page).contains("The print is computed"));
}

void TestImagesPageFiles::differenceOfTwoFilesIsReadOut()
{
    QVERIFY(write("black.png", Qt::black));
    QVERIFY(write("white.png", Qt::white));
    open({"black.png", "white.png"});

    hover(1, QPoint(30, 30));

    QVERIFY(isRead(*page, "white.png"));
    QVERIFY(isRead(*page, "#000000"));
    QVERIFY(isRead(*page, "#ffffff"));
    QVERIFY(isRead(*page, "100.00"));
}

void TestImagesPageFiles::singleFileHasNoDifference()
{
    QVERIFY(write("one.png", Qt::blue));
    open({"one.png"});

    hover(0, QPoint(30, 30));

    QCOMPARE(viewer->pixmaps().size(), 1);
    QVERIFY(isRead(*page, "#0000ff"));
    QVERIFY(!isRead(*page, "ΔE"));
    QVERIFY(!buttonOf(*page, "1 one.png")->isEnabled());
}

void TestImagesPageFiles::chartComesBack()
{
    const QImage chart = picture(0);
    QVERIFY(write("one.png", Qt::blue));
    open({"one.png"});

    click("Show Chart");
    QVERIFY(isReadyInTime());

    QCOMPARE(viewer->pixmaps().size(), 3);
    QCOMPARE(picture(0), chart);
    QVERIFY(!buttonOf(*page, "Show Chart")->isEnabled());
    QVERIFY(page->findChild<DifferenceLegend *>()->isVisible());
    QVERIFY(allTexts(*page).contains("The print is computed"));
}

void TestImagesPageFiles::cancelledChoiceChangesNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    click("Open Pictures...");

    QVERIFY(page->isReady());
    QCOMPARE(viewer->pixmaps().size(), 3);
}

void TestImagesPageFiles::folderOfThePicturesIsRemembered()
{
    QVERIFY(write("one.png", Qt::blue));
    open({"one.png"});

    QCOMPARE(QSettings().value("Gallery/PicturesFolder").toString(), folder->path());
}

void TestImagesPageFiles::badFileIsToldAndWhatWasShownStays_data()
{
    QTest::addColumn<QString>("bad");
    QTest::addColumn<QString>("message");

    QTest::newRow("no picture") << "text.png"
                                << "\"text.png\" cannot be read: ";
    QTest::newRow("broken") << "broken.bmp"
                            << "\"broken.bmp\" cannot be read: ";
    QTest::newRow("pipe") << "pipe.png"
                          << "\"pipe.png\" is no file.";
    QTest::newRow("too large") << "large.png"
                               << "\"large.png\" is too large: 2,000 × 500 pixels";
}

void TestImagesPageFiles::badFileIsToldAndWhatWasShownStays()
{
    QFETCH(const QString, bad);
    QFETCH(const QString, message);
    QVERIFY(writeBytes(path("text.png"), "Not a picture."));
    QVERIFY(writeHeader(path("broken.bmp"), 100, 100));
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
    QVERIFY(write("large.png", Qt::red, QSize(2000, 500)));
    QImageReader::setAllocationLimit(1);
    QVERIFY(write("good.png", Qt::red));
    const QImage chart = picture(0);
    viewer->scale(1.5, TXImageViewer::Absolute);

    open({"good.png", bad});

    QVERIFY2(allTexts(*page).contains(message), qPrintable(allTexts(*page)));
    QVERIFY(allTexts(*page).contains("What was shown before stays."));
    QVERIFY(!allTexts(*page).contains("\"good.png\""));
    QCOMPARE(viewer->pixmaps().size(), 3);
    QCOMPARE(picture(0), chart);
    QCOMPARE(viewer->scale(), 1.5);
    QVERIFY(buttonOf(*page, "Open Pictures...")->isEnabled());
    QVERIFY(!buttonOf(*page, "Show Chart")->isEnabled());
}

void TestImagesPageFiles::messageOnABadFileFollowsTheLanguage()
{
    QVERIFY(writeBytes(path("TEXT.PNG"), "Not a picture."));
    open({"TEXT.PNG"});
    CapitalTranslator translator;

    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QVERIFY2(allTexts(*page).contains("CANNOT BE READ"), qPrintable(allTexts(*page)));
    QVERIFY(allTexts(*page).contains("WHAT WAS SHOWN BEFORE STAYS."));
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

void TestImagesPageFiles::goodFilesAfterABadOneClearTheMessage()
{
    QVERIFY(writeBytes(path("text.png"), "Not a picture."));
    QVERIFY(write("good.png", Qt::red));
    open({"text.png"});
    QVERIFY(allTexts(*page).contains("cannot be read"));

    open({"good.png"});

    QVERIFY(!allTexts(*page).contains("cannot be read"));
    QCOMPARE(viewer->pixmaps().size(), 1);
}

void TestImagesPageFiles::messageOnABadFileGoesWhenTheUserGoesOn_data()
{
    QTest::addColumn<QString>("button");

    for (const char *button : {"2 Print", "Fit", "Share", "100 %", "Overlay", "Marker"}) {
        QTest::newRow(button) << button;
    }
}

void TestImagesPageFiles::messageOnABadFileGoesWhenTheUserGoesOn()
{
    QFETCH(const QString, button);
    QVERIFY(writeBytes(path("text.png"), "Not a picture."));
    open({"text.png"});
    page->resize(page->size() + QSize(20, 20));
    QCoreApplication::processEvents();
    QVERIFY(allTexts(*page).contains("cannot be read"));

    click(button);

    QVERIFY2(!allTexts(*page).contains("cannot be read"), qPrintable(allTexts(*page)));
    QVERIFY(allTexts(*page).contains("The print is computed"));
}

void TestImagesPageFiles::differingSizesAreTold()
{
    QVERIFY(write("wide.png", Qt::red, QSize(1200, 10)));
    QVERIFY(write("high.png", Qt::blue, QSize(20, 300)));

    open({"wide.png", "high.png"});

    QVERIFY2(
        allTexts(*page).contains("The pictures differ in size: 20 × 300, 1,200 × 10 pixels. All "
                                 "are laid out by the first.")
            || allTexts(*page).contains("The pictures differ in size: 1,200 × 10, 20 × 300 "
                                        "pixels. All are laid out by the first."),
        qPrintable(allTexts(*page)));
}

void TestImagesPageFiles::pixelBeyondASmallerPictureHasNoColour()
{
    QVERIFY(write("large.png", Qt::red, QSize(100, 100)));
    QVERIFY(write("small.png", Qt::red, QSize(10, 10)));
    open({"large.png", "small.png"});

    hover(0, QPoint(5, 5));
    QVERIFY(isRead(*page, "0.00"));
    hover(0, QPoint(50, 50));

    QVERIFY(isRead(*page, "x 50, y 50"));
    QVERIFY(isRead(*page, "#ff0000"));
    QVERIFY(isRead(*page, "–"));
    QVERIFY(!isRead(*page, "0.00"));
}

void TestImagesPageFiles::pixelOfALargerPictureIsReadInIt()
{
    QVERIFY(write("high.png", Qt::red, QSize(10, 40)));
    QVERIFY(write("wide.png", Qt::blue, QSize(20, 40)));
    open({"high.png", "wide.png"});
    // Files come in the order of their names or as they were chosen.
    const int wide = picture(0).width() == 20 ? 0 : 1;

    moveMouse(placeOf(wide, QPoint(15, 20)));
    QVERIFY2(isRead(*page, "x 15, y 20"), qPrintable(allTexts(*page)));
    QVERIFY(isRead(*page, "#0000ff"));
    moveMouse(placeOf(1 - wide, QPoint(15, 20)));
    QVERIFY(isRead(*page, "Move the mouse over a picture."));
}

void TestImagesPageFiles::onlyPixelOfAPictureIsRead()
{
    QVERIFY(write("dot.png", Qt::red, QSize(1, 1)));
    open({"dot.png"});
    const auto *box = page->findChild<QDoubleSpinBox *>();
    QVERIFY(viewer->scale() > 100);
    QVERIFY2(std::abs(box->value() - 100 * viewer->scale()) <= 0.05,
             qPrintable(QString::number(box->value())));

    moveMouse(placeOf(0, QPoint(0, 0)));
    QVERIFY(isRead(*page, "x 0, y 0"));
    QVERIFY(isRead(*page, "#ff0000"));

    // Beside it, less than its width away.
    for (const QPointF away : {QPointF(-0.7, 0), QPointF(0.7, 0)}) {
        moveMouse(placeOf(0, QPoint(0, 0)) + away * viewer->scale());
        QVERIFY2(isRead(*page, "Move the mouse over a picture."), qPrintable(allTexts(*page)));
    }
}

void TestImagesPageFiles::moreFilesThanZonesAreTold()
{
    const QStringList names = {"1.png", "2.png", "3.png", "4.png", "5.png"};
    for (const QString &name : names) {
        QVERIFY(write(name, Qt::red));
    }

    open(names);

    QCOMPARE(viewer->pixmaps().size(), 3);
    QVERIFY2(allTexts(*page).contains("The first 3 of 5 files."), qPrintable(allTexts(*page)));
}

void TestImagesPageFiles::namesMayHoldAnything()
{
    QVERIFY(write("a&b <%1>.png", Qt::red));

    open({"a&b <%1>.png"});
    hover(0, QPoint(1, 1));

    QVERIFY2(isRead(*page, "a&b <%1>.png"), qPrintable(allTexts(*page)));
    QVERIFY(buttonOf(*page, "1 ab <%1>.png"));
}

void TestImagesPageFiles::longNameDoesNotWidenThePage()
{
    QStringList names;
    for (const QChar letter : {QLatin1Char('m'), QLatin1Char('w'), QLatin1Char('o')}) {
        names.append(QString(200, letter) + ".png");
        QVERIFY(write(names.last(), Qt::red));
    }
    names.append(QString(200, 'x') + ".png");
    QVERIFY(writeBytes(path(names.last()), "Not a picture."));

    open(names.first(3));
    QVERIFY(isNarrow());
    hover(0, QPoint(1, 1));
    QVERIFY(isNarrow());
    open({names.last()});
    QVERIFY(isNarrow());
}

void TestImagesPageFiles::focusComesBackToTheButton()
{
    QVERIFY(write("one.png", Qt::blue));
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    auto *openButton = buttonOf(*page, "Open Pictures...");
    auto *chartButton = buttonOf(*page, "Show Chart");
    openButton->setFocus();

    open({"one.png"});
    QCOMPARE(page->focusWidget(), openButton);

    // It is of no use any more once the chart is there.
    chartButton->setFocus();
    click("Show Chart");
    QVERIFY(page->focusWidget() != chartButton);
    QVERIFY(isReadyInTime());
    QCOMPARE(page->focusWidget(), openButton);

    // Moved by the user meanwhile.
    open({"one.png"});
    chartButton->setFocus();
    click("Show Chart");
    viewer->setFocus();
    QVERIFY(isReadyInTime());
    QCOMPARE(page->focusWidget(), viewer);
}

int main(int argc, char **argv)
{
    return runTest<TestImagesPageFiles>(argc, argv);
}

#include "tst_ImagesPageFiles.moc"
