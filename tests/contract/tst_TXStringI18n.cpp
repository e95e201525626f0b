#include "TXStringI18n.h"

#include "StringI18nHelpers.h"
#include "TestBase.h"

#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

using StringI18nTest::copied;
using StringI18nTest::german;
using StringI18nTest::InstalledGerman;
using StringI18nTest::plain;
using StringI18nTest::TableTranslator;

Q_DECLARE_METATYPE(TXStringI18n)

/// Texts that are translated when they are shown.
class TestTXStringI18n : public TestBase
{
    Q_OBJECT

private slots:
    void defaultIsEmpty();
    void nullPointersAreSafe();
    void sourceStandsInWithoutATranslation();
    void languageChosenAfterwardsIsUsed();
    void compiledTranslationFileIsUsed();
    void givenTranslatorWinsOverTheInstalledOne();
    void givenTranslatorWithoutTheTextGivesTheSource();
    void emptyTranslationIsATranslation();
    void contextAndDisambiguationChooseTheTranslation();
    void sourceWithoutContextIsTranslated();
    void sourceStringsAreCopied();
    void numberChoosesThePlural_data();
    void numberChoosesThePlural();
    void localisedNumberIsWrittenInTheDefaultLocale();
    void argumentsAreFilledAsTheStringClassDoes_data();
    void argumentsAreFilledAsTheStringClassDoes();
    void randomTextsAreFilledAsTheStringClassDoes();
    void argumentWithoutMarkerIsLeftOutSilently();
    void argLeavesTheOriginalAlone();
    void multiplyingArgumentsStayBounded();
    void oneLongArgumentIsFilled();
    void argumentsBeyondTheMostAreLeftOut();
    void fieldWidthIsLimited();
    void objectIsSmall();
};

void TestTXStringI18n::defaultIsEmpty()
{
    const TXStringI18n text;

    QVERIFY(text.isEmpty());
    QCOMPARE(text.toString(nullptr), QString());
    QCOMPARE(text.toFlatString(), QString());
    QVERIFY(text == plain(QString()));
    QVERIFY(!copied().isEmpty());
    QVERIFY(!plain(QStringLiteral("x")).isEmpty());
}

void TestTXStringI18n::nullPointersAreSafe()
{
    QVERIFY(TXStringI18n(nullptr).isEmpty());
    QVERIFY(TXStringI18n(nullptr, nullptr, nullptr, -1).isEmpty());
    QVERIFY(TXStringI18n("Files", "", nullptr, -1).isEmpty());
    const TXStringI18n text(nullptr, "No context", nullptr, -1);
    QCOMPARE(text.toString(nullptr), QStringLiteral("No context"));
    TableTranslator translator = german();
    QCOMPARE(text.toString(&translator), QStringLiteral("Ohne Kontext"));
}

void TestTXStringI18n::sourceStandsInWithoutATranslation()
{
    QCOMPARE(copied().toString(nullptr), QStringLiteral("Copied a.png to /b"));
    QCOMPARE(TXStringI18n("caf\xc3\xa9").toString(nullptr), QStringLiteral("caf\u00e9"));
}

void TestTXStringI18n::languageChosenAfterwardsIsUsed()
{
    const TXStringI18n text = copied();
    {
        const InstalledGerman installed;
        QCOMPARE(text.toString(nullptr), QStringLiteral("Nach /b wurde a.png kopiert"));
    }
    QCOMPARE(text.toString(nullptr), QStringLiteral("Copied a.png to /b"));
}

void TestTXStringI18n::compiledTranslationFileIsUsed()
{
    const QTemporaryDir folder;
    QFile source(folder.filePath(QStringLiteral("de.ts")));
    QVERIFY(source.open(QIODevice::WriteOnly));
    source.write("<!DOCTYPE TS><TS version=\"2.1\" language=\"de\"><context><name>Files</name>"
                 "<message><source>Copied %1 to %2</source>"
                 "<translation>%1 liegt in %2</translation></message></context></TS>");
    source.close();
    const QString compiled = folder.filePath(QStringLiteral("de.qm"));
    QProcess::execute(
        QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease"),
        {QStringLiteral("-silent"), source.fileName(), QStringLiteral("-qm"), compiled});
    QTranslator translator;
    QVERIFY(translator.load(compiled));

    QCOMPARE(copied().toString(&translator), QStringLiteral("a.png liegt in /b"));
}

void TestTXStringI18n::givenTranslatorWinsOverTheInstalledOne()
{
    const InstalledGerman installed;
    TableTranslator french({{"Files|Empty|", QStringLiteral("Vide")}});

    QCOMPARE(TXStringI18n("Files", "Empty", nullptr, -1).toString(&french), QStringLiteral("Vide"));
}

void TestTXStringI18n::givenTranslatorWithoutTheTextGivesTheSource()
{
    const InstalledGerman installed;
    TableTranslator french({});

    QCOMPARE(copied().toString(&french), QStringLiteral("Copied a.png to /b"));
}

