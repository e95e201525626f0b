#include "StyleSheetUrls.h"

#include <QStringView>

namespace {

constexpr QStringView kFunction = u"url(";
constexpr QStringView kOpenings = u"'|\"";
/// What would end a string in single quotes.
constexpr QStringView kEscaped = u"'\n\r\f";

} // namespace

// Plain searching in place of a regular expression, in whose replacement a folder such as "\1" or
// "%1" would mean something.
QString StyleSheetUrls::below(const QString &folder, const QString &sheet)
{
    const QString inserted = folder + u'/';
    const QStringView text(sheet);
    QString result;
    result.reserve(sheet.size());
    qsizetype taken = 0;
    for (qsizetype at = text.indexOf(kFunction); at >= 0; at = text.indexOf(kFunction, at + 1)) {
        const qsizetype opening = at + kFunction.size();
        if (opening < text.size() && kOpenings.contains(text.at(opening))) {
            result += text.sliced(taken, opening + 1 - taken);
            result += inserted;
            taken = opening + 1;
        }
    }
    return result += text.sliced(taken);
}

QString StyleSheetUrls::inSingleQuotes(const QString &path)
{
    QString result;
    result.reserve(path.size());
    for (const QChar character : path) {
        if (character == u'\\') {
            // By number, and twice: Qt puts the character in for the number before it reads the
            // sheet, and would take "\\\\a" for a line break. Six digits, since another may follow.
            result += QLatin1String("\\00005c\\00005c");
            continue;
        }
        if (kEscaped.contains(character)) {
            result += u'\\';
        }
        result += character;
    }
    return result;
}
