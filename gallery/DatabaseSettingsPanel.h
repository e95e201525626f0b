#pragma once

#include "GalleryPanel.h"

#include <QHash>
#include <QVariant>

class DictionaryView;
class QLabel;
class TXDatabaseConfigurationWidget;

/// The settings of the library's database panel, as they stand, as they are saved, and as the
/// dialog around such a panel gives them.
class DatabaseSettingsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Shows the settings of the configuration, which is not owned, never null and outlives the
    /// panel.
    explicit DatabaseSettingsPanel(TXDatabaseConfigurationWidget *configuration,
                                   QWidget *parent = nullptr);

public slots:
    /// Shows the settings as they stand in the panel.
    void showSettings();

    /// Shows what a host may save: nothing when no connection can be opened. Blocks while that is
    /// tried.
    void saveSettings();

    /// Shows nothing: what is shown belongs to settings that are no more.
    void clear();

protected:
    void retranslate() override;

private slots:
    void ask();

private:
    /// What the view shows.
    enum class Content {
        Nothing,
        Standing,
        Saved,
        NotSaved,
        Confirmed,
        NotConfirmed,
    };

    void show(Content newContent, const QHash<QString, QVariant> &settings);
    void showContent();
    void setUpLayout();

    TXDatabaseConfigurationWidget *configuration;
    QPushButton *settingsButton;
    QPushButton *saveButton;
    QPushButton *askButton;
    DictionaryView *view;
    QLabel *contentLabel;
    Content content = Content::Nothing;
};
