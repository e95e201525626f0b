#pragma once

#include "TXCheckForUpdateWidget.h"
#include "TXUpdateService.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QString>
#include <QTest>
#include <QVariantHash>
#include <QWidget>

/// What several tests of the update dialog have in common.
namespace UpdateDialogTools {

using Dialog = TXCheckForUpdateWidget;

/// No service listens there, so that every check fails at once.
inline void useNoService()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:1"));
}

/// An object of the form; a missing one ends the test.
template<class Widget>
Widget *part(const QWidget &dialog, const char *name)
{
    auto *widget = dialog.findChild<Widget *>(QLatin1String(name));
    if (widget == nullptr) {
        qFatal("the form has no %s", name);
    }
    return widget;
}

/// The parts of the form that the states show and hide.
inline constexpr const char *kWidgets[] = {
    "updateNameLabel",          "shortDescLabel", "scrollArea",   "downloadButton",
    "downloadAndInstallButton", "installButton",  "cancelButton", "okButton",
    "downloadProgressBar"};

/// Which of kWidgets are hidden: a letter each, "s" for shown and "h" for hidden.
inline QByteArray shownWidgets(const Dialog &dialog)
{
    QByteArray shown;
    for (const char *name : kWidgets) {
        shown.append(part<QWidget>(dialog, name)->isHidden() ? 'h' : 's');
    }
    return shown;
}

/// A release newer than this build, with an installer of 5 bytes.
inline QVariantHash newRelease()
{
    return {{QStringLiteral("ProductName"), QStringLiteral("Patch Reader")},
            {QStringLiteral("Version"), QStringLiteral("3.1")},
            {QStringLiteral("Status"), QStringLiteral("Beta 2")},
            {QStringLiteral("Revision"), 10453},
            {QStringLiteral("Description"), QStringLiteral("Reads patches faster.")},
            {QStringLiteral("Filename"), QStringLiteral("setup.exe")},
            {QStringLiteral("Filesize"), 5},
            {QStringLiteral("ReleaseId"), QStringLiteral("r53")}};
}

/// The same release with one value changed.
inline QVariantHash newReleaseWith(const char *key, const QVariant &value)
{
    QVariantHash release = newRelease();
    release.insert(QLatin1String(key), value);
    return release;
}

/// Lets the dialog have the answer of a check.
inline void receive(Dialog &dialog, const QVariantHash &release)
{
    dialog.updateInfoReceived(release, release);
}

/// Where the installer of newRelease() is downloaded to.
inline QString installerPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
        + QStringLiteral("/setup.exe");
}

/// An empty folder for downloads.
inline void clearDownloads()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
}

/// A file with this content.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace UpdateDialogTools
