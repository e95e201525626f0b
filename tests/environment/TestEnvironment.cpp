#include "TestEnvironment.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

void makePrivateFolder(const QString &path)
{
    QDir().mkpath(path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

TestEnvironment::TestEnvironment()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    // Qt may count the time of all rows of a test function together.
    qputenv("QTEST_FUNCTION_TIMEOUT", "240000");
    qputenv("FONTCONFIG_FILE", TX_TEST_FONTS_FILE);

    const QString runtime = home.filePath(QStringLiteral("run"));
    makePrivateFolder(runtime);
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(variable,
                QFile::encodeName(home.filePath(QString::fromLatin1(variable).toLower())));
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       home.filePath(QStringLiteral("settings")));
}

void TestEnvironment::applyToApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("TXGUICommonTests"));
    QCoreApplication::setApplicationName(QStringLiteral("test"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(QStringLiteral("Fusion"));
}