void TestTXStringI18n::emptyTranslationIsATranslation()
{
    TableTranslator translator = german();

    QCOMPARE(TXStringI18n("Files", "Blank", nullptr, -1).toString(&translator), QString());
}

void TestTXStringI18n::contextAndDisambiguationChooseTheTranslation()
{
    const InstalledGerman installed;

    QCOMPARE(TXStringI18n("Files", "Empty", nullptr, -1).toString(nullptr), QStringLiteral("Leer"));
    QCOMPARE(TXStringI18n("Files", "Empty", "verb", -1).toString(nullptr),
             QStringLiteral("Leeren"));
    QCOMPARE(TXStringI18n("Other", "Empty", nullptr, -1).toString(nullptr),
             QStringLiteral("Empty"));
}

void TestTXStringI18n::sourceWithoutContextIsTranslated()
{
    const InstalledGerman installed;

    QCOMPARE(TXStringI18n("No context").toString(nullptr), QStringLiteral("Ohne Kontext"));
}

void TestTXStringI18n::sourceStringsAreCopied()
{
    QByteArray source = "Empty";
    const TXStringI18n text("Files", source.constData(), nullptr, -1);
    source.fill('x');

    QCOMPARE(text.toString(nullptr), QStringLiteral("Empty"));
}

void TestTXStringI18n::numberChoosesThePlural_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("inGerman");
    QTest::addRow("none") << 0 << "0 file(s) in x"
                          << "0 Dateien in x";
    QTest::addRow("one") << 1 << "1 file(s) in x"
                         << "Eine Datei in x";
    QTest::addRow("many") << 1000 << "1000 file(s) in x"
                          << "1000 Dateien in x";
    QTest::addRow("no number") << -1 << "%n file(s) in x"
                               << "%n file(s) in x";
}

void TestTXStringI18n::numberChoosesThePlural()
{
    QFETCH(int, n);
    QFETCH(QString, english);
    QFETCH(QString, inGerman);
    const auto text =
        TXStringI18n("Files", "%n file(s) in %1", nullptr, n).arg(QStringLiteral("x"));
    TableTranslator translator = german();
    TableTranslator nothing({});

    QCOMPARE(text.toString(nullptr), english);
    QCOMPARE(text.toString(&nothing), english);
    QCOMPARE(text.toString(&translator), inGerman);
    const InstalledGerman installed;
    QCOMPARE(text.toString(nullptr), inGerman);
}

void TestTXStringI18n::localisedNumberIsWrittenInTheDefaultLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const TXStringI18n text("Files", "%Ln of %n", nullptr, 12345);
    TableTranslator nothing({});
    const QString byTheApplication = text.toString(nullptr);
    const QString byTheTranslator = text.toString(&nothing);
    QLocale::setDefault(before);

    QCOMPARE(byTheApplication, QStringLiteral("12.345 of 12345"));
    QCOMPARE(byTheTranslator, byTheApplication);
}

void TestTXStringI18n::argumentsAreFilledAsTheStringClassDoes_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("fieldWidth");
    QTest::addColumn<QChar>("fillChar");
    const QChar blank = u' ';

    QTest::addRow("in order") << "%1 %2" << QStringList{"a", "b"} << 0 << blank;
    QTest::addRow("lowest first") << "%9 %3 %5" << QStringList{"a", "b", "c"} << 0 << blank;
    QTest::addRow("several places") << "%1 %2 %1" << QStringList{"a", "b"} << 0 << blank;
    QTest::addRow("two digits") << "%10 %2" << QStringList{"a", "b"} << 0 << blank;
    QTest::addRow("zero") << "%1 %0" << QStringList{"a", "b"} << 0 << blank;
    QTest::addRow("too few") << "%1 %2" << QStringList{"a"} << 0 << blank;
    QTest::addRow("localised") << "%L1 %2" << QStringList{"a", "b"} << 0 << blank;
    QTest::addRow("marker in an argument") << "%1 %2" << QStringList{"%2", "b"} << 0 << blank;
    QTest::addRow("lowest in an argument") << "%2 %3" << QStringList{"%1", "b"} << 0 << blank;
    QTest::addRow("marker made by joining") << "%%1 2" << QStringList{"1", "b"} << 0 << blank;
    QTest::addRow("percent signs") << "100% %1 %" << QStringList{"%"} << 0 << blank;
    QTest::addRow("width") << "%1|%2" << QStringList{"a", "bcdef"} << 4 << QChar(u'.');
    QTest::addRow("left-aligned") << "%1|%2" << QStringList{"a", "b"} << -4 << QChar(u'0');
    QTest::addRow("empty argument") << "%1%2" << QStringList{"", "b"} << 0 << blank;
}

