#include "ReportTestFont.h"
#include "ReportTextLayouts.h"
#include "TXGraphicsScene.h"
#include "TestBase.h"

#include <QFont>
#include <QRandomGenerator>
#include <QSizeF>
#include <QStringList>

namespace {

QString randomText(QRandomGenerator &random, char16_t first, char16_t last, int longest)
{
    QString text;
    const int length = random.bounded(longest + 1);
    for (int i = 0; i < length; ++i) {
        text.append(QChar(char16_t(random.bounded(int(first), int(last) + 1))));
    }
    return text;
}

QFont randomFont(QRandomGenerator &random)
{
    QFont font = reportTestFont(random.bounded(4, 40));
    font.setWeight(random.bounded(2) == 0 ? QFont::Normal : QFont::Bold);
    font.setItalic(random.bounded(4) == 0);
    if (random.bounded(4) == 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, random.bounded(3.0));
    }
    if (random.bounded(4) == 0) {
        font.setFamily(QStringLiteral("DejaVu Sans Mono"));
    }
    return font;
}

QSizeF measured(const QString &text, const QFont &font)
{
    return TXGraphicsScene::getBoundingRectOfText(text, font).size();
}

/// QCOMPARE takes sizes that are nearly equal for equal.
bool isExactly(const QSizeF &one, const QSizeF &other)
{
    return one.width() == other.width() && one.height() == other.height();
}

} // namespace

class TestReportTextLayouts : public TestBase
{
    Q_OBJECT

private slots:
    void sizesAreThoseThatTheSceneMeasures();
    void sizesOfUnusualTextsToo_data();
    void sizesOfUnusualTextsToo();
    void linesStandBelowOneAnother();
    void aTextThatComesAgainIsTheSame();
    void longTextsAreLaidOutButNotRemembered();
};

void TestReportTextLayouts::sizesAreThoseThatTheSceneMeasures()
{
    QRandomGenerator random(4711);
    for (int fonts = 0; fonts < 40; ++fonts) {
        const QFont font = randomFont(random);
        ReportTextLayouts layouts(font);
        for (int i = 0; i < 200; ++i) {
            // Half of them plain, the others of all alphabets that run from the left or the right.
            const QString text = i % 2 == 0 ? randomText(random, u' ', u'~', 30)
                                            : randomText(random, u' ', u'\u06ff', 12);
            const QSizeF size = layouts.text(text).size;
            QVERIFY2(isExactly(size, measured(text, font)), qPrintable(text + font.toString()));
        }
    }
}

void TestReportTextLayouts::sizesOfUnusualTextsToo_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("blanks around") << QStringLiteral("  12.50  ");
    QTest::newRow("mnemonic") << QStringLiteral("A&B && C");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\n\nthree");
    QTest::newRow("tab") << QStringLiteral("one\ttwo");
    QTest::newRow("joined letters") << QStringLiteral("office flower");
    QTest::newRow("Hebrew") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd 12");
    QTest::newRow("combining") << QStringLiteral("e\u0301a\u0308");
    QTest::newRow("beyond 16 bits") << QStringLiteral("\U0001F3A8 colour");
}

void TestReportTextLayouts::sizesOfUnusualTextsToo()
{
    QFETCH(QString, text);
    ReportTextLayouts layouts(reportTestFont());
    QVERIFY(isExactly(layouts.text(text).size, measured(text, reportTestFont())));
}

void TestReportTextLayouts::linesStandBelowOneAnother()
{
    ReportTextLayouts layouts(reportTestFont());
    const QTextLayout &layout = layouts.text(QStringLiteral("one\ntwo")).layout;
    QCOMPARE(layout.lineCount(), 2);
    QCOMPARE(layout.lineAt(0).y(), 0.0);
    QCOMPARE(layout.lineAt(1).y(), layout.lineAt(0).height());
}

void TestReportTextLayouts::aTextThatComesAgainIsTheSame()
{
    ReportTextLayouts layouts(reportTestFont());
    const auto *first = &layouts.text(QStringLiteral("12.50"));
    QVERIFY(&layouts.text(QStringLiteral("12.51")) != first);
    QCOMPARE(&layouts.text(QStringLiteral("12.50")), first);
}

void TestReportTextLayouts::longTextsAreLaidOutButNotRemembered()
{
    ReportTextLayouts layouts(reportTestFont());
    const auto *remembered = &layouts.text(QStringLiteral("12.50"));
    const QString longText(100'000, QLatin1Char('x'));
    QCOMPARE(layouts.text(longText).layout.text(), longText);
    QCOMPARE(&layouts.text(QStringLiteral("12.50")), remembered);
}

int main(int argc, char **argv)
{
    return runTest<TestReportTextLayouts>(argc, argv);
}

#include "tst_ReportTextLayouts.moc"
