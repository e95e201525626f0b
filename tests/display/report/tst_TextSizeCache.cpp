#include "TextSizeCache.h"

#include "ReportTestFont.h"
#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QSemaphore>
#include <QVarLengthArray>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace {

QSizeF measured(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).size(Qt::TextShowMnemonic, text);
}

QString exactly(const QSizeF &size)
{
    return SceneTestHelpers::exactly(QPointF(size.width(), size.height()));
}

QFont fontInPoints(double points)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(points);
    return font;
}

/// A device on which a font in points is three times as large as on the screen.
QImage fineDevice()
{
    constexpr double kDotsPerMeter = 3 * 96 / 0.0254;
    QImage image(1, 1, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(kDotsPerMeter));
    image.setDotsPerMeterY(qRound(kDotsPerMeter));
    return image;
}

/// A font with a property set.
template<class Set>
QFont with(Set set)
{
    QFont changed = reportTestFont(11);
    set(changed);
    return changed;
}

const QStringList kTexts = {
    QString(),
    QStringLiteral(" "),
    QStringLiteral("Patch 1"),
    QStringLiteral("  12.50  "),
    QStringLiteral("Black & White"),
    QStringLiteral("&File"),
    QStringLiteral("&&"),
    QStringLiteral("one\ntwo\n\nfour"),
    QStringLiteral("\n"),
    QStringLiteral("a\tb\tc"),
    QStringLiteral("\u05d0\u05d1\u05d2 abc \u0639\u0631\u0628\u064a"),
    QStringLiteral("e\u0301a\u0308\u0323"),
    QStringLiteral("\U0001D50A\U0001F600"),
    QString(QChar(0xD800)),
    QString(QChar(0)),
};

} // namespace

class TestTextSizeCache : public TestBase
{
    Q_OBJECT

private slots:
    void nothingIsLeftOfAnEarlierApplication();
    void sizesAreThoseOfTheMetrics_data();
    void sizesAreThoseOfTheMetrics();
    void fontsOfDifferentDevicesDiffer();
    void fontsSetInPixelsAreOneOnAllDevices();
    void changedFontIsMeasuredAnew();
    void equalFontsCountOnce();
    void textIsRememberedOnce();
    void textInBorrowedMemoryIsCopied();
    void longTextsAreNotRemembered();
    void numberOfTextsIsBounded();
    void numberOfFontsIsBounded();
    void forgettingLeavesNothing();
    void changeOfTheApplicationsFontsForgetsAll();
    void threadsMeasureOneFontTogether();
    void otherThreadsForgetWhenFontsChange();
    void weightIsSet_data();
    void weightIsSet();
    void sameFontGivesTheSameWeightedCopy();
    void weightedCopyKeepsTheMaskOfItsSource();
    void weightedCopySharesNothingWithItsSource();
    void manyWeightedFontsAreRight();

protected:
    void finish() override { TextSizeCache::forget(); }
};

// Runs first: main() has measured with an application that is no more.
void TestTextSizeCache::nothingIsLeftOfAnEarlierApplication()
{
    QCOMPARE(TextSizeCache::fontCount(), 0);
    QCOMPARE(TextSizeCache::textCount(), 0);
}

void TestTextSizeCache::sizesAreThoseOfTheMetrics_data()
{
    QTest::addColumn<QFont>("font");

    QTest::addRow("application's") << QFont();
    QTest::addRow("10 pixels") << reportTestFont(10);
    QTest::addRow("10.5 points") << fontInPoints(10.5);
    QTest::addRow("bold") << with([](QFont &font) { font.setBold(true); });
    QTest::addRow("italic") << with([](QFont &font) { font.setItalic(true); });
    QTest::addRow("underlined") << with([](QFont &font) { font.setUnderline(true); });
    QTest::addRow("stretched") << with([](QFont &font) { font.setStretch(150); });
    QTest::addRow("spaced") << with(
        [](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, 2.5); });
    QTest::addRow("words spaced") << with([](QFont &font) { font.setWordSpacing(4.0); });
    QTest::addRow("capitals") << with(
        [](QFont &font) { font.setCapitalization(QFont::AllUppercase); });
    QTest::addRow("small capitals")
        << with([](QFont &font) { font.setCapitalization(QFont::SmallCaps); });
    QTest::addRow("no kerning") << with([](QFont &font) { font.setKerning(false); });
    QTest::addRow("family that is not there") << QFont(QStringLiteral("No Such Family"), 9);
}

