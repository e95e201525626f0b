#include "RichNotes.h"
#include "ServiceText.h"

#include "LocalUpdateService.h"
#include "PixelProbe.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>
#include <QTextDocument>
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

// The last net: what is expensive is told by the kind and the length of what is shown.
constexpr qint64 kPatienceMilliseconds = 2000;
constexpr qsizetype kLongestPlainCharacters = 60001;

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

QByteArray asPng(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

QByteArray whitePng(int side)
{
    QImage picture(side, side, QImage::Format_Mono);
    picture.fill(1);
    return asPng(picture);
}

/// A picture within the notes.
QString imageTag(const QByteArray &png)
{
    return QStringLiteral("<img src=\"data:image/png;base64,%1\">")
        .arg(QString::fromLatin1(png.toBase64()));
}

/// Shows the notes in a label as the dialog does.
void showNotes(const QString &notes, QLabel &label)
{
    label.setWordWrap(true);
    ServiceText::prepareForNotes(label);
    ServiceText::showNotes(notes, label);
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

} // namespace

/// Release notes of any kind, from the text to the screen.
class TestRichNotes : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
    }

private slots:
    void ordinaryNotesStayAsTheyAre_data();
    void ordinaryNotesStayAsTheyAre();
    void longPlainNotesStayWhole_data();
    void longPlainNotesStayWhole();
    void longNotesEndInAnEllipsis_data();
    void longNotesEndInAnEllipsis();
    void notesAreCutBesideSurrogates();
    void laboriousNotesAreShownAsWords_data();
    void laboriousNotesAreShownAsWords();
    void longRichNotesLoseNoWord();
    void wordsAreThoseOfTheNotes_data();
    void wordsAreThoseOfTheNotes();
    void hostileNotesAreShownWithoutDelay_data();
    void hostileNotesAreShownWithoutDelay();
    void picturesFromOutsideStayEmpty_data();
    void picturesFromOutsideStayEmpty();
    void remotePicturesAreNotAskedFor();
    void picturesInTheTextAreShown();
    void largeOrBrokenPicturesAreNotShown_data();
    void largeOrBrokenPicturesAreNotShown();
};

void TestRichNotes::ordinaryNotesStayAsTheyAre_data()
{
    QTest::addColumn<QString>("notes");
    const auto row = [](const char *name, const QString &notes) {
        QTest::newRow(name) << notes;
    };
    row("rich", QStringLiteral("<h1>3.1</h1><ul><li>a<li>b</ul><a href='x'>y</a><br/><hr />"));
    row("table", QStringLiteral("<table><tr><td colspan=2 rowspan='2'>a</table>"));
    row("six tables",
        QStringLiteral("<table border=1><tr><td>a<td>b</tr><tr><td>c<td>d</tr></table>")
            .repeated(6));
    row("numbers in words",
        QStringLiteral(
            "<p>Size: 10240 KB, width=5000</p><a href=\"https://a.example?id=12345\">b</a>"));
    row("styled",
        QStringLiteral("<!DOCTYPE HTML><style>p, li { white-space: pre-wrap; }</style><p "
                       "style=\" margin-top:12px; -qt-block-indent:0; text-indent:0px; "
                       "color:#102030; font-family:'Sans Serif'; font-size:9.5pt\">x</p>"));
    row("padded",
        QStringLiteral("<table width=\"100%\" cellpadding=\"4\" style=\"margin: 0 8px; "
                       "border: 1px solid #ccc\"><tr><td width=120>x</table>"));
    row("200 items",
        QStringLiteral("<ul>%1</ul>")
            .arg(
                QStringLiteral("<li>Reads patches faster than before, in x</li>\n").repeated(200)));
    row("picture", imageTag(whitePng(900)));
    QTextDocument document;
    document.setHtml(QStringLiteral("<h2>a</h2><ul><li><b>b</b></ul><table><tr><td>c</table>"));
    row("written by Qt", document.toHtml());
}

void TestRichNotes::ordinaryNotesStayAsTheyAre()
{
    QFETCH(QString, notes);
    QLabel label;
    showNotes(notes, label);
    QCOMPARE(label.text(), notes);
    QCOMPARE(label.textFormat(), Qt::RichText);
}

void TestRichNotes::longPlainNotesStayWhole_data()
{
    QTest::addColumn<QString>("notes");
    QTest::newRow("empty") << QString();
    QTest::newRow("angles") << QStringLiteral("Fixed: a < b, c & d\n\nMore.");
    QTest::newRow("words") << repeated(QStringLiteral("Reads patches faster. "), 50000);
    QTest::newRow("items") << repeated(QStringLiteral("- Reads patches faster than before, in "
                                                      "all of the formats.\n"),
                                       30000);
    QTest::newRow("Hindi") << repeated(QString::fromUtf8("हिन्दी में संस्करण "), 5000);
    QTest::newRow("Chinese") << repeated(QString::fromUtf8("更新"), 14000);
}

