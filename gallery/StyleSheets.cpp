#include "StyleSheets.h"

#include "LocalisationUpdater.h"

#include <QApplication>
#include <QDir>

namespace {

const QString kFolder = QStringLiteral("../Resources/Templates/");

QString beside(const QString &relativePath)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relativePath);
}

} // namespace

QString StyleSheets::shippedName()
{
    return QStringLiteral("TovraStyle.css");
}

QString StyleSheets::folder()
{
    return beside(kFolder);
}

QString StyleSheets::fontsFolder()
{
    return beside(QStringLiteral("../Resources/Fonts"));
}

QStringList StyleSheets::names()
{
    return QDir(folder()).entryList({QStringLiteral("*.css")}, QDir::Files, QDir::Name);
}

bool StyleSheets::apply(const QString &name, TXError *error)
{
    // Without a name the library takes the sheet that a program ships.
    return LocalisationUpdater::updateCSSFileOfApp(
        error, name == shippedName() ? QString() : kFolder + name);
}

void StyleSheets::remove()
{
    qApp->setStyleSheet(QString());
}

void StyleSheets::loadFonts()
{
    // Fonts come with a sheet. The pages are made to be seen in the style that the user has chosen,
    // so the sheet goes again, before there is a window that it could touch.
    static_cast<void>(apply(shippedName(), nullptr));
    remove();
}