void TestTextSizeCache::sizesAreThoseOfTheMetrics()
{
    QFETCH(QFont, font);

    for (int round = 0; round < 2; ++round) {
        for (const QString &text : kTexts) {
            QCOMPARE(exactly(TextSizeCache::textSize(text, font)), exactly(measured(text, font)));
        }
    }
    QCOMPARE(TextSizeCache::textCount(), kTexts.size());
}

void TestTextSizeCache::fontsOfDifferentDevicesDiffer()
{
    const QImage device = fineDevice();
    const QFont onScreen = fontInPoints(10);
    const QFont onDevice(onScreen, &device);
    const QString text = QStringLiteral("Patch 1");
    QVERIFY(onScreen == onDevice);
    QVERIFY(measured(text, onDevice).width() > 2 * measured(text, onScreen).width());

    for (int round = 0; round < 2; ++round) {
        QCOMPARE(exactly(TextSizeCache::textSize(text, onScreen)),
                 exactly(measured(text, onScreen)));
        QCOMPARE(exactly(TextSizeCache::textSize(text, onDevice)),
                 exactly(measured(text, onDevice)));
    }
    QCOMPARE(TextSizeCache::fontCount(), 2);
}

void TestTextSizeCache::fontsSetInPixelsAreOneOnAllDevices()
{
    const QImage device = fineDevice();
    const QFont onDevice(reportTestFont(10), &device);
    const QString text = QStringLiteral("Patch 1");

    QCOMPARE(TextSizeCache::textSize(text, reportTestFont(10)), measured(text, reportTestFont(10)));
    QCOMPARE(exactly(TextSizeCache::textSize(text, onDevice)), exactly(measured(text, onDevice)));
    QCOMPARE(TextSizeCache::fontCount(), 1);
}

void TestTextSizeCache::changedFontIsMeasuredAnew()
{
    const QString text = QStringLiteral("Patch 1");
    QFont changing = reportTestFont(10);

    QCOMPARE(TextSizeCache::textSize(text, changing), measured(text, reportTestFont(10)));
    changing.setPixelSize(20);
    QCOMPARE(TextSizeCache::textSize(text, changing), measured(text, reportTestFont(20)));
    changing.setPixelSize(10);
    QCOMPARE(TextSizeCache::textSize(text, changing), measured(text, reportTestFont(10)));
    QVERIFY(measured(text, reportTestFont(10)) != measured(text, reportTestFont(20)));
}

void TestTextSizeCache::equalFontsCountOnce()
{
    for (int i = 0; i < 3; ++i) {
        (void)TextSizeCache::textSize(QStringLiteral("a"), reportTestFont(10));
        (void)TextSizeCache::textSize(QStringLiteral("a"), fontInPoints(10));
    }

    QCOMPARE(TextSizeCache::fontCount(), 2);
    QCOMPARE(TextSizeCache::textCount(), 2);
}

void TestTextSizeCache::textIsRememberedOnce()
{
    (void)TextSizeCache::textSize(QStringLiteral("a"), reportTestFont(10));
    (void)TextSizeCache::textSize(QString(QLatin1Char('a')), reportTestFont(10));
    (void)TextSizeCache::textSize(QStringLiteral("b"), reportTestFont(10));

    QCOMPARE(TextSizeCache::textCount(), 2);
}

