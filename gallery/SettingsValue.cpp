#include "SettingsValue.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char kByteSeparator = ' ';

bool isReadable(QChar character)
{
    return character.isPrint() || character.isSpace();
}

/// A window's geometry and the like would fill the line with odd signs.
QVariant shownForm(const QVariant &value)
{
    if (value.typeId() != QMetaType::QByteArray) {
        return value;
    }
    const QByteArray bytes = value.toByteArray();
    const QString text = QString::fromUtf8(bytes);
    const bool isText = text.toUtf8() == bytes && std::all_of(text.begin(), text.end(), isReadable);
    return isText ? value : QVariant(QString::fromLatin1(bytes.toHex(kByteSeparator)));
}

} // namespace

QVariantMap settingsValue(QSettings &settings)
{
    QVariantMap map;
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        map.insert(key, shownForm(settings.value(key)));
    }
    const QStringList groups = settings.childGroups();
    for (const QString &group : groups) {
        settings.beginGroup(group);
        map.insert(map.contains(group) ? QString(group + u'/') : group, settingsValue(settings));
        settings.endGroup();
    }
    return map;
}
