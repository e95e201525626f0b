#include "EncodedTextFile.h"

#include "RegularFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>

namespace {

EncodedText failure(const TXStringI18n &reason)
{
    EncodedText nothing;
    nothing.error = reason;
    return nothing;
}

TXStringI18n message(const char *text)
{
    return {"EncodedTextFile", text, nullptr, -1};
}

EncodedText decoded(const QByteArray &bytes, bool isCut, const QTextCodec &codec)
{
    QTextCodec::ConverterState state;
    EncodedText result;
    result.text = codec.toUnicode(bytes.constData(), int(bytes.size()), &state);
    result.byteCount = bytes.size();
    // A character that the end of the file cuts in two is unreadable, one that we cut is not.
    result.unreadableCount = int(state.invalidChars) + (!isCut && state.remainingChars > 0 ? 1 : 0);
    result.isCut = isCut;
    return result;
}

} // namespace

EncodedText readEncodedText(const QString &path, const QString &codecName)
{
    const QTextCodec *codec = QTextCodec::codecForName(codecName.toLatin1());
    if (codec == nullptr) {
        return failure(message(QT_TRANSLATE_NOOP("EncodedTextFile", "There is no codec \"%1\"."))
                           .arg(codecName));
    }
    if (path.isEmpty() || isNoRegularFile(path)) {
        return failure(message(QT_TRANSLATE_NOOP("EncodedTextFile", "It is no file.")));
    }
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) {
        // One byte too many, by which it is told: a file may grow, and some tell no size.
        bytes = file.read(kMostTextBytes + 1);
    }
    if (file.error() != QFileDevice::NoError) {
        return failure(message(QT_TRANSLATE_NOOP("EncodedTextFile", "It cannot be read: %1."))
                           .arg(file.errorString()));
    }
    return decoded(bytes.left(kMostTextBytes), bytes.size() > kMostTextBytes, *codec);
}
