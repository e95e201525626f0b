#include "ClippedText.h"

#include "TestBase.h"

class TestClippedText : public TestBase
{
    Q_OBJECT

private slots:
    void textIsClippedBetweenCharacters_data();
    void textIsClippedBetweenCharacters();
};

void TestClippedText::textIsClippedBetweenCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("clipped");
    QTest::newRow("shorter") << u"abc"_qs << 4 << u"abc"_qs;
    QTest::newRow("as long") << u"abc"_qs << 3 << u"abc"_qs;
    QTest::newRow("longer") << u"abc"_qs << 2 << u"ab\u2026"_qs;
    QTest::newRow("empty") << QString() << 0 << QString();
    QTest::newRow("nothing of it") << u"abc"_qs << 0 << u"\u2026"_qs;
    QTest::newRow("negative") << u"abc"_qs << -1 << u"\u2026"_qs;
    QTest::newRow("in a pair") << u"a\U0001F600b"_qs << 2 << u"a\u2026"_qs;
    QTest::newRow("in the first pair") << u"\U0001F600b"_qs << 1 << u"\u2026"_qs;
    QTest::newRow("behind a pair") << u"a\U0001F600b"_qs << 3 << u"a\U0001F600\u2026"_qs;
    QTest::newRow("100,000") << QString(100'000, u'x') << 500 << QString(500, u'x') + u'\u2026';
}

void TestClippedText::textIsClippedBetweenCharacters()
{
    QFETCH(QString, text);
    QFETCH(int, length);
    QFETCH(QString, clipped);
    QCOMPARE(ClippedText::clipped(text, length), clipped);
}

int main(int argc, char **argv)
{
    return runTest<TestClippedText>(argc, argv);
}

#include "tst_ClippedText.moc"
