#include "ServiceText.h"

#include "LocalUpdateService.h"
#include "PixelProbe.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QUrl>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::newReleaseWith;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;

namespace {

constexpr qsizetype kTenMegabytes = 10000000;
constexpr QChar kEllipsis(0x2026);

// Far more than it takes, and far less than the same text takes when it is not cut.
constexpr qint64 kPatienceMilliseconds = 2000;

QString repeated(const QString &text, qsizetype size)
{
    return text.repeated(size / text.size());
}

QImage redPicture()
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}

QString redPictureAsUrl()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    redPicture().save(&buffer, "PNG");
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
}

/// The notes as they are painted.
QImage paintedNotes(const Dialog &dialog)
{
    return PixelProbe(*part<QLabel>(dialog, "descriptionLabel")).image();
}

bool hasRed(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.red() > 200 && colour.green() < 60 && colour.blue() < 60) {
                return true;
            }
        }
    }
    return false;
}

/// The colour with the least light: the ink, on white paper.
QColor darkest(const QImage &image)
{
    // The frame at the edge is not ink.
    const QRect inside = image.rect().adjusted(3, 3, -3, -3);
    QColor ink(Qt::white);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (qGray(colour.rgb()) < qGray(ink.rgb())) {
                ink = colour;
            }
        }
    }
    return ink;
}

QPalette darkPalette()
{
    QPalette palette(QColor(40, 40, 40), QColor(40, 40, 40));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Link, QColor(190, 220, 255));
    return palette;
}

} // namespace

class TestServiceText : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
        lightPalette = QApplication::palette();
    }

    void finish() override { QApplication::setPalette(lightPalette); }

private slots:
    void shortNotesStayAsTheyAre_data();
    void shortNotesStayAsTheyAre();
    void longNotesEndInAnEllipsis_data();
    void longNotesEndInAnEllipsis();
    void languagesWithCombiningMarksAreNotCutEarly();
    void notesAreCutOutsideOfTags_data();
    void notesAreCutOutsideOfTags();
    void notesAreCutBesideSurrogates();
    void hostileNotesAreShownWithoutDelay_data();
    void hostileNotesAreShownWithoutDelay();
    void picturesFromOutsideStayEmpty_data();
    void picturesFromOutsideStayEmpty();
    void remotePicturesAreNotAskedFor();
    void picturesInTheTextAreShown();
    void inkIsDarkInEveryPalette_data();
    void inkIsDarkInEveryPalette();
    void linksAreLegibleInEveryPalette_data();
    void linksAreLegibleInEveryPalette();
    void longNotesScroll();
    void lineThatFitsStaysAsItIs();
    void longLineIsElided_data();
    void longLineIsElided();
    void longNamesLeaveTheDialogOnTheScreen_data();
    void longNamesLeaveTheDialogOnTheScreen();

private:
    QPalette lightPalette;
};

void TestServiceText::shortNotesStayAsTheyAre_data()
{
    QTest::addColumn<QString>("notes");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("Fixed: a < b, c & d\n\nMore.");
    QTest::newRow("rich") << QStringLiteral("<h1>3.1</h1><ul><li>a<li>b</ul><a href='x'>y</a>");
    QTest::newRow("table") << QStringLiteral("<table><tr><td colspan=2>a</table>");
    QTest::newRow("numbers in words") << QStringLiteral(
        "<p>Size: 10240 KB, width=5000</p><a href=\"https://a.example?id=12345\">b</a>");
    QTest::newRow("styled") << QStringLiteral(
        "<style>p, li { white-space: pre-wrap; }</style><p style=\"margin-top:12px; "
        "font-size:9pt\"><img src=\"a.png\" width=\"640\" height=\"480\">x</p>");
    QTest::newRow("open tag") << QStringLiteral("<p");
    QTest::newRow("long") << repeated(QStringLiteral("Reads patches faster. "), 11000);
    QTest::newRow("long and rich")
        << repeated(QStringLiteral("<p>Reads <b>patches</b> faster than before, in all "
                                   "formats.</p>"),
                    5000);
}

void TestServiceText::shortNotesStayAsTheyAre()
{
    QFETCH(QString, notes);
    QCOMPARE(ServiceText::shortened(notes), notes);
}

