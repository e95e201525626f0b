#pragma once

#include "FileDigests.h"
#include "GalleryPanel.h"

#include <QElapsedTimer>

#include <memory>

class FolderJobBar;
class ObservedProgress;
class ProgressBarSwitches;
class QLabel;
class QSpinBox;
class QTimer;
class TXProgressBar;

/// Reads files on several threads that all report to one ProgressBarCompletionDelegate, with the
/// number of their reports beside the number of times that the bar was painted for them.
class WorkersPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit WorkersPanel(QWidget *parent = nullptr);

    /// Cancels a running job and waits for its threads.
    ~WorkersPanel() override;

    /// As FolderJobBar::setFolders().
    void setFolders(const QString &text);

    [[nodiscard]] bool isRunning() const { return digests->isRunning(); }

    /// Whether the delegate shows the bar, and there is progress to be seen.
    [[nodiscard]] bool isBarUnderWay() const;

public slots:
    /// Starts to read. No effect while a job is running.
    void start();

    /// Lets a running job end soon.
    void cancel();

signals:
    /// The numbers were brought up to date, during a job or at its end.
    void countsShown();

protected:
    void retranslate() override;

private slots:
    void showCounts();
    void jobFinished(bool isComplete);

private:
    /// How the last job has ended, if it has.
    enum class Ending { None, Complete, Cancelled };
    /// A number with a caption below it.
    struct Tile
    {
        QLabel *value;
        QLabel *caption;
    };

    Tile makeTile();
    void keepRoomForTheBar();
    void setUpLayout();
    [[nodiscard]] QString endingText() const;

    FolderJobBar *jobBar;
    QLabel *threadsLabel;
    QSpinBox *threadsBox;
    TXProgressBar *bar;
    ProgressBarSwitches *switches;
    Tile reports;
    Tile paintings;
    Tile files;
    Tile rate;
    QLabel *endingLabel;
    QTimer *countsTimer;
    QElapsedTimer sinceStart;
    qint64 milliseconds = 0;
    Ending ending = Ending::None;
    // In this order: the workers go before what they report to, and that before its bar, a child.
    std::unique_ptr<ObservedProgress> observed;
    std::unique_ptr<FileDigests> digests;
};
