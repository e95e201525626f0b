#include "RatioTable.h"

#include <algorithm>
#include <limits>

namespace {

const QString kOurs = QStringLiteral("ours");

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    if (values.size() % 2 == 1) {
        return values.at(middle);
    }
    return (values.at(middle - 1) + values.at(middle)) / 2.0;
}

QString secondsText(double seconds)
{
    if (seconds >= 1.0) {
        return QString::number(seconds, 'f', 2) + QStringLiteral(" s");
    }
    if (seconds >= 1e-3) {
        return QString::number(seconds * 1e3, 'f', 2) + QStringLiteral(" ms");
    }
    if (seconds >= 1e-6) {
        return QString::number(seconds * 1e6, 'f', 2) + QStringLiteral(" us");
    }
    return QString::number(seconds * 1e9, 'f', 1) + QStringLiteral(" ns");
}

QString valueText(RatioTable::Measure measure, double value)
{
    if (measure == RatioTable::Measure::Seconds) {
        return secondsText(value);
    }
    return QString::number(value, 'f', 1) + QStringLiteral(" B/row");
}

QString ratioText(double ratio)
{
    return ratio < 0.1 ? QString::number(ratio, 'g', 2) : QString::number(ratio, 'f', 2);
}

QList<int> columnWidths(const QList<QStringList> &lines)
{
    QList<int> widths(lines.first().size(), 0);
    for (const QStringList &line : lines) {
        for (qsizetype column = 0; column < line.size(); ++column) {
            widths[column] = std::max(widths.at(column), int(line.at(column).size()));
        }
    }
    return widths;
}

/// Names stand to the left, the numbers of the last three columns to the right.
QString padded(const QStringList &line, const QList<int> &widths)
{
    QString text;
    for (qsizetype column = 0; column < line.size(); ++column) {
        const bool isNumber = column >= line.size() - 3;
        const int width = widths.at(column);
        const QString &cell = line.at(column);
        text += isNumber ? cell.rightJustified(width) : cell.leftJustified(width);
        text += QStringLiteral("  ");
    }
    return text.trimmed() + u'\n';
}

} // namespace

double RatioTable::Row::ratio() const
{
    if (theirs > 0.0) {
        return ours / theirs;
    }
    return ours > 0.0 ? std::numeric_limits<double>::infinity() : 1.0;
}

void RatioTable::add(const QString &name, Measure measure, double value)
{
    const QString family = name.section(u'/', 0, 0);
    const QString contestant = name.section(u'/', 1, 1);
    const QString caseName = name.section(u'/', 2);
    if (family.isEmpty() || contestant.isEmpty()) {
        return;
    }

    const QString key = family + u'/' + caseName + u'/' + QString::number(int(measure));
    if (!places.contains(key)) {
        places.insert(key, contests.size());
        contests.append({family, caseName, measure, {}});
    }
    QList<Contestant> &contestants = contests[places.value(key)].contestants;
    const auto known = std::find_if(contestants.begin(), contestants.end(),
                                    [&](const Contestant &one) { return one.name == contestant; });
    if (known == contestants.end()) {
        contestants.append({contestant, {value}});
    } else {
        known->values.append(value);
    }
}

QList<RatioTable::Row> RatioTable::rows() const
{
    QList<Row> rows;
    for (const Contest &contest : contests) {
        const auto ours = std::find_if(contest.contestants.begin(), contest.contestants.end(),
                                       [](const Contestant &one) { return one.name == kOurs; });
        if (ours == contest.contestants.end()) {
            continue;
        }
        for (const Contestant &peer : contest.contestants) {
            if (peer.name != kOurs) {
                rows.append({contest.family, contest.caseName, peer.name, contest.measure,
                             median(ours->values), median(peer.values)});
            }
        }
    }
    return rows;
}

QList<QStringList> RatioTable::cells() const
{
    QList<QStringList> lines{{QStringLiteral("family"), QStringLiteral("case"),
                              QStringLiteral("peer"), QStringLiteral("ours"),
                              QStringLiteral("theirs"), QStringLiteral("ratio")}};
    const QList<Row> all = rows();
    for (const Row &row : all) {
        lines.append({row.family, row.caseName, row.peer, valueText(row.measure, row.ours),
                      valueText(row.measure, row.theirs), ratioText(row.ratio())});
    }
    return lines;
}

QString RatioTable::toText() const
{
    const QList<QStringList> lines = cells();
    if (lines.size() == 1) {
        return {};
    }
    const QList<int> widths = columnWidths(lines);
    QString text = QStringLiteral("\nOurs against peers (below 1.00 ours is better)\n");
    for (const QStringList &line : lines) {
        text += padded(line, widths);
    }
    return text;
}

QString RatioTable::toMarkdown(const QString &title) const
{
    QList<QStringList> lines = cells();
    if (lines.size() == 1) {
        return {};
    }
    const QStringList rule{QStringLiteral("---"),  QStringLiteral("---"),  QStringLiteral("---"),
                           QStringLiteral("---:"), QStringLiteral("---:"), QStringLiteral("---:")};
    lines.insert(1, rule);
    QString text = QStringLiteral("## ") + title + QStringLiteral("\n\n");
    for (const QStringList &line : lines) {
        text += QStringLiteral("| ") + line.join(u" | ") + QStringLiteral(" |\n");
    }
    return text + u'\n';
}