void TestTextSizeCache::textInBorrowedMemoryIsCopied()
{
    QVarLengthArray<QChar> memory(4, QLatin1Char('m'));
    (void)TextSizeCache::textSize(QString::fromRawData(memory.constData(), memory.size()),
                                  reportTestFont(10));
    std::fill(memory.begin(), memory.end(), QLatin1Char('i'));

    QCOMPARE(TextSizeCache::textSize(QStringLiteral("mmmm"), reportTestFont(10)),
             measured(QStringLiteral("mmmm"), reportTestFont(10)));
    QCOMPARE(TextSizeCache::textCount(), 1);
    QCOMPARE(TextSizeCache::textSize(QStringLiteral("iiii"), reportTestFont(10)),
             measured(QStringLiteral("iiii"), reportTestFont(10)));
    QCOMPARE(TextSizeCache::textCount(), 2);
}

void TestTextSizeCache::longTextsAreNotRemembered()
{
    const QString longest(TextSizeCache::kLongestText, QLatin1Char('x'));
    const QString longer = longest + QLatin1Char('x');

    QCOMPARE(TextSizeCache::textSize(longer, reportTestFont(10)),
             measured(longer, reportTestFont(10)));
    QCOMPARE(TextSizeCache::textCount(), 0);
    QCOMPARE(TextSizeCache::textSize(longest, reportTestFont(10)),
             measured(longest, reportTestFont(10)));
    QCOMPARE(TextSizeCache::textCount(), 1);
}

void TestTextSizeCache::numberOfTextsIsBounded()
{
    const QFont regular = reportTestFont(10);
    for (int i = 0; i < TextSizeCache::kMaximumTexts; ++i) {
        (void)TextSizeCache::textSize(QString::number(i), regular);
    }
    QCOMPARE(TextSizeCache::textCount(), TextSizeCache::kMaximumTexts);

    const QString onceMore = QStringLiteral("one more");
    QCOMPARE(TextSizeCache::textSize(onceMore, regular), measured(onceMore, regular));
    QCOMPARE(TextSizeCache::textCount(), 1);
    QCOMPARE(TextSizeCache::fontCount(), 1);
}

void TestTextSizeCache::numberOfFontsIsBounded()
{
    const QString text = QStringLiteral("Patch 1");
    for (int i = 1; i <= 3 * TextSizeCache::kMaximumFonts; ++i) {
        QCOMPARE(TextSizeCache::textSize(text, reportTestFont(i)),
                 measured(text, reportTestFont(i)));
        QVERIFY(TextSizeCache::fontCount() <= TextSizeCache::kMaximumFonts);
        QCOMPARE(TextSizeCache::textCount(), TextSizeCache::fontCount());
    }
    QCOMPARE(TextSizeCache::fontCount(), TextSizeCache::kMaximumFonts);
}

void TestTextSizeCache::forgettingLeavesNothing()
{
    (void)TextSizeCache::textSize(QStringLiteral("a"), reportTestFont(10));

    TextSizeCache::forget();

    QCOMPARE(TextSizeCache::fontCount(), 0);
    QCOMPARE(TextSizeCache::textCount(), 0);
}

void TestTextSizeCache::changeOfTheApplicationsFontsForgetsAll()
{
    const QFont source = reportTestFont(10);
    const QFont bold = TextSizeCache::fontWithWeight(source, QFont::Bold);
    (void)TextSizeCache::textSize(QStringLiteral("a"), source);

    emit qGuiApp->fontDatabaseChanged();

    QCOMPARE(TextSizeCache::fontCount(), 0);
    QCOMPARE(TextSizeCache::textCount(), 0);
    QVERIFY(!TextSizeCache::fontWithWeight(source, QFont::Bold).isCopyOf(bold));
}

void TestTextSizeCache::threadsMeasureOneFontTogether()
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 20;
    const QFont shared = reportTestFont(10);
    QList<QSizeF> expected;
    for (const QString &text : kTexts) {
        expected.append(measured(text, shared));
    }
    std::atomic_int wrong = 0;
    std::atomic<qsizetype> remembered = 0;
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&] {
            for (int i = 0; i < kRounds * kTexts.size(); ++i) {
                const auto number = i % kTexts.size();
                wrong += TextSizeCache::textSize(kTexts.at(number), shared) != expected.at(number);
            }
            remembered += TextSizeCache::textCount();
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }

    QCOMPARE(wrong.load(), 0);
    QCOMPARE(remembered.load(), kThreads * kTexts.size());
    QCOMPARE(TextSizeCache::textCount(), 0);
}

