#pragma once

#include "GalleryPanel.h"

class GalleryAboutWindow;
class QCheckBox;
class QLabel;
class QPushButton;

/// Opens the gallery's About window, with and without a detail of the version, and its legal
/// notices.
class AboutWindowPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit AboutWindowPanel(QWidget *parent = nullptr);

    /// The window as the check box says, hidden unless the user has opened it. Never null.
    [[nodiscard]] GalleryAboutWindow *aboutWindow() const;

protected:
    void retranslate() override;

private slots:
    void openWindow() const;
    void openNotices();

private:
    void setUpLayout();

    GalleryAboutWindow *plainWindow;
    GalleryAboutWindow *windowWithQt;
    QPushButton *windowButton;
    QCheckBox *detailBox;
    QPushButton *noticesButton;
    QLabel *note;
};
