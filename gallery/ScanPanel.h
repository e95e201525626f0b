#pragma once

#include "FolderScan.h"
#include "GalleryPanel.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QSharedPointer>

class FolderJobBar;
class LogGate;
class QLabel;
class QTimer;
class TXLogItem;
class TXLogManager;
class WorkVeil;

/// The job "Scan a folder": which folder, start and cancel, and the numbers of the running scan,
/// with a spinner beside them.
///
/// Each folder becomes an entry of the log, written from the scan's own threads; a last entry sums
/// up. The panel stops a running scan when it goes.
class ScanPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ScanPanel(const QSharedPointer<TXLogManager> &log, QWidget *parent = nullptr);
    ~ScanPanel() override;

    /// Which folders are scanned, as FolderJobBar::setFolders().
    void setFolders(const QString &text);

public slots:
    /// Starts a scan. No effect while one is running.
    void start();

signals:
    /// Emitted when the scan has ended and its last entry has been handed to the log.
    void scanLogged(QSharedPointer<TXLogItem> lastEntry);

protected:
    void retranslate() override;

private slots:
    void cancel();
    void showCounts();
    void scanFinished(bool isComplete);

private:
    /// A number with a picture before it and a caption below it.
    struct Tile
    {
        QLabel *picture;
        QLabel *value;
        QLabel *caption;
    };

    Tile makeTile(const QPixmap &picture = QPixmap());
    void setUpLayout();

    QSharedPointer<TXLogManager> log;
    LogGate *gate;
    FolderScan *scan;
    QTimer *countsTimer;
    QElapsedTimer sinceStart;
    qint64 milliseconds = 0;

    FolderJobBar *bar;
    Tile entries;
    Tile warnings;
    Tile errors;
    Tile rate;
    /// Stands over a place of its own, so that the numbers can be read.
    WorkVeil *veil;
};
