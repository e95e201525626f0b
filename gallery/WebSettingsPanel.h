#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QVariant>

class DictionaryView;
class QCheckBox;
class QLabel;
class TXWebInterfaceConfigurationWidget;

/// The settings of the library's web interface panel: kept in those of the gallery, and shown as
/// the panel gives them. Makes what is needed to try the panel: an example, a certificate, and the
/// box for HTTPS, which a program has to offer.
class WebSettingsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Loads what was saved last into the configuration, which is not owned, never null and
    /// outlives the panel.
    explicit WebSettingsPanel(TXWebInterfaceConfigurationWidget *configuration,
                              QWidget *parent = nullptr);

public slots:
    /// Shows the settings as they stand in the panel.
    void showSettings();

    /// Fills in the panel with an example: a port that is free at this moment, a path, a user.
    void fillInExample();

protected:
    void retranslate() override;

private slots:
    void save();
    void load();
    void offerHttps(bool isOffered);
    void makeCertificate();

private:
    /// What has been done last.
    enum class Deed {
        None,
        Saved,
        Loaded,
        NothingToLoad,
        ExampleFilledIn,
        CertificateMade,
        CertificateFailed,
    };

    void show(Deed newDeed, const QString &newReason = {});
    [[nodiscard]] QString deedText() const;
    void setUpLayout();

    TXWebInterfaceConfigurationWidget *configuration;
    QPushButton *exampleButton;
    QCheckBox *offerBox;
    QPushButton *certificateButton;
    QPushButton *showButton;
    QPushButton *saveButton;
    QPushButton *loadButton;
    DictionaryView *view;
    QLabel *deedLabel;
    Deed deed = Deed::None;
    // Why a certificate was not made.
    QString reason;
};
