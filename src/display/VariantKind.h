#pragma once

#include <QMetaType>
#include <QVariant>

/// What sort of value a variant holds, as its viewer tells them apart, and how many are in it.
///
/// Only these exact types count: a float or an unsigned number is "other", shown without colour.
///
/// Thread: any.
namespace VariantKind {

/// The sorts of values.
enum class Kind {
    Text, ///< A text, or bytes that are shown as one.
    WholeNumber, ///< An int or a qlonglong.
    Real, ///< A double.
    TrueOrFalse, ///< A bool.
    Nothing, ///< Invalid, or the null of any type below.
    Dictionary, ///< A dictionary with text keys, with entries or without.
    List, ///< A list of values or of texts, with entries or without.
    Other, ///< Any other type.
};

/// True for dictionaries with text keys, empty and null ones too.
[[nodiscard]] inline bool isMap(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantHash;
}

/// True for lists of values and of texts, empty and null ones too.
[[nodiscard]] inline bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

/// True for what holds other values, or could.
[[nodiscard]] inline bool isContainer(const QVariant &value)
{
    return isMap(value) || isList(value);
}

/// True for what is a text, or bytes that are shown as one, null ones too.
[[nodiscard]] inline bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray;
}

/// The sort of this value. A null text, number or bool stays what it is: it has a text to show.
[[nodiscard]] inline Kind of(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return Kind::Text;
    case QMetaType::Int:
    case QMetaType::LongLong:
        return Kind::WholeNumber;
    case QMetaType::Double:
        return Kind::Real;
    case QMetaType::Bool:
        return Kind::TrueOrFalse;
    default:
        break;
    }
    if (value.isNull()) {
        return Kind::Nothing;
    }
    if (isMap(value)) {
        return Kind::Dictionary;
    }
    return isList(value) ? Kind::List : Kind::Other;
}

/// How many entries a list or a dictionary holds; 0 for all else.
[[nodiscard]] inline qsizetype entryCount(const QVariant &value)
{
    // Each is asked as the type that it is: converting would copy the whole container.
    switch (value.typeId()) {
    case QMetaType::QVariantList:
        return value.toList().size();
    case QMetaType::QStringList:
        return value.toStringList().size();
    case QMetaType::QVariantMap:
        return value.toMap().size();
    case QMetaType::QVariantHash:
        return value.toHash().size();
    default:
        return 0;
    }
}

} // namespace VariantKind
