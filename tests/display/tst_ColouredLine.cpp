#include "ColouredLine.h"

#include "TestBase.h"
#include "VariantHtml.h"

#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextDocument>
#include <QVariant>

#include <algorithm>
#include <ctime>

namespace {

constexpr quint32 kSeed = 20240611;
constexpr qsizetype kMillion = 1000000;

/// What takes longer hangs; it is many times what is needed, under sanitizers too. Counted is the
/// time of this process, as other programs may be at work.
constexpr qint64 kHungSeconds = 4;

/// One character as it looks; two lines are the same when all their characters are.
struct Letter
{
    char16_t code = 0;
    QRgb colour = 0;
    bool isColoured = false;
    bool isBold = false;

    bool operator==(const Letter &other) const
    {
        return code == other.code && colour == other.colour && isColoured == other.isColoured
            && isBold == other.isBold;
    }
};

QString described(const QList<Letter> &letters)
{
    QStringList words;
    for (const Letter &letter : letters) {
        words.append(QStringLiteral("%1%2%3")
                         .arg(letter.code, 0, 16)
                         .arg(letter.isColoured ? QColor(letter.colour).name() : QString(),
                              letter.isBold ? QStringLiteral("b") : QString()));
    }
    return words.join(u' ');
}

QList<Letter> lettersOf(const ColouredLine &line)
{
    QList<Letter> letters;
    for (std::size_t i = 0; i < line.runs().size(); ++i) {
        const ColouredLine::Run &run = line.runs()[i];
        const qsizetype end =
            i + 1 < line.runs().size() ? line.runs()[i + 1].start : line.text().size();
        for (qsizetype place = run.start; place < end; ++place) {
            letters.append({line.text()[place].unicode(), run.style.colour, run.style.isColoured,
                            run.style.isBold});
        }
    }
    return letters;
}

void appendLetters(QList<Letter> &letters, const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    const bool isColoured = format.hasProperty(QTextFormat::ForegroundBrush);
    const QRgb colour = isColoured ? format.foreground().color().rgba() : 0;
    const QString text = fragment.text();
    for (const QChar letter : text) {
        letters.append({letter.unicode(), colour, isColoured, format.fontWeight() == QFont::Bold});
    }
}

/// The letters as Qt's rich text has them.
QList<Letter> lettersOfDocument(const QString &markup)
{
    QTextDocument document;
    document.setHtml(markup);
    QList<Letter> letters;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto i = block.begin(); !i.atEnd(); ++i) {
            appendLetters(letters, i.fragment());
        }
    }
    return letters;
}

void compareWithDocument(const QString &markup)
{
    const ColouredLine line(markup);
    QVERIFY2(!line.isForeign(), qPrintable(markup));
    QCOMPARE(described(lettersOf(line)), described(lettersOfDocument(markup)));
}

QString pick(QRandomGenerator &random, const QStringList &choices)
{
    return choices.at(random.bounded(int(choices.size())));
}

QString randomWords(QRandomGenerator &random)
{
    static const QStringList kPieces{
        QStringLiteral("a"),       QStringLiteral("Zq"),
        QStringLiteral(" "),       QStringLiteral("  "),
        QStringLiteral("\n"),      QStringLiteral("\t "),
        QStringLiteral("\r\n"),    QStringLiteral("&lt;"),
        QStringLiteral("&gt;"),    QStringLiteral("&amp;"),
        QStringLiteral("&quot;"),  QStringLiteral("& "),
        QStringLiteral("\u00a0"),  QStringLiteral("\u2003"),
        QStringLiteral("\u2028"),  QStringLiteral("\u3000"),
        QStringLiteral("\u0085"),  QStringLiteral("é"),
        QStringLiteral("語"),      QStringLiteral("\U0001f600"),
        QStringLiteral("e\u0301"), QStringLiteral("\u200b"),
        QString(QChar(0)),         QStringLiteral(">"),
        QStringLiteral(";"),       QStringLiteral("\x1c"),
    };
    QString words;
    for (int i = random.bounded(6); i > 0; --i) {
        words += pick(random, kPieces);
    }
    return words;
}

QString randomPiece(QRandomGenerator &random)
{
    static const QStringList kFrames{
        QStringLiteral("%1"),
        QStringLiteral("<b>%1</b>"),
        QStringLiteral("<span style=\"color: #606060\"><b>%1</b></span>"),
        QStringLiteral("<span style=\"color: #006000\">%1</span>"),
        QStringLiteral("<b>x<span style=\"color: #0abcde\">%1</span> </b>"),
        QStringLiteral("<span style=\"color: #000000\"> %1<b></b></span>"),
    };
    return pick(random, kFrames).arg(randomWords(random));
}

} // namespace

