#include "PdfFile.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int kDotsPerInch = 720;
constexpr double kDotsPerPoint = 10.0;

const QColor kPatch(200, 30, 7);

QFont tenPoints()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    return font;
}

/// A program of our own in the place of one of the tools.
void makeTool(const QString &file, const QByteArray &script)
{
    QFile tool(file);
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\n" + script + '\n');
    tool.close();
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

} // namespace

class TestPdfFile : public TestBase
{
    Q_OBJECT

private slots:
    void informationIsRead();
    void wordsStandWhereTheyWerePainted();
    void wordsKnowTheirPage();
    void pageTextsAreSplitByPage();
    void fontsAreListed();
    void picturesAreListedWithTheirResolution();
    void pixelsOfPicturesAreExact();
    void pagesAreRendered();
    void partOfAPageIsRenderedAtAHighResolution();
    void missingFileIsAnError();
    void damagedFileIsAnError();
    void missingToolIsAnError();
    void toolThatFailsOrComplainsIsAnError_data();
    void toolThatFailsOrComplainsIsAnError();
    void firstErrorStays();

protected:
    void prepare() override;
    void finish() override;

private:
    [[nodiscard]] QString fileName() const { return folder->filePath(QStringLiteral("a.pdf")); }
    void write() const;

    std::unique_ptr<QTemporaryDir> folder;
    QByteArray path;
};

void TestPdfFile::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    path = qgetenv("PATH");
    write();
}

void TestPdfFile::finish()
{
    qputenv("PATH", path);
    folder.reset();
}

/// Two pages: a line of text with a picture of 40 by 20 pixels on 14.4 by 7.2 points and a black
/// square; then a word alone.
void TestPdfFile::write() const
{
    QPdfWriter writer(fileName());
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()});
    writer.setTitle(QStringLiteral("Été (\\) ?"));
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(kPatch);
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(kDotsPerPoint, kDotsPerPoint);
    painter.setFont(tenPoints());
    painter.drawText(QPointF(100.25, 200.5), QStringLiteral("Hamburg & <12.5>"));
    painter.drawImage(QRectF(50, 60, 14.4, 7.2), picture);
    painter.fillRect(QRectF(10.37, 20.5, 30, 30), Qt::black);
    writer.newPage();
    painter.drawText(QPointF(20, 20), QStringLiteral("second"));
}

void TestPdfFile::informationIsRead()
{
    PdfFile pdf(fileName());
    const PdfFile::Information information = pdf.information();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(information.title, QStringLiteral("Été (\\) ?"));
    QCOMPARE(information.author, QString());
    QCOMPARE(information.pageSizes, (QList<QSizeF>{{595, 842}, {595, 842}}));
}

void TestPdfFile::wordsStandWhereTheyWerePainted()
{
    PdfFile pdf(fileName());
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(words.size(), 3);
    QCOMPARE(words[0].text, QStringLiteral("Hamburg"));
    QCOMPARE(words[1].text, QStringLiteral("&"));
    QCOMPARE(words[2].text, QStringLiteral("<12.5>"));
    const QFontMetricsF metrics(tenPoints());
    const QRectF box = words[0].box;
    QVERIFY(qAbs(box.left() - 100.25) < 0.1);
    QVERIFY(qAbs(box.right() - 100.25 - metrics.horizontalAdvance(words[0].text)) < 0.1);
    QVERIFY(qAbs(box.top() + metrics.ascent() - 200.5) < 0.1);
    QVERIFY(qAbs(box.bottom() - metrics.descent() - 200.5) < 0.1);
}

void TestPdfFile::wordsKnowTheirPage()
{
    PdfFile pdf(fileName());
    const QList<QList<PdfFile::Word>> words = pdf.words();

    QCOMPARE(words.size(), 2);
    QCOMPARE(words[1].size(), 1);
    QCOMPARE(words[1][0].text, QStringLiteral("second"));
}

void TestPdfFile::pageTextsAreSplitByPage()
{
    PdfFile pdf(fileName());
    const QStringList texts = pdf.pageTexts();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts[0].trimmed(), QStringLiteral("Hamburg & <12.5>"));
    QCOMPARE(texts[1].trimmed(), QStringLiteral("second"));
}

void TestPdfFile::fontsAreListed()
{
    PdfFile pdf(fileName());
    const QList<PdfFile::Font> fonts = pdf.fonts();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(fonts.size(), 1);
    QVERIFY2(fonts[0].name.contains(u"DejaVu"), qPrintable(fonts[0].name));
    QVERIFY(fonts[0].isEmbedded);
    QVERIFY(fonts[0].hasCharacters);
}

