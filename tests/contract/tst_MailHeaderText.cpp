#include "MailHeaderText.h"
#include "TestBase.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

/// The text of encoded words, read by the rules alone.
QString decoded(const QByteArray &words)
{
    QByteArray utf8;
    const QByteArrayList lines = QByteArray(words).replace("\r\n ", " ").split(' ');
    for (const QByteArray &word : lines) {
        if (!word.startsWith("=?UTF-8?B?") || !word.endsWith("?=") || word.size() > 75) {
            return "not an encoded word: " + word;
        }
        const QByteArray bytes = QByteArray::fromBase64(word.mid(10, word.size() - 12));
        const QString text = QString::fromUtf8(bytes);
        if (text.contains(QChar::ReplacementCharacter)) {
            return "cut inside a character: " + word;
        }
        utf8 += bytes;
    }
    return QString::fromUtf8(utf8);
}

qsizetype longestLine(const QByteArray &text, qsizetype column)
{
    qsizetype longest = 0;
    const QByteArrayList lines = QByteArray(text).replace("\r\n", "\n").split('\n');
    for (const QByteArray &line : lines) {
        longest = std::max(longest, line.size() + (&line == &lines.first() ? column : 0));
    }
    return longest;
}

} // namespace

class TestMailHeaderText : public TestBase
{
    Q_OBJECT

private slots:
    void controlsBecomeBlanks_data();
    void controlsBecomeBlanks();
    void plainTextStaysAsItIs_data();
    void plainTextStaysAsItIs();
    void longPlainTextIsFoldedAtBlanks();
    void textThatHeadersWouldHarmIsEncoded_data();
    void textThatHeadersWouldHarmIsEncoded();
    void wordsAreShortAndCutBetweenCharacters_data();
    void wordsAreShortAndCutBetweenCharacters();
    void megabyteIsQuick_data();
    void megabyteIsQuick();
};

void TestMailHeaderText::controlsBecomeBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("clean");
    QTest::newRow("none") << "abc"
                          << "abc";
    QTest::newRow("line feed") << "a\nb"
                               << "a b";
    QTest::newRow("carriage return") << "a\rb"
                                     << "a b";
    QTest::newRow("both are one") << "a\r\nb"
                                  << "a b";
    QTest::newRow("other order") << "a\n\rb"
                                 << "a  b";
    QTest::newRow("tab, NUL, DEL") << QString::fromLatin1("a\tb\0c\x7f", 6) << "a b c ";
    QTest::newRow("next line") << QStringLiteral("a\u0085b") << "a b";
    QTest::newRow("separators") << QStringLiteral("a\u2028b\u2029c") << "a b c";
    QTest::newRow("beyond 16 bits") << QStringLiteral("a😀b") << QStringLiteral("a😀b");
}

void TestMailHeaderText::controlsBecomeBlanks()
{
    QFETCH(QString, text);
    QFETCH(QString, clean);
    QCOMPARE(withoutControls(text), clean);
}

void TestMailHeaderText::plainTextStaysAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("words") << "Report of today";
    QTest::newRow("signs") << "100% \"done\" <now> = ok? (yes)";
    QTest::newRow("question") << "why =/= because?";
}

void TestMailHeaderText::plainTextStaysAsItIs()
{
    QFETCH(QString, text);
    QCOMPARE(QString::fromLatin1(unstructuredHeader(text, 9)), text);
}

void TestMailHeaderText::longPlainTextIsFoldedAtBlanks()
{
    const QString text = QStringLiteral("word ").repeated(100).trimmed();
    const QByteArray folded = unstructuredHeader(text, 9);
    QVERIFY(longestLine(folded, 9) <= 76);
    QVERIFY(longestLine(folded, 9) > 70);
    QCOMPARE(QString::fromLatin1(folded).remove("\r\n"), text);
}

void TestMailHeaderText::textThatHeadersWouldHarmIsEncoded_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("not ASCII") << QStringLiteral("Prüfbericht");
    QTest::newRow("like an encoded word") << "=?UTF-8?B?YQ==?=";
    QTest::newRow("two blanks") << "a  b";
    QTest::newRow("blank in front") << " a";
    QTest::newRow("blank behind") << "a ";
    QTest::newRow("long word") << QString(100, 'x');
}

void TestMailHeaderText::textThatHeadersWouldHarmIsEncoded()
{
    QFETCH(QString, text);
    QCOMPARE(decoded(unstructuredHeader(text, 9)), text);
}

void TestMailHeaderText::wordsAreShortAndCutBetweenCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("column");
    const QList<QPair<const char *, QString>> texts = {{"one byte", "x"},
                                                       {"two bytes", QStringLiteral("ä")},
                                                       {"three bytes", QStringLiteral("€")},
                                                       {"four bytes", QStringLiteral("😀")},
                                                       {"mixed", QStringLiteral("aä€😀")}};
    for (const auto &[name, text] : texts) {
        for (const int column : {0, 1, 9, 38, 39, 40}) {
            QTest::addRow("%s at %d", name, column) << text.repeated(60) << column;
        }
    }
}

void TestMailHeaderText::wordsAreShortAndCutBetweenCharacters()
{
    QFETCH(QString, text);
    QFETCH(int, column);
    const QByteArray words = encodedWords(text, column);
    QCOMPARE(decoded(words), text);
    QVERIFY2(longestLine(words, column) <= 76, words);
    QVERIFY(std::all_of(words.begin(), words.end(), [](char c) { return c > 0; }));
}

void TestMailHeaderText::megabyteIsQuick_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << QString(kMegabyte, 'x');
    QTest::newRow("words") << QStringLiteral("word ").repeated(kMegabyte / 5).trimmed();
    QTest::newRow("letters") << QStringLiteral("x ").repeated(kMegabyte / 2).trimmed();
    QTest::newRow("not ASCII") << QString(kMegabyte, u'ä');
    QTest::newRow("controls") << QString(kMegabyte, u'\n');
}

void TestMailHeaderText::megabyteIsQuick()
{
    QFETCH(QString, text);
    QElapsedTimer timer;
    timer.start();
    const QByteArray header = unstructuredHeader(text, 9);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(header.size() >= kMegabyte - 5);
    QVERIFY(longestLine(header, 9) <= 76);
}

int main(int argc, char **argv)
{
    return runTest<TestMailHeaderText>(argc, argv);
}

#include "tst_MailHeaderText.moc"
