#include "JsonFile.h"

#include "RegularFile.h"

#include <QCoreApplication>
#include <QFile>

namespace {

TXStringI18n message(const char *text)
{
    return {"JsonFile", text, nullptr, -1};
}

JsonReading failure(const QString &reason)
{
    return {{}, message(QT_TRANSLATE_NOOP("JsonFile", "It cannot be read: %1.")).arg(reason)};
}

} // namespace

JsonReading readJsonFile(const QString &path)
{
    if (isNoRegularFile(path)) {
        return {{}, message(QT_TRANSLATE_NOOP("JsonFile", "It is no file."))};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(file.errorString());
    }
    // One byte too many, by which it is told: a file may grow, and some tell no size.
    const QByteArray text = file.read(kLargestJsonBytes + 1);
    return file.error() == QFileDevice::NoError ? readJsonText(text) : failure(file.errorString());
}
