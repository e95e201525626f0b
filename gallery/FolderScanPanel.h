#pragma once

#include "FolderScan.h"
#include "GalleryPanel.h"
#include "LargestFolders.h"

#include <memory>

class FolderJobBar;
class QComboBox;
class QLabel;
class QTimer;
class QTreeWidget;
class WorkVeil;

/// Looks for the folders that hold the most, with the spinner of WaitWidget::popUp() over the list
/// for as long as the scan goes on.
class FolderScanPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FolderScanPanel(QWidget *parent = nullptr);

    /// Cancels a running scan and waits for its threads.
    ~FolderScanPanel() override;

    /// As FolderJobBar::setFolders().
    void setFolders(const QString &text);

    [[nodiscard]] bool isRunning() const { return scan->isRunning(); }

    /// Whether the list has rows.
    [[nodiscard]] bool hasResult() const;

public slots:
    /// Starts a scan. No effect while one is running.
    void start();

    /// Lets a running scan end soon.
    void cancel();

signals:
    /// The list was brought up to date, during a scan or at its end.
    void resultShown();

protected:
    void retranslate() override;

private slots:
    void showResult();
    void scanFinished(bool isComplete);
    void chooseSpinner();

private:
    /// How the last scan has ended, if it has.
    enum class Ending { None, Complete, Cancelled };

    void setUpLayout();
    void showList();
    void showSums();

    /// Filled by the scan's threads, so it has to outlive the scan.
    LargestFolders largest;
    std::unique_ptr<FolderScan> scan;
    Ending ending = Ending::None;
    QTimer *resultTimer;

    FolderJobBar *bar;
    QLabel *sizeLabel;
    QComboBox *sizeBox;
    QLabel *sums;
    QTreeWidget *list;
    WorkVeil *veil;
};