class TestColouredLine : public TestBase
{
    Q_OBJECT

private slots:
    void lineIsEmptyAtFirst();
    void readsAsQtDoes_data();
    void readsAsQtDoes();
    void readsValuesAsQtDoes();
    void readsAnythingOfItsOwnAsQtDoes();
    void neighboursOfOneStyleAreOneRun();
    void foreignMarkupStandsAsItWasWritten_data();
    void foreignMarkupStandsAsItWasWritten();
    void foreignIsAllThatQtReadsInAnotherWay();
    void directionIsSeen_data();
    void directionIsSeen();
    void endlessTextsAreReadAtOnce_data();
    void endlessTextsAreReadAtOnce();
};

void TestColouredLine::lineIsEmptyAtFirst()
{
    const ColouredLine line;

    QVERIFY(line.text().isEmpty());
    QVERIFY(line.runs().empty());
    QVERIFY(!line.isForeign());
    QVERIFY(!line.hasRightToLeft());
}

void TestColouredLine::readsAsQtDoes_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("nothing") << QString();
    QTest::newRow("words") << QStringLiteral("two words");
    QTest::newRow("blanks in front and behind") << QStringLiteral("  a  ");
    QTest::newRow("blanks across styles") << QStringLiteral("a <b> b </b> c");
    QTest::newRow("blank in front of the first letter") << QStringLiteral("<b> </b>a");
    QTest::newRow("line feeds and tabs") << QStringLiteral("a\r\n\tb\x0b\x0c"
                                                           "c");
    QTest::newRow("no-break spaces") << QStringLiteral("\u00a0 a\u00a0\u00a0 \u00a0b");
    QTest::newRow("wide and odd blanks") << QStringLiteral("a\u2003\u3000\u2028\u0085 b");
    QTest::newRow("entities") << QStringLiteral("&lt;b&gt; &amp;amp; &quot;x&quot;");
    QTest::newRow("lone ampersand") << QStringLiteral("a&b & c&");
    QTest::newRow("semicolon too far for an entity") << QStringLiteral("&abcdefghi;");
    QTest::newRow("blank before the semicolon") << QStringLiteral("&lt ;&a\u00a0;");
    QTest::newRow("null characters") << QString(QChar(0)) + u'a' + QChar(0);
    QTest::newRow("empty styles") << QStringLiteral(
        "<b></b>a<span style=\"color: #123456\"></span>");
    QTest::newRow("greater than") << QStringLiteral("a > b -->");
}

void TestColouredLine::readsAsQtDoes()
{
    QFETCH(const QString, content);

    compareWithDocument(VariantHtml::line(content));
}

void TestColouredLine::readsValuesAsQtDoes()
{
    const QVariantMap value{
        {QStringLiteral("a <key> & more"), QStringLiteral("text with \"quotes\" &amp; <b>")},
        {QStringLiteral("b"), QVariantList{1, 2.5, true, QVariant(), 3U}},
        {QStringLiteral("children"), QVariantList{QVariantMap()}},
    };

    compareWithDocument(VariantHtml::line(VariantHtml::fromVariant(value, true)));
    compareWithDocument(VariantHtml::key(QStringLiteral("key <&> \"")));
}

void TestColouredLine::readsAnythingOfItsOwnAsQtDoes()
{
    QRandomGenerator random(kSeed);
    int ownLines = 0;
    for (int i = 0; i < 3000; ++i) {
        QString content;
        for (int piece = random.bounded(8); piece > 0; --piece) {
            content += randomPiece(random);
        }
        const QString markup = VariantHtml::line(content);
        // A null character or "& " and ";" may come together to what Qt might read as an entity.
        if (!ColouredLine(markup).isForeign()) {
            ++ownLines;
            compareWithDocument(markup);
        }
    }
    QVERIFY(ownLines > 2500);
}

void TestColouredLine::neighboursOfOneStyleAreOneRun()
{
    const ColouredLine line(VariantHtml::line(QStringLiteral(
        "<b>a</b><b>b</b><span style=\"color: #0000ff\">c</span><span style=\"color: "
        "#0000ff\">d</span>")));

    QCOMPARE(line.text(), QStringLiteral("abcd"));
    QCOMPARE(line.runs().size(), std::size_t(2));
    QCOMPARE(line.runs()[1].start, qsizetype(2));
    QVERIFY(line.runs()[1].style == (ColouredLine::Style{0xff0000ff, true, false}));
}

