#include "TXApplicationInformation.h"
#include "TXDataCrypt.h"
#include "TXDataCryptKey.h"
#include "TXLocalisationUtility.h"
#include "TXResources.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QPixmap>
#include <QString>

#include <cstring>
#include <iostream>
#include <memory>
#include <string>

// Not a test of its own: tests run it where they need another process, another place of the
// executable, another scale, or, with "--without-application", no application object.
//
// It answers each line of its standard input, a command and its argument, with one line.

namespace {

QByteArray key(const QByteArray &path)
{
    TXDataCryptKey key(QString::fromUtf8(path));
    const unsigned char *bytes = key.bytes(nullptr);
    return bytes ? QByteArray(reinterpret_cast<const char *>(bytes), TXDataCryptKey::kBytes).toHex()
                 : QByteArray("none");
}

/// The argument is the module and the language, with a blank between them.
QByteArray localisation(const QByteArray &argument)
{
    const QString text = QString::fromUtf8(argument);
    return TXLocalisationUtility::getLocalisationFile(text.section(u' ', 0, 0),
                                                      text.section(u' ', 1))
        .toUtf8();
}

QByteArray bullet()
{
    const QPixmap pixmap = TXDisplayFixBulletStaticImage();
    return QByteArray::number(pixmap.width()) + 'x' + QByteArray::number(pixmap.height()) + '@'
        + QByteArray::number(pixmap.devicePixelRatio());
}

QByteArray answer(const QByteArray &command, const QByteArray &argument)
{
    if (command == "key") {
        return key(argument);
    }
    if (command == "encrypt") {
        return TXDataCrypt::encrypt(argument, nullptr);
    }
    if (command == "decrypt") {
        return TXDataCrypt::decrypt(argument, nullptr);
    }
    if (command == "localisation") {
        return localisation(argument);
    }
    if (command == "name") {
        return currentApplicationDisplayName().toUtf8();
    }
    return command == "bullet" ? bullet() : QByteArray("no such command");
}

} // namespace

int main(int argc, char **argv)
{
    std::unique_ptr<QGuiApplication> application;
    if (argc < 2 || std::strcmp(argv[1], "--without-application") != 0) {
        application = std::make_unique<QGuiApplication>(argc, argv);
    }
    std::string line;
    while (std::getline(std::cin, line)) {
        const QByteArray text = QByteArray::fromStdString(line);
        const qsizetype blank = text.indexOf(' ');
        const QByteArray command = text.left(blank < 0 ? text.size() : blank);
        std::cout << answer(command, text.mid(command.size() + 1)).toStdString() << std::endl;
    }
    return 0;
}
