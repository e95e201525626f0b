#include "PluginPanel.h"

#include "DictionaryView.h"
#include "PageSettings.h"

#include "ConfWidget.h"
#include "IWidgetPlugin.h"
#include "LeftToRight.h"
#include "TXStackedWidget.h"

#include <QDir>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

constexpr int kButtonGap = 6;
constexpr int kListRows = 3;
constexpr int kRowPadding = 6;

constexpr int kTitleColumn = 0;
constexpr int kLastColumn = 2;

} // namespace

PluginPanel::PluginPanel(const QString &folder, QWidget *parent)
    : GalleryPanel(parent)
    , folder(folder)
    , nothingLabel(new QLabel(this))
    , content(new QWidget(this))
    , listLabel(new QLabel(content))
    , list(new QTreeWidget(content))
    , stack(new TXStackedWidget(content))
    , settingsLabel(new QLabel(content))
    , settingsView(new DictionaryView(content))
    , stateLabel(new QLabel(content))
    , saveButton(new QPushButton(content))
    , restoreButton(new QPushButton(content))
{
    manager.loadPlugins(folder);
    nothingLabel->setWordWrap(true);
    stateLabel->setForegroundRole(QPalette::PlaceholderText);
    listLabel->setBuddy(list);
    settingsLabel->setBuddy(settingsView);
    setUpLayout();
    loadEntries();
    nothingLabel->setVisible(entries.empty());
    content->setVisible(!entries.empty());
    retranslate();
    connect(list, SIGNAL(currentItemChanged(QTreeWidgetItem *, QTreeWidgetItem *)), this,
            SLOT(showChosen()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(save()));
    connect(restoreButton, SIGNAL(clicked()), this, SLOT(restore()));
    list->setCurrentItem(list->topLevelItem(0));
}

void PluginPanel::showChosen()
{
    if (const Entry *entry = chosen()) {
        stack->setCurrentWidget(entry->page);
        showSettings();
    }
}

void PluginPanel::showSettings()
{
    const Entry *entry = chosen();
    if (!entry) {
        return;
    }
    const QHash<QString, QVariant> settings = entry->page->save();
    settingsView->setDictionary(settings, entry->kept);
    showState(*entry, settings != entry->kept);
}

void PluginPanel::save()
{
    if (Entry *entry = chosen()) {
        entry->kept = entry->page->save();
        entry->isKept = true;
        writePageSettings(entry->plugin->pluginName(), entry->kept);
        showSettings();
    }
}

void PluginPanel::restore()
{
    if (Entry *entry = chosen()) {
        loadKept(*entry);
        showSettings();
    }
}

void PluginPanel::loadEntries()
{
    QStringList names = manager.plugins().keys();
    std::sort(names.begin(), names.end());
    for (const QString &name : qAsConst(names)) {
        IWidgetPlugin *plugin = manager.plugin(name);
        Entry entry = {plugin, plugin->createPage(stack), {}, false};
        loadKept(entry);
        stack->addWidget(entry.page);
        connect(entry.page, SIGNAL(confWidgetChanged()), this, SLOT(showSettings()));
        const QString className = QString::fromLatin1(entry.page->metaObject()->className());
        auto *row = new QTreeWidgetItem(list, {QString(), name, className});
        // The last column is wide enough without a hint.
        row->setSizeHint(kLastColumn, {0, rowHeight()});
        entries.push_back(entry);
    }
}

void PluginPanel::loadKept(Entry &entry)
{
    const auto stored = readPageSettings(entry.plugin->pluginName());
    entry.page->load(stored.value_or(QHash<QString, QVariant>()));
    entry.kept = entry.page->save();
    entry.isKept = stored.has_value();
}

int PluginPanel::rowHeight() const
{
    return fontMetrics().height() + kRowPadding;
}

PluginPanel::Entry *PluginPanel::chosen()
{
    const int row = list->indexOfTopLevelItem(list->currentItem());
    return row >= 0 && size_t(row) < entries.size() ? &entries[size_t(row)] : nullptr;
}

void PluginPanel::setUpLayout()
{
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setFixedHeight(rowHeight() * (kListRows + 1) + 2 * list->frameWidth());

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kButtonGap);
    buttons->addWidget(stateLabel, 1);
    buttons->addWidget(restoreButton);
    buttons->addWidget(saveButton);

    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->addWidget(listLabel, 0, 0, 1, 2);
    grid->addWidget(list, 1, 0, 1, 2);
    grid->setRowMinimumHeight(2, kGap / 2);
    grid->addWidget(stack, 3, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(settingsLabel, 3, 1);
    grid->addWidget(settingsView, 4, 1);
    grid->addLayout(buttons, 5, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(nothingLabel);
    rows->addWidget(content, 1);
}

void PluginPanel::showState(const Entry &entry, bool isChanged)
{
    if (isChanged) {
        stateLabel->setText(tr("Changed; what is in bold is not saved."));
    } else {
        stateLabel->setText(entry.isKept ? tr("These settings are saved.")
                                         : tr("The page's defaults; nothing is saved yet."));
    }
    restoreButton->setEnabled(isChanged);
    saveButton->setEnabled(isChanged || !entry.isKept);
}

void PluginPanel::retranslate()
{
    setTitle(tr("Configuration pages from plug-ins"));
    nothingLabel->setText(
        tr("No plug-in was found. Plug-ins are looked for in the folder \"%1\"; put one there and "
           "start the gallery again.")
            .arg(pathInText(QDir::cleanPath(manager.buildPluginDir(folder).absolutePath()))));
    listLabel->setText(tr("&Plug-ins found:"));
    list->setAccessibleName(tr("Plug-ins found"));
    list->setHeaderLabels({tr("Title"), tr("Name"), tr("Class")});
    for (size_t row = 0; row < entries.size(); ++row) {
        list->topLevelItem(int(row))->setText(kTitleColumn, entries[row].plugin->pageTitle());
    }
    settingsLabel->setText(tr("Settings, read bac&k live:"));
    saveButton->setText(tr("Sa&ve"));
    restoreButton->setText(tr("&Restore"));
    showSettings();
}
