#include "DatabaseSettingsPanel.h"

#include "DictionaryView.h"
#include "WaitCursor.h"

#include "TXDatabaseConfigurationWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

/// The entries with those of the inner dictionaries beside them, as "Parameters/Host".
QHash<QString, QVariant> flattened(const QHash<QString, QVariant> &settings)
{
    QHash<QString, QVariant> flat;
    for (auto entry = settings.begin(); entry != settings.end(); ++entry) {
        if (entry->typeId() != QMetaType::QVariantHash) {
            flat.insert(entry.key(), entry.value());
            continue;
        }
        const QHash<QString, QVariant> inner = entry->toHash();
        for (auto part = inner.begin(); part != inner.end(); ++part) {
            flat.insert(entry.key() + u'/' + part.key(), part.value());
        }
    }
    return flat;
}

} // namespace

DatabaseSettingsPanel::DatabaseSettingsPanel(TXDatabaseConfigurationWidget *configuration,
                                             QWidget *parent)
    : GalleryPanel(parent)
    , configuration(configuration)
    , settingsButton(new QPushButton(this))
    , saveButton(new QPushButton(this))
    , askButton(new QPushButton(this))
    , view(new DictionaryView(this))
    , contentLabel(new QLabel(this))
{
    view->setTypesShown(false);
    setUpLayout();
    retranslate();
    connect(settingsButton, SIGNAL(clicked()), this, SLOT(showSettings()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(saveSettings()));
    connect(askButton, SIGNAL(clicked()), this, SLOT(ask()));
}

void DatabaseSettingsPanel::showSettings()
{
    show(Content::Standing, configuration->settings());
}

void DatabaseSettingsPanel::saveSettings()
{
    const WaitCursor cursor;
    const QHash<QString, QVariant> saved = configuration->save();
    show(saved.isEmpty() ? Content::NotSaved : Content::Saved, saved);
}

void DatabaseSettingsPanel::clear()
{
    show(Content::Nothing, {});
}

void DatabaseSettingsPanel::retranslate()
{
    setTitle(tr("Settings and dialog"));
    setButtonText(settingsButton, tr("S&how Settings"));
    setButtonText(saveButton, tr("Sav&e"));
    setButtonText(askButton, tr("As&k..."));
    view->setAccessibleName(tr("Settings of the database"));
    showContent();
}

void DatabaseSettingsPanel::ask()
{
    // The window, should it be closed meanwhile, takes the panel with it.
    const QPointer<DatabaseSettingsPanel> self(this);
    const QHash<QString, QVariant> asked = TXDatabaseConfigurationWidget::ask(
        tr("Where to Keep the Measurements"), configuration->settings());
    if (self) {
        show(asked.isEmpty() ? Content::NotConfirmed : Content::Confirmed, asked);
    }
}

void DatabaseSettingsPanel::show(Content newContent, const QHash<QString, QVariant> &settings)
{
    content = newContent;
    view->setDictionary(flattened(settings));
    showContent();
}

void DatabaseSettingsPanel::showContent()
{
    switch (content) {
    case Content::Nothing:
        contentLabel->clear();
        break;
    case Content::Standing:
        contentLabel->setText(tr("As they stand in the panel, whether they work or not."));
        break;
    case Content::Saved:
        contentLabel->setText(tr("Saved: a connection can be opened."));
        break;
    case Content::NotSaved:
        contentLabel->setText(tr("Nothing to save: no connection can be opened."));
        break;
    case Content::Confirmed:
        contentLabel->setText(tr("Confirmed in the dialog: a connection can be opened."));
        break;
    case Content::NotConfirmed:
        contentLabel->setText(tr("Cancelled, or no connection can be opened."));
        break;
    }
}

void DatabaseSettingsPanel::setUpLayout()
{
    contentLabel->setWordWrap(true);
    contentLabel->setForegroundRole(QPalette::PlaceholderText);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(settingsButton);
    buttons->addWidget(saveButton);
    buttons->addStretch();
    buttons->addWidget(askButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(view, 1);
    rows->addWidget(contentLabel);
}
