#include "ColouredLineLayout.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QFile>
#include <QFontDatabase>
#include <QLoggingCategory>
#include <QPainter>
#include <QRandomGenerator>
#include <QTextDocument>
#include <QtMath>

namespace {

constexpr quint32 kSeed = 777;
constexpr qsizetype kMillion = 1000000;

/// Twice the resolution of the tests' screen.
constexpr int kDotsPerMeter = 7559;

ColouredLine lineOf(const QString &content)
{
    return ColouredLine(VariantHtml::line(content));
}

/// The size that Qt's rich text takes for the same.
QSize sizeOfDocument(const QString &content, const QFont &font)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(VariantHtml::line(content));
    QTextOption option;
    option.setWrapMode(QTextOption::ManualWrap);
    document.setDefaultTextOption(option);
    document.setTextWidth(-1);
    return {qCeil(document.size().width()), qCeil(document.size().height())};
}

QSize sizeOf(const ColouredLineLayout &layout)
{
    return {qCeil(layout.width()), layout.height()};
}

QImage pictureOf(const ColouredLineLayout &layout, qreal from, qreal to)
{
    QImage picture(qCeil(to - from), layout.height(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    layout.draw(painter, QPointF(-from, 0), from, to);
    return picture;
}

bool isBlank(const QImage &picture)
{
    QImage blank(picture);
    blank.fill(Qt::white);
    return picture == blank;
}

bool hasColour(const QImage &picture, const QColor &colour)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

/// The bytes of a name as font files have it.
QByteArray inFontFile(const QString &name)
{
    QByteArray bytes;
    for (const QChar letter : name) {
        bytes.append(char(letter.row())).append(char(letter.cell()));
    }
    return bytes;
}

/// A font file of the tests' monospaced font under another name, which has as many characters.
QByteArray fixedPitchFontNamed(const QString &family)
{
    QFile file(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf"));
    if (!file.open(QFile::ReadOnly)) {
        return {};
    }
    const QString name = QStringLiteral("DejaVu Sans Mono");
    return file.readAll()
        .replace(inFontFile(name), inFontFile(family))
        .replace(name.toLatin1(), family.toLatin1());
}

QString randomContent(QRandomGenerator &random)
{
    static const QStringList kPieces{
        QStringLiteral("a"),
        QStringLiteral("words of "),
        QStringLiteral("<b>bold, </b>"),
        QStringLiteral("<span style=\"color: #0000ff\">blue</span>"),
        QStringLiteral("é"),
        QStringLiteral("語"),
        QStringLiteral("e\u0301"),
        QStringLiteral("\U0001f600"),
        QStringLiteral("0123456789").repeated(20),
        QStringLiteral("\u00a0"),
    };
    QString content;
    for (int i = random.bounded(60); i >= 0; --i) {
        content += kPieces.at(random.bounded(int(kPieces.size())));
    }
    return content;
}

} // namespace

class TestColouredLineLayout : public TestBase
{
    Q_OBJECT

private slots:
    void fixedPitchFontHasOneAdvance();
    void otherFontsHaveNoCommonAdvance();
    void newFontsAreMeasuredAgain();
    void fontsAreMeasuredAtEachResolution();
    void emptyLineIsAsHighAsTheFont();
    void anyLineTakesTheRoomOfQtsRichText();
    void longLinesTakeTheRoomOfQtsRichText_data();
    void longLinesTakeTheRoomOfQtsRichText();
    void partsAreWhatTheWholeShows();
    void lettersWithoutAColourTakeThePen();
    void placesOutsideTheLineStayBlank();
    void nothingStandsBeyondTheWidestWidget();
    void manyLettersOfOtherScriptsAreCounted();
    void manyLettersWithoutACommonAdvanceStandApart();
    void lettersThatWereNotMeasuredKeepToTheirRoom();
    void wordsBehindLettersWithoutWidthAreShown();
};

void TestColouredLineLayout::fixedPitchFontHasOneAdvance()
{
    const FixedPitchFonts::Metrics metrics =
        FixedPitchFonts::metrics(QFont(QStringLiteral("DejaVu Sans Mono"), 10));

    QVERIFY(metrics.advanceSteps > qint64(6) * FixedPitchFonts::kStepsPerPixel);
    QVERIFY(metrics.ascent > metrics.descent);
    QVERIFY(metrics.descent > 0);
}

void TestColouredLineLayout::otherFontsHaveNoCommonAdvance()
{
    QCOMPARE(FixedPitchFonts::metrics(QFont(QStringLiteral("DejaVu Sans"), 10)).advanceSteps, 0);

    QFont spaced(QStringLiteral("DejaVu Sans Mono"), 10);
    spaced.setWordSpacing(2.0);
    QCOMPARE(FixedPitchFonts::metrics(spaced).advanceSteps, 0);
}

void TestColouredLineLayout::newFontsAreMeasuredAgain()
{
    const QString family = QStringLiteral("Nova9u Sans Mono");
    QCOMPARE(FixedPitchFonts::metrics(QFont(family, 10)).advanceSteps, 0);

    const int added = QFontDatabase::addApplicationFontFromData(fixedPitchFontNamed(family));

    QCOMPARE(QFontDatabase::applicationFontFamilies(added), QStringList{family});
    QVERIFY(FixedPitchFonts::metrics(QFont(family, 10)).advanceSteps > 0);
    QVERIFY(QFontDatabase::removeApplicationFont(added));
}

void TestColouredLineLayout::fontsAreMeasuredAtEachResolution()
{
    const QFont font(QStringLiteral("DejaVu Sans Mono"), 10);
    QImage fine(1, 1, QImage::Format_RGB32);
    fine.setDotsPerMeterX(kDotsPerMeter);
    fine.setDotsPerMeterY(kDotsPerMeter);
    const qint64 coarseSteps = FixedPitchFonts::metrics(font).advanceSteps;

    const qint64 fineSteps = FixedPitchFonts::metrics(QFont(font, &fine)).advanceSteps;

    QVERIFY(fineSteps > 3 * coarseSteps / 2);
    QCOMPARE(FixedPitchFonts::metrics(font).advanceSteps, coarseSteps);
}

void TestColouredLineLayout::emptyLineIsAsHighAsTheFont()
{
    for (const int points : {6, 9, 30}) {
        const QFont font(QStringLiteral("DejaVu Serif"), points);
        const ColouredLineLayout layout(ColouredLine(), font);

        QCOMPARE(sizeOf(layout), sizeOfDocument(QString(), font));
        QVERIFY(isBlank(pictureOf(layout, 0, 10)));
    }
}

void TestColouredLineLayout::anyLineTakesTheRoomOfQtsRichText()
{
    QRandomGenerator random(kSeed);
    for (int i = 0; i < 300; ++i) {
        const QString content = randomContent(random);
        QFont font;
        font.setPointSizeF(6 + random.bounded(160) / 8.0);

        const ColouredLineLayout layout(lineOf(content), font);

        QCOMPARE(sizeOf(layout), sizeOfDocument(content, font));
    }
}

void TestColouredLineLayout::longLinesTakeTheRoomOfQtsRichText_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("letters") << QStringLiteral("x").repeated(9000);
    QTest::newRow("words") << QStringLiteral("some words ").repeated(900);
    QTest::newRow("accents") << QStringLiteral("é").repeated(3000);
    QTest::newRow("marks") << QStringLiteral("e\u0301").repeated(1500);
    QTest::newRow("pairs") << QStringLiteral("\U0001f600").repeated(1500);
    QTest::newRow("letter of another font at the end") << QStringLiteral("x").repeated(900) + u'語';
    QTest::newRow("soft hyphens") << QStringLiteral("syl\u00ad").repeated(700);
    QTest::newRow("runs") << QStringLiteral("<b>[</b>a").repeated(2000);
    QTest::newRow("word of bold runs") << QStringLiteral("<b>WAVE</b>").repeated(2000);
}

void TestColouredLineLayout::longLinesTakeTheRoomOfQtsRichText()
{
    QFETCH(const QString, content);

    const ColouredLineLayout layout(lineOf(content), QFont());

    QCOMPARE(sizeOf(layout), sizeOfDocument(content, QFont()));
}

void TestColouredLineLayout::partsAreWhatTheWholeShows()
{
    QRandomGenerator random(kSeed);
    for (int i = 0; i < 10; ++i) {
        const ColouredLineLayout layout(lineOf(randomContent(random) + QStringLiteral("end")),
                                        QFont());
        const QImage whole = pictureOf(layout, 0, layout.width());
        for (int part = 0; part < 20; ++part) {
            const int from = random.bounded(whole.width());
            const int width = qMin(1 + random.bounded(90), whole.width() - from);
            QCOMPARE(pictureOf(layout, from, from + width),
                     whole.copy(from, 0, width, whole.height()));
        }
    }
}

void TestColouredLineLayout::lettersWithoutAColourTakeThePen()
{
    const QString content = QStringLiteral("\u2588<span style=\"color: #00ff00\">\u2588</span>");
    const ColouredLineLayout layout(lineOf(content), QFont());
    QImage picture(40, layout.height(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(Qt::red);

    layout.draw(painter, QPointF(), 0, 40);

    const int middle = layout.height() / 2;
    QCOMPARE(picture.pixelColor(3, middle), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(11, middle), QColor(Qt::green));
    QCOMPARE(painter.pen().color(), QColor(Qt::red));
}

void TestColouredLineLayout::placesOutsideTheLineStayBlank()
{
    const ColouredLineLayout layout(lineOf(QStringLiteral("x").repeated(1000)), QFont());

    QVERIFY(!isBlank(pictureOf(layout, 0, 20)));
    QVERIFY(isBlank(pictureOf(layout, -500, -400)));
    QVERIFY(isBlank(pictureOf(layout, layout.width() + 5, layout.width() + 100)));
}

void TestColouredLineLayout::nothingStandsBeyondTheWidestWidget()
{
    const ColouredLineLayout layout(lineOf(QStringLiteral("x").repeated(5 * kMillion)), QFont());

    QCOMPARE(layout.width(), qreal(ColouredLineLayout::kWidestPixels));
    QCOMPARE(ColouredLineLayout::kWidestPixels, QWIDGETSIZE_MAX);
    const int end = ColouredLineLayout::kWidestPixels;
    QVERIFY(!isBlank(pictureOf(layout, end - 20, end)));
}

void TestColouredLineLayout::manyLettersOfOtherScriptsAreCounted()
{
    const qsizetype count = 2 * ColouredLineLayout::kLaidOutMaximum;
    const ColouredLineLayout layout(lineOf(QStringLiteral("é").repeated(count)), QFont());
    const ColouredLineLayout plain(lineOf(QStringLiteral("e").repeated(count)), QFont());

    QCOMPARE(layout.width(), plain.width());
    QVERIFY(!isBlank(pictureOf(layout, layout.width() - 20, layout.width())));
}

void TestColouredLineLayout::manyLettersWithoutACommonAdvanceStandApart()
{
    QFont font;
    font.setWordSpacing(2.0);
    const QString content = QStringLiteral("x").repeated(2 * ColouredLineLayout::kLaidOutMaximum);

    const ColouredLineLayout layout(lineOf(content), font);

    QCOMPARE(layout.width(), ColouredLineLayout(lineOf(content), QFont()).width());
}

void TestColouredLineLayout::lettersThatWereNotMeasuredKeepToTheirRoom()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    constexpr int kPlainLetters = 588;
    const QString measured = QStringLiteral("é").repeated(ColouredLineLayout::kLaidOutMaximum);
    const QString wide = QStringLiteral("<span style=\"color: #ff0000\">%1</span>")
                             .arg(QStringLiteral("\u0915").repeated(500));
    const QString plain = QStringLiteral("x").repeated(12 + kPlainLetters);
    const ColouredLineLayout layout(lineOf(measured + wide + plain), QFont());

    const qreal letter = ColouredLineLayout(lineOf(QStringLiteral("x")), QFont()).advance();
    const qreal left = layout.advance() - kPlainLetters * letter;

    QVERIFY(hasColour(pictureOf(layout, left - 500, left - 100), Qt::red));
    QVERIFY(!hasColour(pictureOf(layout, left + 1, left + 400), Qt::red));
    QVERIFY(!isBlank(pictureOf(layout, left + 1, left + 400)));
    QLoggingCategory::setFilterRules(QString());
}

void TestColouredLineLayout::wordsBehindLettersWithoutWidthAreShown()
{
    const QString nothing =
        QStringLiteral("\u200b").repeated(3 * ColouredLineLayout::kLaidOutMaximum);
    const ColouredLineLayout words(lineOf(QStringLiteral("x").repeated(300)), QFont());

    const ColouredLineLayout layout(lineOf(nothing + QStringLiteral("x").repeated(300)), QFont());

    QCOMPARE(layout.width(), words.width());
    QVERIFY(!isBlank(pictureOf(layout, 0, 100)));
    QVERIFY(!isBlank(pictureOf(layout, layout.width() - 100, layout.width())));
}

int main(int argc, char **argv)
{
    return runTest<TestColouredLineLayout>(argc, argv);
}

#include "tst_ColouredLineLayout.moc"
