#include "IWidgetPlugin.h"

// Stands here so that the type has one home, which host and plug-ins share.
IWidgetPlugin::~IWidgetPlugin() = default;
