#include "OrdinaryRights.h"
#include "TXSplashScreen.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>

#include <iostream>

// Not a test of its own: a test copies it into an application of its own, with "../Resources"
// beside the program, and runs it in another environment than its own.
//
// Arguments: the number of the product, the path of the default picture, and, if wanted, what
// ALLUSERSPROFILE is changed to before the library is asked. The permissions of files bind it, also
// when the superuser runs it. Answers with one JSON object.

namespace {

QJsonObject describe(const QPixmap &pixmap)
{
    if (pixmap.isNull()) {
        return {{"isNull", true}};
    }
    return {{"isNull", false},
            {"width", pixmap.width()},
            {"height", pixmap.height()},
            {"colour", pixmap.toImage().pixelColor(0, 0).name()}};
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const OrdinaryRights rights;
    const int product = argc > 1 ? QByteArray(argv[1]).toInt() : 0;
    const QString defaultPath = argc > 2 ? QString::fromUtf8(argv[2]) : QString();
    if (argc > 3) {
        qputenv("ALLUSERSPROFILE", argv[3]);
    }
    const TXSplashScreen splash(product, defaultPath);
    QJsonObject answer = describe(splash.pixmap());
    answer.insert("installedPath", TXSplashScreen::installedLogoPath());
    answer.insert("cachedPath", TXSplashScreen::cachedLogoPath(product));
    std::cout << QJsonDocument(answer).toJson().constData();
    return 0;
}
