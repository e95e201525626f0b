#pragma once

#include "GalleryPanel.h"

#include "WidgetPluginManager.h"

#include <QHash>
#include <QVariant>

#include <vector>

class ConfWidget;
class DictionaryView;
class IWidgetPlugin;
class QLabel;
class QPushButton;
class QTreeWidget;
class TXStackedWidget;

/// The configuration pages that plug-ins bring: which were found, the page of the chosen one, and
/// its settings, read back at each change.
class PluginPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Loads the plug-ins of this folder below the program's, or of ConfWidgets when it is empty.
    explicit PluginPanel(const QString &folder, QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showChosen();
    void showSettings();
    void save();
    void restore();

private:
    /// A plug-in that was found.
    struct Entry
    {
        IWidgetPlugin *plugin;
        ConfWidget *page;
        /// The settings that are kept, or else the page's own defaults, as the page gives them.
        QHash<QString, QVariant> kept;
        bool isKept;
    };

    void loadEntries();
    static void loadKept(Entry &entry);
    [[nodiscard]] Entry *chosen();
    [[nodiscard]] int rowHeight() const;
    void setUpLayout();
    void showState(const Entry &entry, bool isChanged);

    WidgetPluginManager manager;
    QString folder;
    std::vector<Entry> entries;

    QLabel *nothingLabel;
    QWidget *content;
    QLabel *listLabel;
    QTreeWidget *list;
    TXStackedWidget *stack;
    QLabel *settingsLabel;
    DictionaryView *settingsView;
    QLabel *stateLabel;
    QPushButton *saveButton;
    QPushButton *restoreButton;
};
