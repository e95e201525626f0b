#pragma once

#include <QMetaType>
#include <QVariant>

/// Which values hold others, and how.
///
/// Thread: any.
namespace VariantKind {

/// True for dictionaries with text keys, empty ones too.
[[nodiscard]] inline bool isMap(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantHash;
}

/// True for lists of values and of texts, empty ones too.
[[nodiscard]] inline bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

/// True for what is a text, or bytes that are shown as one.
[[nodiscard]] inline bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray;
}

} // namespace VariantKind
