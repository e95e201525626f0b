#include "StyleSheetUrls.h"

#include <QStringView>

namespace {

constexpr QStringView kFunction = u"url(";
constexpr QStringView kOpenings = u"'|\"";

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
