#include "StyleSheetUrls.h"

#include "TestBase.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QImage>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>

class TestStyleSheetUrls : public TestBase
{
    Q_OBJECT

private slots:
    void placesStandBelowTheFolder_data();
    void placesStandBelowTheFolder();
    void folderComesInAsItIs_data();
    void folderComesInAsItIs();
    void findsWhatTheExpressionFinds();
    void costGrowsWithTheSheetAlone();
    void pathIsFoundBetweenSingleQuotes_data();
    void pathIsFoundBetweenSingleQuotes();
    void ordinaryPathStays();
};

void TestStyleSheetUrls::placesStandBelowTheFolder_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("nothing to do") << "a { color: red }"
                                   << "a { color: red }";
    QTest::newRow("single quotes") << "url('../Images/a.png')"
                                   << "url('/app/bin/../Images/a.png')";
    QTest::newRow("double quotes") << R"(url("a.png"))"
                                   << R"(url("/app/bin/a.png"))";
    QTest::newRow("pipe") << "url(|a.png|)"
                          << "url(|/app/bin/a.png|)";
    QTest::newRow("no quotes") << "url(a.png)"
                               << "url(a.png)";
    QTest::newRow("several") << "url('a') url(b) url(\"c\")"
                             << "url('/app/bin/a') url(b) url(\"/app/bin/c\")";
    QTest::newRow("one behind the other") << "url('url('a"
                                          << "url('/app/bin/url('/app/bin/a";
    QTest::newRow("two openings") << "url(''a"
                                  << "url('/app/bin/'a";
    QTest::newRow("absolute") << "url('/a.png')"
                              << "url('/app/bin//a.png')";
    QTest::newRow("resource") << "url(':/a.png')"
                              << "url('/app/bin/:/a.png')";
    QTest::newRow("end behind the bracket") << "a url("
                                            << "a url(";
    QTest::newRow("end behind the quote") << "a url('"
                                          << "a url('/app/bin/";
    QTest::newRow("cut short") << "a url"
                               << "a url";
    QTest::newRow("never closed") << "url('a.png } b { }"
                                  << "url('/app/bin/a.png } b { }";
    QTest::newRow("capitals") << "URL('a') Url('a')"
                              << "URL('a') Url('a')";
    QTest::newRow("blank before the quote") << "url( 'a')"
                                            << "url( 'a')";
    QTest::newRow("blank before the bracket") << "url ('a')"
                                              << "url ('a')";
    QTest::newRow("line break") << "url(\n'a')"
                                << "url(\n'a')";
    QTest::newRow("end of a longer word") << "curl('a')"
                                          << "curl('/app/bin/a')";
    QTest::newRow("comment") << "/* url('a') */"
                             << "/* url('/app/bin/a') */";
    QTest::newRow("typographic quote") << u"url(\u2019a)"_qs << u"url(\u2019a)"_qs;
    QTest::newRow("backslash") << R"(url(\'a'))"
                               << R"(url(\'a'))";
    QTest::newRow("beyond ASCII") << u"\U0001f3a8 url('\u00e9')"_qs
                                  << u"\U0001f3a8 url('/app/bin/\u00e9')"_qs;
    QTest::newRow("NUL") << QChar(0) + QStringLiteral("url('b')")
                         << QChar(0) + QStringLiteral("url('/app/bin/b')");
}

void TestStyleSheetUrls::placesStandBelowTheFolder()
{
    QFETCH(QString, sheet);
    QFETCH(QString, expected);

    QCOMPARE(StyleSheetUrls::below("/app/bin", sheet), expected);
}

void TestStyleSheetUrls::folderComesInAsItIs_data()
{
    QTest::addColumn<QString>("folder");
    for (const char *folder : {"", "/", R"(/a\1b)", R"(/\0)", R"(/\\2)", "/%1", "/%1/%2 %L1 %99",
                               "/$1 &", "/url('", "/it's \"quoted\""}) {
        QTest::newRow(folder) << QString(folder);
    }
}

void TestStyleSheetUrls::folderComesInAsItIs()
{
    QFETCH(QString, folder);

    QCOMPARE(StyleSheetUrls::below(folder, "url('a.png') url(\"b.png\")"),
             "url('" + folder + "/a.png') url(\"" + folder + "/b.png\")");
}

void TestStyleSheetUrls::findsWhatTheExpressionFinds()
{
    const QStringList pieces = {"url", "(", "'", "\"", "|", "\\", "u", "r", "l", "url(", " ", "a"};
    const QRegularExpression expression(R"((url\([\'|\"]))");
    QRandomGenerator random(5);
    int places = 0;
    for (int round = 0; round < 5000; ++round) {
        QString sheet;
        for (int piece = 0; piece < 30; ++piece) {
            sheet += pieces.at(random.bounded(int(pieces.size())));
        }
        const QString expected = QString(sheet).replace(expression, R"(\1/app/)");
        if (StyleSheetUrls::below("/app", sheet) != expected) {
            QCOMPARE(StyleSheetUrls::below("/app", sheet), expected);
        }
        places += expected == sheet ? 0 : 1;
    }
    QVERIFY(places > 1000);
}

// Square costs would be a thousand times as much for a sheet a thousand times as long, by
// character.
void TestStyleSheetUrls::costGrowsWithTheSheetAlone()
{
    constexpr qsizetype kTenMegabytes = qsizetype(10) * 1024 * 1024;
    for (const QString &piece : {QStringLiteral("url('"), QStringLiteral("url("),
                                 QStringLiteral("u"), QStringLiteral("'")}) {
        const qsizetype count = kTenMegabytes / piece.size();
        const qsizetype places = piece == "url('" ? count : 0;
        QElapsedTimer timer;
        timer.start();

        const QString result = StyleSheetUrls::below("/app", piece.repeated(count));

        // Measured: 0.1 s; square costs would be hours.
        QVERIFY2(timer.elapsed() < 20'000, qPrintable(piece));
        QCOMPARE(result.size(), count * piece.size() + places * 5);
    }
}

void TestStyleSheetUrls::pathIsFoundBetweenSingleQuotes_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("ordinary") << "tools";
    QTest::newRow("blanks") << "colour  tools";
    QTest::newRow("apostrophes") << "'Mia''s' tools'";
    QTest::newRow("end of the rule") << "a');}*{color:red;}b{image:url('";
    QTest::newRow("comment") << "a*";
#ifndef Q_OS_WIN
    QTest::newRow("backslashes") << "\\a\\\\0041\\'\\";
    QTest::newRow("line breaks") << "\n'\r\n\f";
#endif
}

void TestStyleSheetUrls::pathIsFoundBetweenSingleQuotes()
{
    QFETCH(QString, folder);
    const QTemporaryDir place;
    const QString path = place.filePath(folder) + "/red.png";
    QVERIFY(QDir().mkpath(place.filePath(folder)));
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));

    QFrame frame;
    frame.resize(20, 20);
    frame.setStyleSheet("QFrame {image: url('" + StyleSheetUrls::inSingleQuotes(path) + "');}");

    QCOMPARE(frame.grab().toImage().pixelColor(10, 10), QColor(Qt::red));
}

void TestStyleSheetUrls::ordinaryPathStays()
{
    for (const char *path :
         {"", "/opt/Colour Tools/bin/a.png", "C:/Tools (x86)/a \"b\" %1 #&;,.png"}) {
        QCOMPARE(StyleSheetUrls::inSingleQuotes(path), path);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestStyleSheetUrls>(argc, argv);
}

#include "tst_StyleSheetUrls.moc"
