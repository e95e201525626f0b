#include "ErrorExamples.h"

#include "ColourProfileCheck.h"

#include "TXDataCrypt.h"
#include "TXError.h"

#include <QCoreApplication>

#include <array>

namespace {

TXStringI18n message(const char *source)
{
    return {"ErrorExamples", source, nullptr, -1};
}

TXError profileError(const QString &path)
{
    TXError error;
    if (!checkColourProfile(path, &error)) {
        error.userInfo[QStringLiteral("MessageBoxTitle")] =
            QCoreApplication::translate("ErrorExamples", "Colour Profile");
    }
    return error;
}

TXError passwordError(const QString & /*profilePath*/)
{
    TXError reason;
    TXDataCrypt::decrypt("kept before passwords were enciphered", &reason);
    TXError error;
    error.domain = QStringLiteral("MeasuringDeviceErrorDomain");
    error.setDescription(message(QT_TRANSLATE_NOOP(
        "ErrorExamples", "The password of the measuring device cannot be read.")));
    error.subErrors.append(reason);
    return error;
}

TXError reasonsWithoutDescription(const QString &profilePath)
{
    TXError error;
    error.domain = QStringLiteral("GalleryErrorDomain");
    error.subErrors = {passwordError(profilePath), profileError(profilePath)};
    return error;
}

TXError nothing(const QString & /*profilePath*/)
{
    return {};
}

struct Example
{
    const char *name;
    TXError (*make)(const QString &profilePath);
};

constexpr std::array kExamples = {
    Example{QT_TRANSLATE_NOOP("ErrorExamples", "A file read as a colour profile"), profileError},
    Example{QT_TRANSLATE_NOOP("ErrorExamples", "A password that was never enciphered"),
            passwordError},
    Example{QT_TRANSLATE_NOOP("ErrorExamples", "Reasons without a description"),
            reasonsWithoutDescription},
    Example{QT_TRANSLATE_NOOP("ErrorExamples", "Nothing to report"), nothing},
};

} // namespace

QStringList errorExampleNames()
{
    QStringList names;
    for (const Example &example : kExamples) {
        names.append(QCoreApplication::translate("ErrorExamples", example.name));
    }
    return names;
}

TXError makeErrorExample(int index, const QString &profilePath)
{
    const bool isKnown = index >= 0 && size_t(index) < kExamples.size();
    return isKnown ? kExamples[size_t(index)].make(profilePath) : TXError();
}
