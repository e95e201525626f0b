#include "Samples.h"

#include <TXCheckForUpdateConfigWidget.h>
#include <TXCheckForUpdateWidget.h>
#include <TXUpdateService.h>

#include <QAction>
#include <QVBoxLayout>

//! [service]
void useUpdateService(const QString &hostAndPort)
{
    TXUpdateService::setAuthority(hostAndPort);
}
//! [service]

//! [dialog]
TXCheckForUpdateWidget *setUpUpdates(QWidget *window, QAction *checkAction)
{
    const int product = 7;
    const bool mayCheckAtStartup = true;
    auto *updates = new TXCheckForUpdateWidget("Patch Reader", product, mayCheckAtStartup, window);
    QObject::connect(checkAction, &QAction::triggered, updates,
                     &TXCheckForUpdateWidget::checkUpdate);
    return updates;
}
//! [dialog]

//! [config]
TXCheckForUpdateConfigWidget *addUpdatePanel(QVBoxLayout *preferences, QWidget *parent)
{
    auto *panel = new TXCheckForUpdateConfigWidget(parent);
    panel->load();
    preferences->addWidget(panel);
    return panel; // call save() when the preferences are applied
}
//! [config]
