#include "UpdateSettingsPanel.h"

#include "DictionaryView.h"
#include "WidgetReplacement.h"

#include "TXCheckForUpdateConfigWidget.h"
#include "TXCheckForUpdateWidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

namespace {

QHash<QString, QVariant> storedSettings()
{
    const QSettings settings;
    QHash<QString, QVariant> stored;
    for (const QString &key : {QStringLiteral("CheckForUpdatesAtStartup"),
                               QStringLiteral("CheckForUpdatesAutoPeriod")}) {
        if (settings.contains(key)) {
            stored.insert(key, settings.value(key));
        }
    }
    return stored;
}

} // namespace

UpdateSettingsPanel::UpdateSettingsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , widget(new TXCheckForUpdateConfigWidget(this))
    , loadButton(new QPushButton(this))
    , saveButton(new QPushButton(this))
    , viewLabel(new QLabel(this))
    , view(new DictionaryView(this))
    , periodLabel(new QLabel(this))
{
    widget->load();
    viewLabel->setBuddy(view);
    setUpLayout();
    setTexts();
    setServiceRunning(false);
    connect(loadButton, SIGNAL(clicked()), this, SLOT(load()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(save()));
}

void UpdateSettingsPanel::setServiceRunning(bool isRunning)
{
    setEnabled(isRunning);
    showSettings();
}

void UpdateSettingsPanel::retranslate()
{
    setTexts();
    renew();
    showSettings();
}

void UpdateSettingsPanel::load()
{
    widget->load();
    showSettings();
}

void UpdateSettingsPanel::save()
{
    widget->save();
    showSettings();
}

void UpdateSettingsPanel::setTexts()
{
    setTitle(tr("Settings of updates"));
    setButtonText(loadButton, tr("Loa&d Settings"));
    setButtonText(saveButton, tr("Save Se&ttings"));
    viewLabel->setText(tr("Stored settings:"));
    view->setAccessibleName(tr("Stored settings"));
}

/// Makes the widget anew, as it stands, with its texts in the language of the moment.
void UpdateSettingsPanel::renew()
{
    auto *renewed = new TXCheckForUpdateConfigWidget(this);
    // What is shown may not be stored yet.
    const auto boxes = widget->findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes) {
        renewed->findChild<QCheckBox *>(box->objectName())->setChecked(box->isChecked());
    }
    replaceWidget(widget, renewed, loadButton);
    widget = renewed;
}

void UpdateSettingsPanel::showSettings()
{
    view->setDictionary(storedSettings());
    const auto *dialog = TXCheckForUpdateWidget::instance();
    const int days = dialog ? dialog->autoCheckPeriod() : 0;
    periodLabel->setText(
        days > 0
            ? tr("The dialog above checks by itself every %1 days.").arg(locale().toString(days))
            : tr("The dialog above does not check by itself."));
}

void UpdateSettingsPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(loadButton);
    buttons->addWidget(saveButton);
    buttons->addStretch();

    auto *left = new QVBoxLayout;
    left->addWidget(widget);
    left->addLayout(buttons);

    auto *right = new QVBoxLayout;
    right->addWidget(viewLabel);
    right->addWidget(view, 1);
    right->addWidget(periodLabel);

    auto *columns = new QHBoxLayout(this);
    setGaps(columns);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
}
