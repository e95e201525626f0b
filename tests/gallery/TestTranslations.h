#pragma once

#include <QCoreApplication>
#include <QString>

/// Where a test, as any program, finds its translations: the build has put gallerytest_fr.qm there.
/// Needs an application object.
inline QString testTranslationsFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/translations");
}
