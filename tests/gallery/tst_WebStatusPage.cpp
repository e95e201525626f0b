#include "ChartPatches.h"
#include "GalleryPages.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "WebSettings.h"
#include "WebStatusPage.h"

#include <QLocale>
#include <QXmlStreamReader>

class TestWebStatusPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageTellsOfTheGallery();
    void pageTellsHowItIsServed();
    void everyPatchHasTwoSwatches();
    void nothingOfTheSettingsIsMarkup();
    void pageIsWellFormed();
    void pageSpeaksTheLanguageOfTheMoment();
};

void TestWebStatusPage::pageTellsOfTheGallery()
{
    const QString html = WebStatusPage::html({});
    QVERIFY(html.contains(QString::fromLatin1(qVersion())));
    QVERIFY(html.contains("<td>" + QString::number(QCoreApplication::applicationPid()) + "</td>"));
    QVERIFY(!galleryPages().isEmpty());
    for (const GalleryPageEntry &page : galleryPages()) {
        QVERIFY(html.contains("<li>" + page.translatedTitle().toHtmlEscaped() + "</li>"));
    }
}

void TestWebStatusPage::pageTellsHowItIsServed()
{
    WebSettings settings;
    settings.port = 8751;
    settings.isSecure = true;
    settings.user = QStringLiteral("mia");
    settings.password = QStringLiteral("s3cret");
    const QString html = WebStatusPage::html(settings);
    QVERIFY(html.contains("<td>8751</td>"));
    QVERIFY(html.contains("<td>HTTPS</td>"));
    QVERIFY(html.contains("<td>mia</td>"));
    QVERIFY(!html.contains("s3cret"));
    QVERIFY(WebStatusPage::html({}).contains("<td>everybody</td>"));
}

void TestWebStatusPage::everyPatchHasTwoSwatches()
{
    const QString html = WebStatusPage::html({});
    QCOMPARE(html.count("class=\"swatch\""), 2 * kChartPatches);
    for (const ChartPatch &patch : chartPatches()) {
        QVERIFY(html.contains("background:" + patch.older.toScreen().name()));
        QVERIFY(html.contains("background:" + patch.newer.toScreen().name()));
    }
    // The largest of CIEDE2000 in the table, and their mean below it.
    QVERIFY(html.contains("<p>Mean "));
}

void TestWebStatusPage::nothingOfTheSettingsIsMarkup()
{
    WebSettings settings;
    settings.path = QStringLiteral("<script>1</script>");
    settings.user = QStringLiteral("\"><b>&lt;");
    settings.options = QStringLiteral("%1 %2 </table>");
    const QString html = WebStatusPage::html(settings);
    QVERIFY(!html.contains("<script"));
    QVERIFY(!html.contains("<b>"));
    QVERIFY(html.contains("<td>&lt;script&gt;1&lt;/script&gt;</td>"));
    QVERIFY(html.contains("<td>&quot;&gt;&lt;b&gt;&amp;lt;</td>"));
    QVERIFY(html.contains("<td>%1 %2 &lt;/table&gt;</td>"));
}

void TestWebStatusPage::pageIsWellFormed()
{
    QString html = WebStatusPage::html({});
    // The one element that is not closed.
    html.remove("<meta charset=\"utf-8\">");
    QXmlStreamReader reader(html);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

void TestWebStatusPage::pageSpeaksTheLanguageOfTheMoment()
{
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString html = WebStatusPage::html({});
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(html.contains("<h2>HOW IT IS SERVED</h2>"));
    QVERIFY(html.contains("<td>EVERYBODY</td>"));
}

int main(int argc, char **argv)
{
    return runTest<TestWebStatusPage>(argc, argv);
}

#include "tst_WebStatusPage.moc"
