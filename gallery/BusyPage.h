#pragma once

#include "GalleryPage.h"

class FolderScanPanel;
class WorkersPanel;

/// The spinner, the progress bar and the delegate between workers and bar, over real work.
class BusyPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit BusyPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

    /// Shows a scan and several workers that are under way as long as the page is seen.
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void retranslate() override { }
    void hideEvent(QHideEvent *event) override;

private slots:
    void checkReady();

private:
    void setUpLayout();

    FolderScanPanel *scanPanel;
    WorkersPanel *workersPanel;
    bool isFilling = false;
    bool isScanStarted = false;
    bool isPicture = false;
};
