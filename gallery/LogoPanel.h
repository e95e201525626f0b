#pragma once

#include "GalleryPanel.h"

#include <QTimer>

#include <memory>

class GallerySplash;
class LogoView;
class QLabel;
class QPushButton;

/// The chain of logos of the splash: the installed one, the copy that is kept, and what is shown.
///
/// The user's own picture can be put in as the installed logo and taken away again, and the splash
/// be shown as at the start.
class LogoPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit LogoPanel(QWidget *parent = nullptr);
    ~LogoPanel() override;

protected:
    /// Reads the files again: others may have changed them.
    void showEvent(QShowEvent *event) override;
    void retranslate() override;

private slots:
    void putLogo();
    void removeLogo();
    void removeCopy();
    void showSplash();
    void closeSplash();

private:
    void setUpLayout();
    [[nodiscard]] bool confirm(const QString &question);
    void readAgain(const QString &problem);
    void showFiles();

    LogoView *installedView;
    LogoView *cachedView;
    LogoView *shownView;
    QPushButton *putButton;
    QPushButton *removeButton;
    QPushButton *removeCopyButton;
    QPushButton *splashButton;
    QLabel *messageLabel;
    std::unique_ptr<GallerySplash> splash;
    QTimer splashTimer;
};