void TestRichNotes::longPlainNotesStayWhole()
{
    QFETCH(QString, notes);
    QLabel label;
    showNotes(notes, label);
    QCOMPARE(label.text(), notes);
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void TestRichNotes::longNotesEndInAnEllipsis_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("longest");
    QTest::newRow("plain") << QStringLiteral("Reads patches faster. ") << 60001;
    QTest::newRow("word") << QStringLiteral("x") << 60001;
    QTest::newRow("lines") << QStringLiteral("a\n") << 6001;
    QTest::newRow("Chinese") << QString::fromUtf8("更新") << 15001;
    QTest::newRow("marks") << QString(QChar(0x301)) << 400;
}

void TestRichNotes::longNotesEndInAnEllipsis()
{
    QFETCH(QString, piece);
    QFETCH(int, longest);
    const QString notes = repeated(piece, kTenMegabytes);
    const QString shown = ServiceText::shortened(notes);
    QVERIFY(shown.size() <= longest);
    QVERIFY(shown.size() > 300);
    QVERIFY(shown.endsWith(kEllipsis));
    QVERIFY(notes.startsWith(shown.chopped(1)));
}

void TestRichNotes::notesAreCutBesideSurrogates()
{
    const QString smile = QString::fromUtf8("\xf0\x9f\x98\x80");
    for (const QString &start : {QString(), QStringLiteral("x")}) {
        const QString shown = ServiceText::shortened(start + smile.repeated(20000));
        QVERIFY(shown.chopped(1).endsWith(smile));
        QVERIFY(shown.isValidUtf16());
        const QString line = ServiceText::line(start + smile.repeated(500));
        QVERIFY(line.chopped(1).endsWith(smile));
        QVERIFY(line.isValidUtf16());
    }
}

void TestRichNotes::laboriousNotesAreShownAsWords_data()
{
    QTest::addColumn<QString>("markup");
    const auto cell = [](const char *tag) {
        QTest::newRow(tag) << QStringLiteral("<table><tr>%1").arg(QLatin1String(tag));
    };
    cell("<td colspan=99999>");
    cell("<td colspan=+99999>");
    cell("<td colspan = \t+99999>");
    cell("<td colspan=\" +99999\">");
    cell("<td title=\"{}\" colspan=99999>");
    cell("<td title=\">\" colspan=99999>");
    cell("<td title='>' ROWSPAN = '999'>");
    cell("<td colspan=\"&#57;99\">");
    cell("<td \"colspan\"=99999>");
    cell("<td col&#115;pan=99999>");
    cell("< td colspan=99999>");
    cell("<\"td\" colspan=99999>");
    cell("<td title='\\'>' colspan=99999>");
    cell("<td / title=\"><td colspan=99999>\">");
    cell("<td width=1e9>");
    cell("<td width=+9999>");
    cell("<td height=\"&#57;999\">");
    cell("<td><table><tr><td>");
    for (const char *rules :
         {"margin-top:10000px", "margin-top:-10000px", "margin-top:+10000px", "margin-top:1e9px",
          "margin-top:1\\30 000px", "margin-top:1/**/0000px", "mar&#103;in-top:9px",
          "font-size:1000pt", "font-size: 999pt", "font: bold 999px serif", "line-height: 9",
          "font:999px/999 serif", "line-height:999"}) {
        QTest::addRow("attribute %s", rules)
            << QStringLiteral("<p style=\"%1\">").arg(QLatin1String(rules));
        QTest::addRow("rule %s", rules)
            << QStringLiteral("<style>p { %1 }</style><p>").arg(QLatin1String(rules));
    }
    QTest::newRow("many tags") << QStringLiteral("<b>").repeated(1001);
    QTest::newRow("many cells") << QString("<table>" + QStringLiteral("<tr><td>").repeated(90));
    QTest::newRow("many spans") << QString("<table><tr>"
                                           + QStringLiteral("<td colspan=99>").repeated(2));
    QTest::newRow("many rules") << QStringLiteral("<style>%1</style><p>")
                                       .arg(QStringLiteral("p { color: red }").repeated(200));
}

void TestRichNotes::laboriousNotesAreShownAsWords()
{
    QFETCH(QString, markup);
    const QString notes = QStringLiteral("<p>Reads <b>patches</b></p>%1 &amp; more");
    QLabel label;
    showNotes(notes.arg(markup), label);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QVERIFY2(label.text().startsWith(u"Reads patches\n"), qPrintable(label.text()));
    QVERIFY2(label.text().endsWith(u"& more"), qPrintable(label.text()));
    QVERIFY(label.text().size() < 60);
    showNotes(notes.arg(QStringLiteral("<p>")), label);
    QCOMPARE(label.textFormat(), Qt::RichText);
}

void TestRichNotes::longRichNotesLoseNoWord()
{
    QString notes = QStringLiteral("<h1>Changes</h1><ul>");
    QString words = QStringLiteral("Changes");
    for (int item = 0; item < 500; ++item) {
        const QString text =
            QStringLiteral("Item %1 reads patches faster than before, and more").arg(item);
        notes += QStringLiteral("<li>%1</li>\n").arg(text);
        words += u'\n' + text;
    }
    QVERIFY(notes.size() > 30000);
    QLabel label;
    showNotes(notes, label);
    QCOMPARE(label.text(), words);
}

