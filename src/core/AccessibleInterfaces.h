#pragma once

#include <QAccessible>
#include <QLatin1String>
#include <QString>

/// How widgets of the library get their accessible interfaces.
namespace AccessibleInterfaces {

/// A new interface for objects of exactly this class, null for any other; Qt owns it. Qt asks for
/// each class of an object, from its own up to the bases, so that subclasses have it too.
template<class Widget, class Interface>
QAccessibleInterface *make(const QString &className, QObject *object)
{
    if (className != QLatin1String(Widget::staticMetaObject.className())) {
        return nullptr;
    }
    return new Interface(static_cast<Widget *>(object));
}

/// Tells Qt of the interface for a class of widgets, once for the life of the process. Called in
/// the constructors of these widgets.
template<class Widget, class Interface>
void install()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(&make<Widget, Interface>);
        return true;
    }();
}

} // namespace AccessibleInterfaces
