#pragma once

#include "GalleryPanel.h"

class DictionaryView;
class QLabel;
class TXCheckForUpdateConfigWidget;

/// The library's panel for the settings of updates, beside the settings as they are stored and what
/// the running update dialog makes of them. It can be used while there is a service on this
/// computer, since nobody else is to be asked.
class UpdateSettingsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit UpdateSettingsPanel(QWidget *parent = nullptr);

public slots:
    /// Whether there is a service on this computer to ask; false at first.
    void setServiceRunning(bool isRunning);

protected:
    void retranslate() override;

private slots:
    void load();
    void save();

private:
    void setTexts();
    void renew();
    void showSettings();
    void setUpLayout();

    // Made anew for another language.
    TXCheckForUpdateConfigWidget *widget;
    QPushButton *loadButton;
    QPushButton *saveButton;
    QLabel *viewLabel;
    DictionaryView *view;
    QLabel *periodLabel;
};
