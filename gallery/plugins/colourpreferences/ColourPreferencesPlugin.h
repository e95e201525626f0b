#pragma once

#include "IWidgetPlugin.h"

#include <QObject>
#include <QString>

/// Brings the page "Colour Measurement": how colours are measured and compared.
class ColourPreferencesPlugin final : public QObject, public IWidgetPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
    Q_INTERFACES(IWidgetPlugin)

public:
    ConfWidget *createPage(QWidget *parent) override;
    QString pageTitle() const override;
    const QString &pluginName() const override { return name; }

private:
    const QString name = QStringLiteral("ColourPreferences");
};
