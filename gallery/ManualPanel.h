#pragma once

#include "GalleryPanel.h"

class QLabel;
class QPushButton;

/// Opens the manual of the program, and asks for one that is not there.
class ManualPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The manual's name below the folder of the manuals.
    explicit ManualPanel(QString fileName, QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void openManual();
    void openMissingManual();

private:
    QString fileName;
    QLabel *note;
    QPushButton *openButton;
    QPushButton *missingButton;
};
