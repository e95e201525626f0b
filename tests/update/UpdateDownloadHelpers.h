#pragma once

#include "LocalUpdateService.h"
#include "TXCheckForUpdateWidget.h"
#include "TXUpdateService.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVariantHash>

#include <optional>

constexpr int kTransferMilliseconds = 30000;
constexpr qint64 kMegabyte = 1024 * 1024;
constexpr char kInstallerName[] = "installer.bin";

/// Makes this the user's folder for downloads, as a desktop's settings do.
inline void setDownloadFolder(const QString &folder)
{
    const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    QVERIFY(QDir().mkpath(config));
    QFile file(config + QStringLiteral("/user-dirs.dirs"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("XDG_DOWNLOAD_DIR=\"" + QFile::encodeName(folder) + "\"\n");
}

inline LocalWebReply generated(qint64 size)
{
    LocalWebReply reply;
    reply.generatedSize = size;
    return reply;
}

/// The record of a newer release, as the service sends it, whose installer is of so many bytes; 0
/// for a record that does not tell.
inline QVariantHash offerOfSize(qint64 size)
{
    QVariantHash record = {{QStringLiteral("ProductName"), QStringLiteral("Patch Reader")},
                           {QStringLiteral("Revision"), 99999},
                           {QStringLiteral("Filename"), QString::fromLatin1(kInstallerName)},
                           {QStringLiteral("ReleaseId"), QStringLiteral("r1")}};
    if (size != 0) {
        record.insert(QStringLiteral("Filesize"), size);
    }
    return record;
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

inline QByteArray bytesIn(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Base of the tests that download: a service and an empty folder for downloads, new for each.
class DownloadTest : public TestBase
{
protected:
    using Widget = TXCheckForUpdateWidget;

    void prepare() override
    {
        service.emplace();
        downloads.emplace();
        QVERIFY2(service->start(), qPrintable(service->error()));
        TXUpdateService::setAuthority(service->authority());
        setDownloadFolder(downloads->path());
    }

    void finish() override
    {
        TXUpdateService::setAuthority({});
        service.reset();
        downloads.reset();
    }

    [[nodiscard]] QString installerPath() const { return downloads->filePath(kInstallerName); }

    /// Offers a release and starts its transfer.
    static void startDownload(Widget &dialog, qint64 fileSize = 0)
    {
        const QVariantHash record = offerOfSize(fileSize);
        dialog.updateInfoReceived(record, record);
        dialog.updateState(Widget::DownloadStarting);
    }

    /// Until so much is on disk.
    [[nodiscard]] bool waitForSize(qint64 size) const
    {
        return QTest::qWaitFor([&] { return QFileInfo(installerPath()).size() >= size; },
                               kTransferMilliseconds);
    }

    /// Until the transfer has ended, one way or the other.
    [[nodiscard]] static bool waitForEnd(const Widget &dialog)
    {
        return QTest::qWaitFor([&] { return dialog.state() != Widget::Downloading; },
                               kTransferMilliseconds);
    }

    std::optional<LocalUpdateService> service;
    std::optional<QTemporaryDir> downloads;
};