void TestTXStringI18n::argumentsAreFilledAsTheStringClassDoes()
{
    QFETCH(QString, source);
    QFETCH(QStringList, arguments);
    QFETCH(int, fieldWidth);
    QFETCH(QChar, fillChar);
    TXStringI18n text("Files", source.toUtf8().constData(), nullptr, -1);
    TXStringI18n fromPlain = plain(source);
    QString expected = source;
    for (const QString &argument : arguments) {
        text = text.arg(argument, fieldWidth, fillChar);
        fromPlain = fromPlain.arg(argument, fieldWidth, fillChar);
        expected = expected.arg(argument, fieldWidth, fillChar);
    }

    QCOMPARE(text.toString(nullptr), expected);
    QCOMPARE(fromPlain.toString(nullptr), expected);
    QCOMPARE(TXStringI18n::fromString(text.toFlatString()).toString(nullptr), expected);
}

void TestTXStringI18n::randomTextsAreFilledAsTheStringClassDoes()
{
    // The string class warns where there is no marker, so it is not asked then.
    const QRegularExpression marker(QStringLiteral("%L?[0-9]"));
    QRandomGenerator random(1);
    const auto randomText = [&random](int length) {
        const QString characters = QStringLiteral("%%%%%L0123x");
        QString text;
        for (int i = 0; i < length; ++i) {
            text += characters.at(random.bounded(int(characters.size())));
        }
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        QString expected = u'x' + randomText(12);
        TXStringI18n text(expected.toLatin1().constData());
        TXStringI18n fromPlain = plain(expected);
        for (int i = 0; i < 4; ++i) {
            const QString argument = randomText(random.bounded(5));
            const int fieldWidth = random.bounded(-6, 7);
            text = text.arg(argument, fieldWidth, u'%');
            fromPlain = fromPlain.arg(argument, fieldWidth, u'%');
            if (expected.contains(marker)) {
                expected = expected.arg(argument, fieldWidth, u'%');
            }
        }
        QCOMPARE(text.toString(nullptr), expected);
        QCOMPARE(fromPlain.toString(nullptr), expected);
    }
}

void TestTXStringI18n::argumentWithoutMarkerIsLeftOutSilently()
{
    for (const char *source : {"none", "%", "%L", "%x 1", "%L%"}) {
        const QString expected = QString::fromLatin1(source);
        QCOMPARE(
            TXStringI18n("Files", source, nullptr, -1).arg(QStringLiteral("a")).toString(nullptr),
            expected);
        QCOMPARE(plain(expected).arg(QStringLiteral("a")).toString(nullptr), expected);
    }
}

void TestTXStringI18n::argLeavesTheOriginalAlone()
{
    const TXStringI18n text("Files", "%1", nullptr, -1);

    const TXStringI18n filled = text.arg(QStringLiteral("a"));

    QCOMPARE(text.toString(nullptr), QStringLiteral("%1"));
    QCOMPARE(filled.toString(nullptr), QStringLiteral("a"));
}

void TestTXStringI18n::multiplyingArgumentsStayBounded()
{
    TXStringI18n text("%1%1%1%1%1%1%1%1%1%1");
    for (int i = 2; i < 60; ++i) {
        text = text.arg(QStringLiteral("%%1").arg(i).repeated(10));
    }

    QVERIFY(text.toString(nullptr).size() <= 4'000'000);
}

void TestTXStringI18n::oneLongArgumentIsFilled()
{
    const QString longText(3'000'000, u'x');
    const TXStringI18n text("%1 to %2");

    QCOMPARE(text.arg(longText).arg(QStringLiteral("b")).toString(nullptr),
             longText + QStringLiteral(" to b"));
}

void TestTXStringI18n::argumentsBeyondTheMostAreLeftOut()
{
    TXStringI18n text("%1");
    for (int i = 0; i < TXStringI18n::kMostArguments; ++i) {
        text = text.arg(QStringLiteral("%1"));
    }

    QVERIFY(text.arg(QStringLiteral("a")) == text);
    QVERIFY(TXStringI18n::fromString(text.toFlatString()) == text);
}

void TestTXStringI18n::fieldWidthIsLimited()
{
    constexpr int kWidest = TXStringI18n::kWidestFieldCharacters;
    const TXStringI18n text("%1");

    QCOMPARE(text.arg(QString(), INT_MAX).toString(nullptr).size(), kWidest);
    QCOMPARE(text.arg(QString(), INT_MIN).toString(nullptr).size(), kWidest);
    QVERIFY(text.arg(QString(), INT_MAX) == text.arg(QString(), kWidest));
}

void TestTXStringI18n::objectIsSmall()
{
    QVERIFY(sizeof(TXStringI18n) <= sizeof(QString) + sizeof(void *));
}

int main(int argc, char **argv)
{
    return runTest<TestTXStringI18n>(argc, argv);
}

#include "tst_TXStringI18n.moc"
