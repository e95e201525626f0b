#include "JsonObjectReader.h"

#include "ShortText.h"

#include <QCoreApplication>

namespace {

TXStringI18n message(const char *text)
{
    return {"JsonObjectReader", text, nullptr, -1};
}

bool isNumber(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::LongLong || type == QMetaType::ULongLong || type == QMetaType::Double;
}

} // namespace

JsonObjectReader::JsonObjectReader(const QVariant &value)
    : members(value.toHash())
{
    if (value.typeId() != QMetaType::QVariantHash) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "It holds no JSON object.")));
    }
}

void JsonObjectReader::allowOnly(const QStringList &names)
{
    QStringList given = members.keys();
    given.sort();
    for (const QString &name : std::as_const(given)) {
        if (!names.contains(name)) {
            fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is not known."))
                     .arg(shortText(path + name)));
        }
    }
}

QString JsonObjectReader::text(const QString &name)
{
    const QVariant found = value(name);
    if (found.typeId() != QMetaType::QString) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is no text.")).arg(path + name));
    }
    return found.toString();
}

bool JsonObjectReader::flag(const QString &name)
{
    const QVariant found = value(name);
    if (found.typeId() != QMetaType::Bool) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is neither true nor false."))
                 .arg(path + name));
    }
    return found.toBool();
}

double JsonObjectReader::number(const QString &name, double minimum, double maximum)
{
    const QVariant found = value(name);
    const double number = found.toDouble();
    if (!isNumber(found) || number < minimum || number > maximum) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is no number from %2 to %3."))
                 .arg(path + name)
                 .arg(QString::number(minimum))
                 .arg(QString::number(maximum)));
    }
    return number;
}

int JsonObjectReader::wholeNumber(const QString &name, int minimum, int maximum)
{
    const double found = number(name, minimum, maximum);
    if (hasFailed()) {
        return 0;
    }
    const int whole = int(found);
    if (double(whole) != found) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is no whole number."))
                 .arg(path + name));
        return 0;
    }
    return whole;
}

JsonObjectReader JsonObjectReader::object(const QString &name)
{
    const QVariant found = value(name);
    if (found.typeId() != QMetaType::QVariantHash) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is no object."))
                 .arg(path + name));
    }
    JsonObjectReader inner(found);
    inner.path = path + name + u'.';
    return inner;
}

void JsonObjectReader::fail(const TXStringI18n &newReason)
{
    if (!hasFailed()) {
        reason = newReason;
    }
}

QVariant JsonObjectReader::value(const QString &name)
{
    const QVariant found = members.value(name);
    if (!found.isValid()) {
        fail(message(QT_TRANSLATE_NOOP("JsonObjectReader", "\"%1\" is missing.")).arg(path + name));
    }
    return found;
}