void TestServiceText::longNotesEndInAnEllipsis_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("plain") << QStringLiteral("Reads patches faster. ");
    QTest::newRow("word") << QStringLiteral("x");
    QTest::newRow("lines") << QStringLiteral("a\n");
    QTest::newRow("rich") << QStringLiteral("<p>Reads <b>patches</b> faster.</p>");
}

void TestServiceText::longNotesEndInAnEllipsis()
{
    QFETCH(QString, piece);
    const QString notes = repeated(piece, kTenMegabytes);
    const QString shown = ServiceText::shortened(notes);
    QVERIFY(shown.size() <= 12001);
    QVERIFY(shown.size() > 300);
    QVERIFY(shown.endsWith(kEllipsis));
    QVERIFY(notes.startsWith(shown.chopped(1)));
}

void TestServiceText::languagesWithCombiningMarksAreNotCutEarly()
{
    const QString hindi = repeated(QString::fromUtf8("हिन्दी में संस्करण "), 5000);
    QCOMPARE(ServiceText::shortened(hindi), hindi);
}

void TestServiceText::notesAreCutOutsideOfTags_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("cut");
    const QString text = QStringLiteral("<p>Notes</p>");
    const QString filling(30000, u'x');
    QTest::newRow("tag") << text << QString(QStringLiteral("<a href=\"") + filling);
    QTest::newRow("first tag") << QString() << QString(QStringLiteral("<a href=\"") + filling);
    QTest::newRow("six tables") << QString(text + QStringLiteral("<table>").repeated(5))
                                << QStringLiteral("<TABLE><tr><td>x");
    QTest::newRow("cell of many columns")
        << QString(text + QStringLiteral("<table><tr>")) << QStringLiteral("<td colspan=100000>x");
    QTest::newRow("cell of many rows")
        << QString(text + QStringLiteral("<table><tr>")) << QStringLiteral("<td ROWSPAN = '999'>x");
    QTest::newRow("cell of hidden size") << QString(text + QStringLiteral("<table><tr>"))
                                         << QStringLiteral("<td colspan=\"&#57;99\">x");
    QTest::newRow("entity") << QString(QString(11996, u'x')) << QString("&amp;" + filling);
}

void TestServiceText::notesAreCutOutsideOfTags()
{
    QFETCH(QString, before);
    QFETCH(QString, cut);
    QCOMPARE(ServiceText::shortened(before + cut), QString(before + kEllipsis));
}

void TestServiceText::notesAreCutBesideSurrogates()
{
    const QString smile = QString::fromUtf8("\xf0\x9f\x98\x80");
    for (const QString &start : {QString(), QStringLiteral("x")}) {
        const QString shown = ServiceText::shortened(start + smile.repeated(20000));
        QVERIFY(shown.chopped(1).endsWith(smile));
        QVERIFY(shown.isValidUtf16());
    }
}

void TestServiceText::hostileNotesAreShownWithoutDelay_data()
{
    QTest::addColumn<QString>("notes");
    const auto row = [](const char *name, const QString &piece) {
        QTest::newRow(name) << repeated(piece, kTenMegabytes);
    };
    row("plain", QStringLiteral("Reads patches faster. "));
    row("one word", QStringLiteral("x"));
    row("lines", QStringLiteral("a\n"));
    row("rich", QStringLiteral("<p>Reads <b>patches</b> faster.</p>"));
    row("line breaks", QStringLiteral("a<br>"));
    row("nested bold", QStringLiteral("<b>"));
    row("nested blocks", QStringLiteral("<div>"));
    row("nested lists", QStringLiteral("<ul><li>"));
    row("nested tables", QStringLiteral("<table><tr><td>"));
    row("open rows", QStringLiteral("<tr><td>"));
    row("combining marks", QString(QChar(0x301)));
    row("pictures", QStringLiteral("<img src=a.png width=100000 height=100000>"));
    QTest::newRow("wide table") << QString(QStringLiteral("<table><tr>")
                                           + repeated(QStringLiteral("<td>x"), kTenMegabytes));
    QTest::newRow("tall table") << QString(QStringLiteral("<table>")
                                           + repeated(QStringLiteral("<tr><td>x"), kTenMegabytes));
    QTest::newRow("one rich word") << QString(QStringLiteral("<b>") + QString(kTenMegabytes, u'x'));
    row("high paragraphs", QStringLiteral("<p style='margin-top: 1000000px'>x"));
    row("high lines", QStringLiteral("<p style=\"line-height:100000000%\">x"));
    row("padded tables", QStringLiteral("<table cellpadding=100000000 border=100000000><td>x"));
    QTest::newRow("style rules") << QString(
        QStringLiteral("<style>p { color: red; margin-top: 1000000px }</style>")
        + repeated(QStringLiteral("<p>x"), kTenMegabytes));
    QTest::newRow("tables of huge cells")
        << QStringLiteral("<table><tr><td colspan=99999>x</table>").repeated(100);
}