void TestColouredLine::foreignMarkupStandsAsItWasWritten_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("tags");

    const auto same = [](const char *name, const QString &content, int tags) {
        QTest::newRow(name) << content << content << tags;
    };
    same("other tag", QStringLiteral("a<i>b</i>"), 2);
    same("less than", QStringLiteral("1 < 2"), 1);
    same("tag at the end", QStringLiteral("a<"), 1);
    same("closing tag without a start", QStringLiteral("a</b>"), 1);
    same("closing span without a start", QStringLiteral("a</span>b"), 1);
    same("colour by name", QStringLiteral("<span style=\"color: red\">"), 1);
    same("colour that is none", QStringLiteral("<span style=\"color: #12345g\">"), 1);
    same("colour that breaks off", QStringLiteral("<span style=\"color: #123"), 1);
    same("other entity", QStringLiteral("a&nbsp;b"), 0);
    same("entity without a name", QStringLiteral("&#60;&;"), 0);
    QTest::newRow("bold that is not closed")
        << QStringLiteral("a<b>b") << QStringLiteral("ab") << 0;
    QTest::newRow("bold in bold") << QStringLiteral("<b>a<b>b") << QStringLiteral("a<b>b") << 1;
    QTest::newRow("tags that cross")
        << QStringLiteral("<b><span style=\"color: #000000\">a</b></span>")
        << QStringLiteral("a</b>") << 1;
    QTest::newRow("marks of documents") << QStringLiteral("a\u2029\ufdd0\ufdd1\ufffc")
                                        << QStringLiteral("a\ufffd\ufffd\ufffd\ufffd") << 0;
}

void TestColouredLine::foreignMarkupStandsAsItWasWritten()
{
    QFETCH(const QString, content);
    QFETCH(const QString, text);
    QFETCH(const int, tags);

    const ColouredLine line(VariantHtml::line(content));

    QCOMPARE(line.text(), text);
    QVERIFY(line.isForeign());
    QCOMPARE(line.foreignTags(), qsizetype(tags));
}

// The other way round than above: whatever is said to be our own reads as Qt reads it.
void TestColouredLine::foreignIsAllThatQtReadsInAnotherWay()
{
    static const QStringList kPieces{
        QStringLiteral("<"),
        QStringLiteral("&"),
        QStringLiteral(";"),
        QStringLiteral("lt"),
        QStringLiteral("amp;"),
        QStringLiteral("/"),
        QStringLiteral("b>"),
        QStringLiteral("<b>"),
        QStringLiteral("</b>"),
        QStringLiteral("</span>"),
        QStringLiteral("x"),
        QStringLiteral(" "),
        QStringLiteral("&nbsp;"),
        QStringLiteral("#65;"),
        QStringLiteral("abcdefg"),
        QStringLiteral("\u2029"),
        QStringLiteral("\ufdd0"),
        QStringLiteral("<i>"),
        QStringLiteral("<span style=\"color: #a0b0c0\">"),
        QStringLiteral("<!--"),
    };
    QRandomGenerator random(kSeed);
    int ownLines = 0;
    for (int i = 0; i < 8000; ++i) {
        QString content;
        for (int piece = random.bounded(6); piece > 0; --piece) {
            content += pick(random, kPieces);
        }
        const QString markup = VariantHtml::line(content);
        if (!ColouredLine(markup).isForeign()) {
            ++ownLines;
            compareWithDocument(markup);
        }
    }
    QVERIFY(ownLines > 1000);
}

void TestColouredLine::directionIsSeen_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isRightToLeft");

    QTest::newRow("latin") << QStringLiteral("abc 123, -5.6 % €") << false;
    QTest::newRow("marks, han and emoji") << QStringLiteral("e\u0301 語 \U0001f600\u200d") << false;
    QTest::newRow("hebrew") << QStringLiteral("a \u05d0") << true;
    QTest::newRow("arabic letters") << QStringLiteral("\u0627") << true;
    QTest::newRow("arabic digits") << QStringLiteral("\u0661") << true;
    QTest::newRow("override") << QStringLiteral("a\u202eb") << true;
    QTest::newRow("isolate") << QStringLiteral("a\u2067b") << true;
    QTest::newRow("beyond the first plane") << QStringLiteral("\U00010900") << true;
    QTest::newRow("half a pair") << QString(QChar(0xd802)) << false;
}

void TestColouredLine::directionIsSeen()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isRightToLeft);

    QCOMPARE(ColouredLine(VariantHtml::line(text)).hasRightToLeft(), isRightToLeft);
}

void TestColouredLine::endlessTextsAreReadAtOnce_data()
{
    QTest::addColumn<QString>("piece");

    QTest::newRow("letters") << QStringLiteral("a");
    QTest::newRow("ampersands") << QStringLiteral("&");
    QTest::newRow("less than") << QStringLiteral("<");
    QTest::newRow("spans that never end") << QStringLiteral("<span style=\"color: #000000\">");
    QTest::newRow("blanks") << QStringLiteral(" ");
    QTest::newRow("null characters") << QString(QChar(0));
    QTest::newRow("separators") << QStringLiteral("\u2029");
}

void TestColouredLine::endlessTextsAreReadAtOnce()
{
    QFETCH(const QString, piece);
    const QString content = piece.repeated(5 * kMillion / piece.size());

    const std::clock_t start = std::clock();

    const ColouredLine line(VariantHtml::line(content));

    QVERIFY(std::clock() - start < kHungSeconds * CLOCKS_PER_SEC);
    QVERIFY(line.text().size() <= content.size());
    QVERIFY(line.runs().size() <= 2);
}

int main(int argc, char **argv)
{
    return runTest<TestColouredLine>(argc, argv);
}

#include "tst_ColouredLine.moc"
