#include "LongTranslator.h"
#include "TestBase.h"

#include <QFontMetrics>

class TestLongTranslator : public TestBase
{
    Q_OBJECT

private slots:
    void textIsHalfAsLongAgain_data();
    void textIsHalfAsLongAgain();
    void partsThatWorkStay_data();
    void partsThatWorkStay();
    void textsOfQtStay();
};

void TestLongTranslator::textIsHalfAsLongAgain_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"OK", "Host", "Clear List", "The folder cannot be made",
          "Rendering intent:", "Impossible to connect to the Check for Updates service"}) {
        QTest::newRow(text) << text;
    }
}

void TestLongTranslator::textIsHalfAsLongAgain()
{
    QFETCH(QString, text);
    const QFontMetrics metrics{QFont()};

    const QString longer = LongTranslator::lengthened(text);

    QVERIFY(2 * longer.size() >= 3 * text.size());
    QVERIFY(2 * metrics.horizontalAdvance(longer) >= 3 * metrics.horizontalAdvance(text));
    QVERIFY(LongTranslator::isSpoken(longer));
    QVERIFY(!LongTranslator::isSpoken(text));
}

void TestLongTranslator::partsThatWorkStay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("begin");
    QTest::addColumn<QString>("end");
    QTest::newRow("mark of a label") << "&Host:"
                                     << "&Host"
                                     << ":";
    QTest::newRow("ellipsis") << "Open..."
                              << "Open"
                              << "...";
    QTest::newRow("markup") << "<p>All <b>is well</b></p>"
                            << "<p>All <b>is well"
                            << "</b></p>";
    QTest::newRow("arguments") << "%1 of %n"
                               << "%1 of %n"
                               << "";
    QTest::newRow("filters") << "Texts (*.txt);;All files (*)"
                             << "Texts"
                             << " (*)";
    QTest::newRow("key") << "Alt+Y"
                         << "Alt+Y"
                         << "Alt+Y";
    QTest::newRow("no words") << "%1"
                              << "%1"
                              << "%1";
}

void TestLongTranslator::partsThatWorkStay()
{
    QFETCH(QString, text);
    QFETCH(QString, begin);
    QFETCH(QString, end);

    const QString longer = LongTranslator::lengthened(text);

    QVERIFY2(longer.startsWith(begin), qPrintable(longer));
    QVERIFY2(longer.endsWith(end), qPrintable(longer));
    QCOMPARE(longer.count(";;"), text.count(";;"));
    QCOMPARE(longer.count("(*"), text.count("(*"));
}

void TestLongTranslator::textsOfQtStay()
{
    const LongTranslator translator;

    QVERIFY(translator.translate("QShortcut", "Alt", nullptr, -1).isNull());
    QVERIFY(!translator.translate("QObject", "Warning", nullptr, -1).isNull());
    QVERIFY(!translator.translate("QPlatformTheme", "Cancel", nullptr, -1).isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestLongTranslator>(argc, argv);
}

#include "tst_LongTranslator.moc"
