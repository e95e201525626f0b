#pragma once

#include "TXGUICommonExport.h"

#include <QObject>
#include <QString>

class ConfWidget;
class QWidget;

/// A plug-in that brings one configuration page. Hosts load plug-ins with WidgetPluginManager.
///
/// A plug-in is a library of its own, linked to this one, with one class:
///
///     class ScannerPlugin : public QObject, public IWidgetPlugin
///     {
///         Q_OBJECT
///         Q_PLUGIN_METADATA(IID "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
///         Q_INTERFACES(IWidgetPlugin)
///
///     public:
///         ConfWidget *createPage(QWidget *parent) override { return new ScannerPage(parent); }
///         QString pageTitle() const override { return tr("Scanner"); }
///         const QString &pluginName() const override { return name; }
///
///     private:
///         const QString name = QStringLiteral("Scanner");
///     };
///
/// where ScannerPage is its subclass of ConfWidget. It is built as a module and put into the
/// ConfWidgets folder beside the program:
///
///     add_library(ScannerPlugin MODULE ScannerPlugin.cpp ScannerPage.cpp)
///     set_target_properties(ScannerPlugin PROPERTIES AUTOMOC ON)
///     target_link_libraries(ScannerPlugin PRIVATE TXGUICommon::TXGUICommon)
///
/// Qt makes the object when the plug-in is loaded and destroys it when the process ends, after the
/// application object: the object must not own widgets.
///
/// Plug-ins are built apart from their hosts, so the order of the operations never changes. Another
/// order needs another identifier.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT IWidgetPlugin
{
public:
    virtual ~IWidgetPlugin();

    /// A new page, at each call another one. It belongs to the parent; without one, to the caller.
    virtual ConfWidget *createPage(QWidget *parent) = 0;

    /// What the host writes on the page's tab or list entry, in the current language.
    virtual QString pageTitle() const = 0;

    /// The name under which the manager keeps the plug-in: one for each plug-in, the same in every
    /// language. Refers to a string that lives as long as the plug-in.
    virtual const QString &pluginName() const = 0;
};

Q_DECLARE_INTERFACE(IWidgetPlugin, "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
