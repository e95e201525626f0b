#pragma once

#include <QCoreApplication>
#include <QString>

/// Where the build has put gallerytest_fr.qm. Needs an application object.
inline QString testTranslationsFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/gallery/translations");
}