void TestTextSizeCache::otherThreadsForgetWhenFontsChange()
{
    qsizetype before = 0;
    qsizetype after = -1;
    QSemaphore filled;
    QSemaphore changed;
    std::thread thread([&] {
        (void)TextSizeCache::textSize(QStringLiteral("a"), reportTestFont(10));
        before = TextSizeCache::textCount();
        filled.release();
        changed.acquire();
        after = TextSizeCache::textCount();
    });
    filled.acquire();
    emit qGuiApp->fontDatabaseChanged();
    changed.release();
    thread.join();

    QCOMPARE(before, 1);
    QCOMPARE(after, 0);
}

void TestTextSizeCache::weightIsSet_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const int from : {100, 400, 500, 700, 900}) {
        QTest::addRow("%d to 400", from) << from << 400;
        QTest::addRow("%d to 700", from) << from << 700;
    }
}

void TestTextSizeCache::weightIsSet()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFont source = reportTestFont(10);
    source.setWeight(QFont::Weight(from));
    QFont expected = source;
    expected.setWeight(QFont::Weight(to));

    const QFont weighted = TextSizeCache::fontWithWeight(source, QFont::Weight(to));

    QCOMPARE(int(weighted.weight()), to);
    QCOMPARE(weighted, expected);
    QCOMPARE(weighted.resolveMask(), expected.resolveMask());
    QCOMPARE(int(source.weight()), from);
}

void TestTextSizeCache::sameFontGivesTheSameWeightedCopy()
{
    const QFont source = reportTestFont(10);
    QFont copy;
    copy = source;

    const QFont bold = TextSizeCache::fontWithWeight(source, QFont::Bold);
    const QFont regular = TextSizeCache::fontWithWeight(source, QFont::Normal);

    QVERIFY(TextSizeCache::fontWithWeight(copy, QFont::Bold).isCopyOf(bold));
    QVERIFY(TextSizeCache::fontWithWeight(copy, QFont::Normal).isCopyOf(regular));
    QVERIFY(!bold.isCopyOf(regular));
}

void TestTextSizeCache::weightedCopySharesNothingWithItsSource()
{
    QFont source = reportTestFont(10);
    source.setWeight(QFont::Normal);

    // Setting the weight that it has already would leave a copy shared.
    const QFont weighted = TextSizeCache::fontWithWeight(source, QFont::Normal);

    QCOMPARE(weighted, source);
    QVERIFY(!weighted.isCopyOf(source));
}

void TestTextSizeCache::weightedCopyKeepsTheMaskOfItsSource()
{
    const QFont source = reportTestFont(10);
    QFont withoutMask = source;
    withoutMask.setResolveMask(0);
    QVERIFY(withoutMask.isCopyOf(source));
    (void)TextSizeCache::fontWithWeight(source, QFont::Bold);

    const QFont weighted = TextSizeCache::fontWithWeight(withoutMask, QFont::Bold);

    QCOMPARE(weighted.resolveMask(), uint(QFont::WeightResolved));
}

void TestTextSizeCache::manyWeightedFontsAreRight()
{
    for (int i = 1; i <= 3 * TextSizeCache::kMaximumFonts; ++i) {
        const QFont weighted = TextSizeCache::fontWithWeight(reportTestFont(i), QFont::Bold);
        QCOMPARE(weighted.pixelSize(), i);
        QCOMPARE(weighted.weight(), QFont::Bold);
    }
}

int main(int argc, char **argv)
{
    {
        const TestEnvironment environment;
        const QApplication application(argc, argv);
        (void)TextSizeCache::textSize(QStringLiteral("a"), QFont());
        (void)TextSizeCache::fontWithWeight(QFont(), QFont::Bold);
    }
    return runTest<TestTextSizeCache>(argc, argv);
}

#include "tst_TextSizeCache.moc"
