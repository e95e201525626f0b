#include "ReportPreferencesPlugin.h"

#include "ReportPreferencesPage.h"

ConfWidget *ReportPreferencesPlugin::createPage(QWidget *parent)
{
    return new ReportPreferencesPage(parent);
}

QString ReportPreferencesPlugin::pageTitle() const
{
    return tr("Measuring Report");
}
