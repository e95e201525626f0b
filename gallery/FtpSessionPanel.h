#pragma once

#include "GalleryPanel.h"

#include "FTPConfigurationWidget.h"

class QLabel;
class QPlainTextEdit;

/// What happens between panel and server, live: the commands that the server gets, and the signals
/// that the panel emits. The newest lines of each are kept.
class FtpSessionPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The lines of each list above this number are dropped, oldest first.
    static constexpr int kMaximumLines = 500;

    explicit FtpSessionPanel(QWidget *parent = nullptr);

public slots:
    void addCommand(const QString &line);
    void addConnectionStatus(FTPConfigurationWidget::FtpStatus status);
    void addFtpStatus(bool isEnabled);

protected:
    void retranslate() override;

private:
    [[nodiscard]] QPlainTextEdit *makeList(QLabel *label);
    void setUpLayout();

    QLabel *commandsLabel;
    QPlainTextEdit *commands;
    QLabel *emissionsLabel;
    QPlainTextEdit *emissions;
    QPushButton *clearButton;
};
