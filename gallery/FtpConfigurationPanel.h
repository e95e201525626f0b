#pragma once

#include "GalleryPanel.h"

class FTPConfigurationWidget;
class QCheckBox;

/// The library's FTP panel, and a box for each of its options.
class FtpConfigurationPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FtpConfigurationPanel(QWidget *parent = nullptr);

    /// Never null; the panel's own.
    [[nodiscard]] FTPConfigurationWidget *configuration() const { return widget; }

protected:
    void retranslate() override;

private slots:
    void setStatusShown(bool isShown);
    void setActiveShown(bool isShown);
    void setEraseShown(bool isShown);
    void setImporter(bool isImporter);

private:
    void setUpLayout();

    FTPConfigurationWidget *widget;
    QCheckBox *statusBox;
    QCheckBox *activeBox;
    QCheckBox *eraseBox;
    QCheckBox *importerBox;
};
