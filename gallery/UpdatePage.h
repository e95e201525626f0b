#pragma once

#include "GalleryPage.h"

#include "TXCheckForUpdateWidget.h"

class UpdateDialogPanel;
class UpdateServicePanel;
class UpdateSessionPanel;
class UpdateSettingsPanel;

/// The library's update dialog, and the panel for its settings, beside a real update service on
/// this computer, with what passes between them.
class UpdatePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit UpdatePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private slots:
    void checkEnded();
    void stateEntered(TXCheckForUpdateWidget::State state);

private:
    void setUpLayout();

    UpdateServicePanel *servicePanel;
    UpdateDialogPanel *dialogPanel;
    UpdateSessionPanel *sessionPanel;
    UpdateSettingsPanel *settingsPanel;
    bool isFilling = false;
};