void TestServiceText::hostileNotesAreShownWithoutDelay()
{
    QFETCH(QString, notes);
    Dialog dialog;
    dialog.updateState(Dialog::UpToDate);
    QElapsedTimer clock;
    clock.start();
    receive(dialog, newReleaseWith("Description", notes));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QImage picture = PixelProbe(dialog).image();
    qInfo("%lld ms", clock.elapsed());
    QVERIFY(clock.elapsed() < kPatienceMilliseconds);
    QVERIFY(dialog.width() <= dialog.screen()->availableGeometry().width());
    QVERIFY(dialog.height() <= dialog.screen()->availableGeometry().height());
}

void TestServiceText::picturesFromOutsideStayEmpty_data()
{
    QTest::addColumn<QString>("form");
    QTest::newRow("file") << QStringLiteral("<img src=\"file://%1\">");
    QTest::newRow("path") << QStringLiteral("<img src=\"%1\">");
    QTest::newRow("several slashes") << QStringLiteral("<img src=\"file:////%1\">");
    QTest::newRow("background of a block")
        << QStringLiteral("<body background=\"%1\"><p style=\"background-image: "
                          "url(%1)\">text</p><table background=\"%1\"><tr><td>text</table>");
    QTest::newRow("list bullet") << QStringLiteral(
        "<ul style=\"list-style-image: url(file://%1)\"><li>x</ul>");
}

void TestServiceText::picturesFromOutsideStayEmpty()
{
    QFETCH(QString, form);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.png"));
    QVERIFY(redPicture().save(path));
    Dialog dialog;
    receive(dialog,
            newReleaseWith("Description", QString(form).replace(QStringLiteral("%1"), path)));
    QVERIFY(!hasRed(paintedNotes(dialog)));
    // The text beside a picture stays.
    receive(
        dialog,
        newReleaseWith("Description",
                       QStringLiteral("<p>Faster <img src=\"%1\">and &lt;b&gt;</p>").arg(path)));
    const QString shown = part<QLabel>(dialog, "descriptionLabel")->text();
    QVERIFY2(shown.contains(u"Faster and &lt;b&gt;"), qPrintable(shown));
}

void TestServiceText::remotePicturesAreNotAskedFor()
{
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    Dialog dialog;
    const QString notes = QStringLiteral("<link rel=stylesheet href=\"https://%1/download\"><img "
                                         "src=\"https://%1/download\"><p style=\"background-image: "
                                         "url(https://%1/download)\">x</p>");
    receive(dialog, newReleaseWith("Description", notes.arg(service.authority())));
    QVERIFY(!hasRed(paintedNotes(dialog)));
    QCoreApplication::processEvents();
    QCOMPARE(service.requests().size(), 0);
}

void TestServiceText::picturesInTheTextAreShown()
{
    Dialog dialog;
    const QString notes = QStringLiteral("<img src=\"%1\">").arg(redPictureAsUrl());
    receive(dialog, newReleaseWith("Description", notes));
    QVERIFY(hasRed(paintedNotes(dialog)));
}

void TestServiceText::inkIsDarkInEveryPalette_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("notes");
    for (const bool isDark : {false, true}) {
        const char *palette = isDark ? "dark" : "light";
        QTest::addRow("plain, %s", palette) << isDark << QStringLiteral("MMMM HHHH");
        QTest::addRow("rich, %s", palette) << isDark << QStringLiteral("<b>MMMM HHHH</b>");
    }
}

