//! [plugin]
#pragma once

#include <IWidgetPlugin.h>

class ScannerPlugin : public QObject, public IWidgetPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
    Q_INTERFACES(IWidgetPlugin)

public:
    ConfWidget *createPage(QWidget *parent) override;
    QString pageTitle() const override { return tr("Scanner"); }
    const QString &pluginName() const override { return name; }

private:
    const QString name = "Scanner";
};
//! [plugin]
