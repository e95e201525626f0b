#pragma once

#include "FTPConfigurationWidget.h"
#include "TXGUICommonExport.h"

#include <QObject>
#include <QRunnable>
#include <QUrl>

/// One check of an FTP or SFTP server, to be started on a thread pool, which also deletes it.
///
/// Thread: made on any thread; run() works on a thread of the pool and touches nothing but the
/// runnable's own URL.
class TXGUICOMMON_PRIVATE_EXPORT CheckRunnable : public QObject, public QRunnable
{
    Q_OBJECT

public:
    explicit CheckRunnable(const QUrl &serverUrl);

    /// Connects and logs in at the root of the server, whatever the path of the URL. Blocks until
    /// the outcome is there; then emits finished().
    void run() override;

signals:
    /// Emitted once, on the thread of run().
    void finished(FTPConfigurationWidget::FtpStatus status);

private:
    QUrl url;
};
