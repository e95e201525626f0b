#include "VariantPlainText.h"

#include "ClippedText.h"
#include "VariantKind.h"

#include <QVariant>

namespace {

/// Bytes that surely hold as many characters as are kept, in any script.
constexpr qsizetype kMostBytes = 4 * (VariantPlainText::kMostCharacters + 1);

bool isFull(const QString &text)
{
    return text.size() > VariantPlainText::kMostCharacters;
}

/// Each level adds a bracket at least, so that a full text ends the recursion.
void append(QString &text, const QVariant &value);

void appendSeparator(QString &text, bool &isFirst)
{
    if (!isFirst) {
        text.append(QLatin1String(", "));
    }
    isFirst = false;
}

void appendEntry(QString &text, const QString &key, const QVariant &value)
{
    text.append(QStringView(key).left(VariantPlainText::kMostCharacters + 1));
    text.append(QLatin1String(": "));
    append(text, value);
}

void appendList(QString &text, const QVariantList &list)
{
    text.append(u'[');
    bool isFirst = true;
    for (const QVariant &element : list) {
        if (isFull(text)) {
            return;
        }
        appendSeparator(text, isFirst);
        append(text, element);
    }
    text.append(u']');
}

void appendMap(QString &text, const QVariantMap &map)
{
    const auto children = map.constFind(QStringLiteral("children"));
    text.append(u'{');
    bool isFirst = true;
    for (auto entry = map.cbegin(); entry != map.cend() && !isFull(text); ++entry) {
        if (entry != children) {
            appendSeparator(text, isFirst);
            appendEntry(text, entry.key(), entry.value());
        }
    }
    if (children != map.cend() && !isFull(text)) {
        appendSeparator(text, isFirst);
        appendEntry(text, children.key(), children.value());
    }
    text.append(u'}');
}

QString startOfText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QByteArray) {
        return QString::fromUtf8(value.toByteArray().left(kMostBytes));
    }
    return value.toString();
}

void appendText(QString &text, const QVariant &value)
{
    const QString start = startOfText(value);
    text.append(u'"');
    text.append(QStringView(start).left(VariantPlainText::kMostCharacters + 1));
    text.append(u'"');
}

void append(QString &text, const QVariant &value)
{
    if (isFull(text)) {
        return;
    }
    if (VariantKind::isText(value)) {
        appendText(text, value);
    } else if (VariantKind::of(value) == VariantKind::Kind::Nothing) {
        text.append(QLatin1String("null"));
    } else if (VariantKind::isMap(value)) {
        appendMap(text, value.toMap());
    } else if (VariantKind::isList(value)) {
        appendList(text, value.toList());
    } else {
        text.append(value.toString());
    }
}

} // namespace

QString VariantPlainText::fromVariant(const QVariant &value)
{
    QString text;
    append(text, value);
    return ClippedText::clipped(text, kMostCharacters);
}
