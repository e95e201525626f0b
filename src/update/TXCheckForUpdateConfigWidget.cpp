#include "TXCheckForUpdateConfigWidget.h"

#include "TXCheckForUpdateWidget.h"
#include "ui_TXCheckForUpdateConfigWidget.h"

#include <QEvent>
#include <QPointer>
#include <QSettings>

namespace {

constexpr int kPeriodDays = 7;
constexpr int kNoPeriodDays = 0;

const QString kPeriodSetting = QStringLiteral("CheckForUpdatesAutoPeriod");
const QString kAtStartupSetting = QStringLiteral("CheckForUpdatesAtStartup");

} // namespace

TXCheckForUpdateConfigWidget::TXCheckForUpdateConfigWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXCheckForUpdateConfigWidget>())
{
    ui->setupUi(this);
}

TXCheckForUpdateConfigWidget::~TXCheckForUpdateConfigWidget() = default;

void TXCheckForUpdateConfigWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
}

void TXCheckForUpdateConfigWidget::load()
{
    const QSettings settings;
    ui->atStartupCheckBox->setChecked(settings.value(kAtStartupSetting, true).toBool());
    ui->automaticCheckBox->setChecked(settings.value(kPeriodSetting, kPeriodDays).toInt() >= 1);
}

void TXCheckForUpdateConfigWidget::save()
{
    const int days = ui->automaticCheckBox->isChecked() ? kPeriodDays : kNoPeriodDays;
    QSettings settings;
    settings.setValue(kAtStartupSetting, ui->atStartupCheckBox->isChecked());
    settings.setValue(kPeriodSetting, days);
    if (TXCheckForUpdateWidget *running = TXCheckForUpdateWidget::instance()) {
        running->setAutoCheckPeriod(days);
    }
}

bool TXCheckForUpdateConfigWidget::hasBoldGroupBoxTitle() const
{
    return ui->groupBox->hasBoldTitle();
}

void TXCheckForUpdateConfigWidget::setBoldGroupBoxTitle(bool isBold)
{
    ui->groupBox->setBoldTitle(isBold);
}

void TXCheckForUpdateConfigWidget::on_checkNowButton_clicked()
{
    if (TXCheckForUpdateWidget *running = TXCheckForUpdateWidget::instance()) {
        running->setVisible(false);
    }
    // It goes with the panel, should that be destroyed while the dialog is open.
    const QPointer<TXCheckForUpdateWidget> dialog = new TXCheckForUpdateWidget(this, false);
    dialog->exec();
    delete dialog;
}
