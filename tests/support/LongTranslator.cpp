#include "LongTranslator.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

/// Letters as wide as those of an average word, all of them with something above.
const QString kPadding = QStringLiteral("ŵéñûwôĝďåšêţẑüğëñôřdûwåñéĝ");
constexpr qsizetype kLongestWord = 8;

/// Where the words end: before the markup, the mark of a label and the filter that follow.
qsizetype endOfWords(const QString &text)
{
    static const QRegularExpression tail(
        QStringLiteral("(\\s*(</[a-z]+>|\\(\\*[^)]*\\)|\\.\\.\\.|…|:|\\.|\\s|%)*)$"));
    return tail.match(text).capturedStart();
}

/// How many letters the user reads.
qsizetype lengthOf(const QString &text)
{
    static const QRegularExpression unread(QStringLiteral("<[^>]*>|&(?!&)|\\(\\*[^)]*\\)"));
    return QString(text).remove(unread).size();
}

/// So many letters, glued to a short word that they follow and then in words of their own.
QString padding(qsizetype count)
{
    QString result;
    while (result.size() < count) {
        const bool isBetween = result.size() % (kLongestWord + 1) == kLongestWord;
        result += isBetween ? u' ' : kPadding.at(result.size() % kPadding.size());
    }
    if (result.endsWith(u' ')) {
        result.back() = kPadding.front();
    }
    return result;
}

QString lengthenedPart(const QString &text)
{
    const qsizetype letters = lengthOf(text.trimmed());
    QString result = text;
    return result.insert(endOfWords(text), padding((letters + 1) / 2));
}

bool isOurs(const QString &context)
{
    static const QRegularExpression ofQt(
        QStringLiteral("^Q(?!Object$|SingleItemSquareLayout$|PlatformTheme$)[A-Z]"));
    return !ofQt.match(context).hasMatch();
}

} // namespace

QString LongTranslator::translate(const char *context, const char *text, const char * /*hint*/,
                                  int /*number*/) const
{
    return isOurs(QString::fromLatin1(context)) ? lengthened(QString::fromUtf8(text)) : QString();
}

QString LongTranslator::lengthened(const QString &text)
{
    static const QRegularExpression key(QStringLiteral("^(Alt|Ctrl)\\+\\w$"));
    static const QRegularExpression word(QStringLiteral("\\pL"));
    if (key.match(text).hasMatch() || !text.contains(word)) {
        return text;
    }
    QStringList parts = text.split(QStringLiteral(";;"));
    for (QString &part : parts) {
        part = lengthenedPart(part);
    }
    return parts.join(QStringLiteral(";;"));
}

bool LongTranslator::isSpoken(const QString &text)
{
    return text.contains(kPadding.front());
}