void TestServiceText::inkIsDarkInEveryPalette()
{
    QFETCH(bool, isDark);
    QFETCH(QString, notes);
    Dialog dialog;
    if (isDark) {
        // Also for a dialog that is there when the palette changes.
        QApplication::setPalette(darkPalette());
    }
    receive(dialog, newReleaseWith("Description", notes));
    const QImage picture = paintedNotes(dialog);
    QVERIFY(qGray(darkest(picture).rgb()) < 60);
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() - 10), QColor(Qt::white));

    Dialog later;
    receive(later, newReleaseWith("Description", notes));
    QVERIFY(qGray(darkest(paintedNotes(later)).rgb()) < 60);
}

void TestServiceText::linksAreLegibleInEveryPalette_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestServiceText::linksAreLegibleInEveryPalette()
{
    QFETCH(bool, isDark);
    if (isDark) {
        QApplication::setPalette(darkPalette());
    }
    Dialog dialog;
    for (const char *words : {"MMMM HHHH", "HHHH MMMM"}) {
        receive(
            dialog,
            newReleaseWith(
                "Description",
                QStringLiteral("<a href=\"https://a.example\">%1</a>").arg(QLatin1String(words))));
        const QColor ink = darkest(paintedNotes(dialog));
        QVERIFY2(qGray(ink.rgb()) < 110, qPrintable(ink.name()));
        QVERIFY2(ink.blue() > ink.red() + 60, qPrintable(ink.name()));
    }
}

void TestServiceText::longNotesScroll()
{
    Dialog dialog;
    receive(
        dialog,
        newReleaseWith("Description", repeated(QStringLiteral("Reads patches faster. "), 5000)));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto *area = part<QScrollArea>(dialog, "scrollArea");
    const auto *label = part<QLabel>(dialog, "descriptionLabel");
    QVERIFY(label->height() > area->viewport()->height());
    QVERIFY(label->width() <= area->viewport()->width());
    QCOMPARE(dialog.height(), 324);
}

void TestServiceText::lineThatFitsStaysAsItIs()
{
    const QLabel place;
    const QString text = QStringLiteral("  Patch  Reader <b>3</b> & more ");
    QCOMPARE(ServiceText::line(text, place), text);
    QCOMPARE(ServiceText::line(QString(), place), QString());
}

void TestServiceText::longLineIsElided_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << repeated(QStringLiteral("Patch Reader "), kTenMegabytes);
    QTest::newRow("word") << QString(kTenMegabytes, u'x');
    QTest::newRow("lines") << repeated(QStringLiteral("a\n"), kTenMegabytes);
    QTest::newRow("narrow letters") << QString(501, u'i');
}

void TestServiceText::longLineIsElided()
{
    QFETCH(QString, text);
    const QLabel place;
    const QString line = ServiceText::line(text, place);
    QVERIFY(line.endsWith(kEllipsis));
    QVERIFY(line.size() > 20);
    QVERIFY(!line.contains(u'\n'));
    QVERIFY(place.fontMetrics().horizontalAdvance(line)
            <= place.screen()->availableGeometry().width());
}

void TestServiceText::longNamesLeaveTheDialogOnTheScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("words") << repeated(QStringLiteral("Patch Reader "), kTenMegabytes);
    QTest::newRow("word") << QString(kTenMegabytes, u'W');
    QTest::newRow("lines") << repeated(QStringLiteral("a\n"), kTenMegabytes);
}

void TestServiceText::longNamesLeaveTheDialogOnTheScreen()
{
    QFETCH(QString, name);
    Dialog dialog(name, 7, false);
    const QSize screen = dialog.screen()->availableGeometry().size();
    receive(dialog, newReleaseWith("ProductName", name));
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.width() <= screen.width());
    QVERIFY(dialog.height() <= screen.height());
    dialog.updateState(Dialog::UpToDate);
    QCoreApplication::processEvents();
    QVERIFY(dialog.width() <= screen.width());
    QVERIFY(dialog.height() <= screen.height());
}

int main(int argc, char **argv)
{
    return runTest<TestServiceText>(argc, argv);
}

#include "tst_ServiceText.moc"
