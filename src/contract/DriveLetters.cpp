#include "DriveLetters.h"

namespace {

const QString kBehindLetter = QStringLiteral(":/");

} // namespace

QChar DriveLetters::letterOf(const QString &mountPoint)
{
    const QChar first = mountPoint.isEmpty() ? QChar() : mountPoint.front();
    // Some letters of other scripts become Latin ones in upper case.
    const bool isLetter = first < QChar(0x80) && first.isLetter();
    return isLetter && kBehindLetter.startsWith(QStringView(mountPoint).mid(1)) ? first.toUpper()
                                                                                : QChar();
}

QString DriveLetters::mountPoint(QChar letter)
{
    const QChar upper = letterOf(letter);
    return upper.isNull() ? QString() : upper + kBehindLetter;
}
