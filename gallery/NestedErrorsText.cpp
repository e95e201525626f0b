#include "NestedErrorsText.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int kStep = 2;
/// Deeper than the library's own report indents.
constexpr int kDeepest = 32;

struct Line
{
    int indentation;
    QString text;
};

QList<Line> readLines(const QString &text)
{
    QList<Line> lines;
    const QStringList parts = text.split(QLatin1Char('\n'));
    for (const QString &part : parts) {
        const QString trimmed = part.trimmed();
        if (!trimmed.isEmpty()) {
            lines.append({int(part.indexOf(trimmed[0])) / kStep, trimmed});
        }
    }
    return lines;
}

/// Reads the errors from `next` on that stand at this depth or deeper.
QList<TXError> readErrors(const QList<Line> &lines, qsizetype &next, int depth)
{
    QList<TXError> errors;
    while (next < lines.size() && (depth == 0 || lines[next].indentation >= depth)) {
        TXError error;
        error.setDescription(TXStringI18n::fromString(lines[next].text));
        ++next;
        if (depth < kDeepest) {
            error.subErrors = readErrors(lines, next, depth + 1);
        }
        errors.append(error);
    }
    return errors;
}

void write(QStringList &lines, const QList<TXError> &errors, int depth)
{
    for (const TXError &error : errors) {
        const QString description = error.getLocalizedDescription();
        const QString text = description.isEmpty() ? error.domain : description;
        if (!text.isEmpty()) {
            lines.append(QString(qsizetype(depth) * kStep, QLatin1Char(' ')) + text.simplified());
        }
        if (depth < kDeepest) {
            write(lines, error.subErrors, text.isEmpty() ? depth : depth + 1);
        }
    }
}

} // namespace

QList<TXError> nestedErrorsFromText(const QString &text)
{
    qsizetype next = 0;
    return readErrors(readLines(text), next, 0);
}

QString textOfNestedErrors(const QList<TXError> &errors)
{
    QStringList lines;
    write(lines, errors, 0);
    return lines.join(QLatin1Char('\n'));
}
