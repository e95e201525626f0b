#pragma once

#include "IWidgetPlugin.h"

/// A plug-in as a host's author would write it. The build gives it name and title, so that one
/// source makes several plug-ins.
class GoodPlugin : public QObject, public IWidgetPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
    Q_INTERFACES(IWidgetPlugin)

public:
    ConfWidget *createPage(QWidget *parent) override;
    QString pageTitle() const override { return QStringLiteral(TEST_PLUGIN_TITLE); }
    const QString &pluginName() const override { return name; }

private:
    const QString name = QStringLiteral(TEST_PLUGIN_NAME);
};