void TestPdfFile::picturesAreListedWithTheirResolution()
{
    PdfFile pdf(fileName());
    const QList<PdfFile::Picture> pictures = pdf.pictures();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(pictures[0].page, 1);
    QCOMPARE(pictures[0].type, QStringLiteral("image"));
    QCOMPARE(pictures[0].encoding, QStringLiteral("image"));
    QCOMPARE(pictures[0].pixels, QSize(40, 20));
    QCOMPARE(pictures[0].dotsPerInch, QSize(200, 200));
    QCOMPARE(pictures[0].size(), QSizeF(14.4, 7.2));
}

void TestPdfFile::pixelsOfPicturesAreExact()
{
    PdfFile pdf(fileName());
    const QList<QImage> pictures = pdf.pixelsOfPictures(1);
    const QList<QImage> none = pdf.pixelsOfPictures(2);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(pictures[0].size(), QSize(40, 20));
    QCOMPARE(pictures[0].pixelColor(0, 0), kPatch);
    QCOMPARE(pictures[0].pixelColor(39, 19), kPatch);
    QVERIFY(none.isEmpty());
}

void TestPdfFile::pagesAreRendered()
{
    PdfFile pdf(fileName());
    const QImage first = pdf.rendered(1, 72);
    const QImage second = pdf.rendered(2, 144);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(first.size(), QSize(595, 842));
    QCOMPARE(first.pixelColor(30, 30), QColor(Qt::black));
    QVERIFY(PixelProbe(first).isNear({57, 63}, kPatch, 1));
    QCOMPARE(second.size(), QSize(1190, 1684));
    QCOMPARE(second.pixelColor(60, 60), QColor(Qt::white));
}

void TestPdfFile::partOfAPageIsRenderedAtAHighResolution()
{
    PdfFile pdf(fileName());
    // The square's left side stands 37 pixels, of a hundredth of a point each, in.
    const QImage part = pdf.rendered(1, 7200, {1000, 3000, 100, 10});

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(part.size(), QSize(100, 10));
    QCOMPARE(part.pixelColor(34, 5), QColor(Qt::white));
    QCOMPARE(part.pixelColor(40, 5), QColor(Qt::black));
}

void TestPdfFile::missingFileIsAnError()
{
    PdfFile pdf(folder->filePath(QStringLiteral("none.pdf")));

    QVERIFY(pdf.words().isEmpty());
    QVERIFY2(pdf.errorText().startsWith(u"pdftotext: "), qPrintable(pdf.errorText()));
    QVERIFY(pdf.pageTexts().isEmpty());
    QVERIFY(pdf.fonts().isEmpty());
    QVERIFY(pdf.pictures().isEmpty());
    QVERIFY(pdf.pixelsOfPictures(1).isEmpty());
    QVERIFY(pdf.information().pageSizes.isEmpty());
    QVERIFY(pdf.rendered(1, 72).isNull());
}

void TestPdfFile::damagedFileIsAnError()
{
    QFile file(fileName());
    QVERIFY(file.resize(file.size() / 2));
    PdfFile pdf(fileName());

    QVERIFY(pdf.pageTexts().isEmpty());
    QVERIFY2(pdf.errorText().startsWith(u"pdftotext: "), qPrintable(pdf.errorText()));
}

void TestPdfFile::missingToolIsAnError()
{
    qputenv("PATH", QFile::encodeName(folder->path()));
    PdfFile pdf(fileName());

    QVERIFY(pdf.fonts().isEmpty());
    QCOMPARE(pdf.errorText(),
             QStringLiteral("pdffonts is not installed; it belongs to poppler-utils"));
}

void TestPdfFile::toolThatFailsOrComplainsIsAnError_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("error");
    QTest::newRow("fails in silence")
        << QByteArray("echo text; exit 3") << QStringLiteral("pdftotext: exit code 3");
    QTest::newRow("fails with words")
        << QByteArray("echo broken >&2; exit 1") << QStringLiteral("pdftotext: exit code 1 broken");
    QTest::newRow("succeeds and complains")
        << QByteArray("echo text; echo odd >&2") << QStringLiteral("pdftotext: odd");
}

void TestPdfFile::toolThatFailsOrComplainsIsAnError()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, error);
    makeTool(folder->filePath(QStringLiteral("pdftotext")), script);
    qputenv("PATH", QFile::encodeName(folder->path()));
    PdfFile pdf(fileName());

    QVERIFY(pdf.pageTexts().isEmpty());
    QCOMPARE(pdf.errorText(), error);
}

void TestPdfFile::firstErrorStays()
{
    PdfFile pdf(folder->filePath(QStringLiteral("later.pdf")));
    QVERIFY(pdf.words().isEmpty());
    const QString error = pdf.errorText();
    QVERIFY(QFile::copy(fileName(), folder->filePath(QStringLiteral("later.pdf"))));

    QCOMPARE(pdf.words().size(), 2);
    QCOMPARE(pdf.errorText(), error);
}

int main(int argc, char **argv)
{
    return runTest<TestPdfFile>(argc, argv);
}

#include "tst_PdfFile.moc"
