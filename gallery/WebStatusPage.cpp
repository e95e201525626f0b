#include "WebStatusPage.h"

#include "ChartComparison.h"
#include "ChartPatches.h"
#include "GalleryPages.h"
#include "WebSettings.h"

#include <QDateTime>
#include <QList>
#include <QLocale>
#include <QPair>
#include <QSysInfo>

namespace {

constexpr int kDecimals = 2;
constexpr double kTolerance = 1;

const QString kHead =
    QStringLiteral("<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>%1</title><style>"
                   "body{font-family:sans-serif;margin:2em;color:#222;background:#fff}"
                   "table{border-collapse:collapse}td,th{text-align:left;padding:.25em 1em .25em 0}"
                   ".swatch{display:inline-block;width:4em;height:1.5em}"
                   "</style></head><body><h1>%1</h1>");

using Facts = QList<QPair<QString, QString>>;

QString cell(const QString &text)
{
    return QStringLiteral("<td>") + text.toHtmlEscaped() + QStringLiteral("</td>");
}

QString heading(const QString &text)
{
    return QStringLiteral("<h2>") + text.toHtmlEscaped() + QStringLiteral("</h2>");
}

QString tableOf(const Facts &facts)
{
    QString rows;
    for (const auto &[name, value] : facts) {
        rows += QStringLiteral("<tr>") + cell(name) + cell(value) + QStringLiteral("</tr>");
    }
    return QStringLiteral("<table>") + rows + QStringLiteral("</table>");
}

Facts programFacts()
{
    return {{WebStatusPage::tr("Program"),
             QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion()},
            {WebStatusPage::tr("Qt"), QString::fromLatin1(qVersion())},
            {WebStatusPage::tr("System"), QSysInfo::prettyProductName()},
            {WebStatusPage::tr("Process"), QString::number(QCoreApplication::applicationPid())},
            {WebStatusPage::tr("This page was made"),
             QLocale().toString(QDateTime::currentDateTime(), QLocale::LongFormat)}};
}

Facts serviceFacts(const WebSettings &settings)
{
    return {{WebStatusPage::tr("Port"), QString::number(settings.port)},
            {WebStatusPage::tr("Path"), settings.path},
            {WebStatusPage::tr("Protocol"),
             settings.isSecure ? QStringLiteral("HTTPS") : QStringLiteral("HTTP")},
            {WebStatusPage::tr("User"),
             settings.user.isEmpty() ? WebStatusPage::tr("everybody") : settings.user},
            {WebStatusPage::tr("Options"), settings.options}};
}

QString listOfPages()
{
    QString entries;
    for (const GalleryPageEntry &page : galleryPages()) {
        entries += QStringLiteral("<li>") + page.translatedTitle().toHtmlEscaped()
            + QStringLiteral("</li>");
    }
    return QStringLiteral("<ul>") + entries + QStringLiteral("</ul>");
}

QString swatch(const LabColour &colour)
{
    return QStringLiteral("<td><span class=\"swatch\" style=\"background:")
        + colour.toScreen().name() + QStringLiteral("\"></span></td>");
}

QString listOfPatches()
{
    QString rows;
    const auto pairs = ChartComparison::samePatches();
    for (const PatchPair &pair : pairs) {
        const ChartPatch &older = chartPatches()[size_t(pair.older)];
        const ChartPatch &newer = chartPatches()[size_t(pair.newer)];
        rows += QStringLiteral("<tr>") + cell(older.translatedName()) + swatch(older.older)
            + swatch(newer.newer) + cell(QLocale().toString(pair.ciede2000, 'f', kDecimals))
            + QStringLiteral("</tr>");
    }
    const DifferenceStatistics statistics =
        ChartComparison::statistics(pairs, DifferenceFormula::Ciede2000, kTolerance);
    return QStringLiteral("<table>") + rows + QStringLiteral("</table><p>")
        + WebStatusPage::tr("Mean %1, largest %2.")
              .arg(QLocale().toString(statistics.mean, 'f', kDecimals),
                   QLocale().toString(statistics.largest, 'f', kDecimals))
              .toHtmlEscaped()
        + QStringLiteral("</p>");
}

} // namespace

QString WebStatusPage::html(const WebSettings &settings)
{
    return kHead.arg(tr("TXGUICommon Gallery").toHtmlEscaped()) + tableOf(programFacts())
        + heading(tr("How it is served")) + tableOf(serviceFacts(settings))
        + heading(tr("Pages of the gallery")) + listOfPages()
        + heading(tr("Patches of the chart, older and newer, with ΔE 2000")) + listOfPatches()
        + QStringLiteral("</body></html>");
}