void TestRichNotes::wordsAreThoseOfTheNotes_data()
{
    QTest::addColumn<QString>("notes");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const char *notes, const char *words) {
        QTest::newRow(name) << QString::fromUtf8(notes) << QString::fromUtf8(words);
    };
    row("inline", "<p>a<b>b</b><i>c</i></p>", "abc");
    row("blocks", "<p>a</p>\n<p>b<br>c</p>", "a\nb\nc");
    row("cells", "<table><tr><td>a</td><td>b</td></tr><tr><td>c</table>", "a b \nc");
    row("entities", "<p>&lt;b&gt; &amp; &euro; &#x41;", "<b> & € A");
    row("style", "<style>p { color: red }</style><title>t</title><p>a", "a");
    row("remark", "<p>a<!-- <b>x</b> -->b", "ab");
    row("angles", "<p>a < b and c <5, d > e <z, <p>f", "a < b and c <5, d > e <z, \nf");
    row("open quote", "<p>a</p><a href=\"x>b</a> c", "a\nb c");
    row("open tag", "<p>a <p", "a <p");
    row("prepared", "<pre>a\n  b</pre>", "a\n  b");
    row("picture", "<p>a<img src=a.png>b", "ab");
}

void TestRichNotes::wordsAreThoseOfTheNotes()
{
    QFETCH(QString, notes);
    QTEST(RichNotes::words(notes), "words");
}

void TestRichNotes::hostileNotesAreShownWithoutDelay_data()
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
    for (const char *tag : {"<td colspan=99999>", "<td colspan=+99999>",
                            "<td title=\">\" colspan=99999>", "<td title=\"{}\" colspan=99999>"}) {
        QTest::newRow(tag)
            << QStringLiteral("<table><tr>%1x</table>").arg(QLatin1String(tag)).repeated(60);
    }
    row("length in a tag", QStringLiteral("width"));
    row("open quotes", QStringLiteral("<a b=\"'"));
    row("prepared", QStringLiteral("<pre>"));
    row("prepared lines", QStringLiteral("<pre>x</pre>"));
    row("spaces", QStringLiteral("<p>&nbsp;"));
    row("empty lines", QStringLiteral("<br>"));
    row("open remark", QStringLiteral("<!--"));
    // What is just allowed.
    QTest::newRow("wide cells") << QString("<table>"
                                           + QStringLiteral("<tr><td colspan=9>").repeated(14));
    QTest::newRow("large letters")
        << QString("<p style='font-size:99pt'>" + QStringLiteral("x ").repeated(9000));
    QTest::newRow("high paragraphs of three digits")
        << QStringLiteral("<p style='margin-top:999em'>x").repeated(400);
    QTest::newRow("large font") << QString("<font size=+999>"
                                           + QStringLiteral("x ").repeated(9000));
    QTest::newRow("900 items") << QString("<ul>" + QStringLiteral("<li>").repeated(900));
}

void TestRichNotes::hostileNotesAreShownWithoutDelay()
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
    const auto *label = part<QLabel>(dialog, "descriptionLabel");
    const bool isRich = label->textFormat() == Qt::RichText;
    QVERIFY(label->text().size() <= (isRich ? 20000 : kLongestPlainCharacters));
    QVERIFY(dialog.width() <= dialog.screen()->availableGeometry().width());
    QVERIFY(dialog.height() <= dialog.screen()->availableGeometry().height());
}

void TestRichNotes::picturesFromOutsideStayEmpty_data()
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

void TestRichNotes::picturesFromOutsideStayEmpty()
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
    QVERIFY2(shown.contains(u"Faster and <b>"), qPrintable(shown));
}

void TestRichNotes::remotePicturesAreNotAskedFor()
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

void TestRichNotes::picturesInTheTextAreShown()
{
    Dialog dialog;
    receive(dialog, newReleaseWith("Description", imageTag(asPng(redPicture()))));
    QVERIFY(hasRed(paintedNotes(dialog)));
}

void TestRichNotes::largeOrBrokenPicturesAreNotShown_data()
{
    QTest::addColumn<QString>("picture");
    QTest::newRow("huge") << imageTag(whitePng(5600));
    QTest::newRow("large together") << imageTag(whitePng(900)).repeated(2);
    QByteArray broken = whitePng(900);
    // Within the picture's compressed data.
    broken.truncate(broken.size() / 2);
    QTest::newRow("broken") << imageTag(broken);
    QTest::newRow("no picture") << imageTag(QByteArray("x"));
    QTest::newRow("percent") << QStringLiteral("<img src=\"data:image/png;base64,%41\">");
    QTest::newRow("vector") << QStringLiteral("<img src=\"data:image/svg+xml,<svg/>\">");
}

void TestRichNotes::largeOrBrokenPicturesAreNotShown()
{
    QFETCH(QString, picture);
    QLabel label;
    showNotes(QStringLiteral("<p>a</p>") + picture, label);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), "a");
}

int main(int argc, char **argv)
{
    return runTest<TestRichNotes>(argc, argv);
}

#include "tst_RichNotes.moc"
