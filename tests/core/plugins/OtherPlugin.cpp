#include <QObject>

/// What another kind of plug-in implements.
class IOtherPlugin
{
public:
    virtual ~IOtherPlugin() = default;
};

// Ours but for the version, as a plug-in that was built for a later library would have it.
Q_DECLARE_INTERFACE(IOtherPlugin, "com.tovrahue.GUICommon.IWidgetPlugin/2.0")

/// A plug-in that loads well and is not ours. It claims our identifier where nobody should believe
/// it: in its metadata.
class OtherPlugin : public QObject, public IOtherPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.tovrahue.GUICommon.IWidgetPlugin/1.0")
    Q_INTERFACES(IOtherPlugin)
};

#include "OtherPlugin.moc"
