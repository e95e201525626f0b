//! [page]
#include "ScannerPage.h"

#include <QFormLayout>
#include <QSpinBox>

ScannerPage::ScannerPage(QWidget *parent)
    : ConfWidget(parent)
    , resolution(new QSpinBox(this))
{
    resolution->setRange(75, 1200);
    auto *rows = new QFormLayout(this);
    rows->addRow(tr("&Resolution:"), resolution);
    connect(resolution, &QSpinBox::valueChanged, this, [this] {
        if (!isLoading) {
            emit confWidgetChanged();
        }
    });
}

void ScannerPage::load(const QHash<QString, QVariant> &settings)
{
    isLoading = true;
    resolution->setValue(settings.value("ScannerResolution", 300).toInt());
    isLoading = false;
}

QHash<QString, QVariant> ScannerPage::save()
{
    return {{"ScannerResolution", resolution->value()}};
}
//! [page]
