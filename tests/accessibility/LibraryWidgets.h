#pragma once

#include <QList>

#include <functional>
#include <memory>

class QWidget;

/// A form, dialog or control of the library, as a host makes it, with something to show in it.
struct LibraryWidget
{
    /// The name of the class.
    const char *name;
    /// Makes one.
    std::function<std::unique_ptr<QWidget>()> make;
};

/// Every widget of the library that a host can make.
[[nodiscard]] const QList<LibraryWidget> &libraryWidgets();
