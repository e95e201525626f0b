#include "ColourPreferencesPlugin.h"

#include "ColourPreferencesPage.h"

ConfWidget *ColourPreferencesPlugin::createPage(QWidget *parent)
{
    return new ColourPreferencesPage(parent);
}

QString ColourPreferencesPlugin::pageTitle() const
{
    return tr("Colour Measurement");
}
