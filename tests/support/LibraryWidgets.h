#pragma once

#include <QList>
#include <QStringList>

#include <memory>

class QWidget;

/// A form, dialog or control of the library, as a host makes it, with something to show in it.
struct LibraryWidget
{
    /// Where the texts of a widget come from: it brings some of its own, in its form or its code,
    /// or the host alone sets them.
    enum class Texts { Own, OfTheHost };

    /// The name of the class; behind it, after a comma, what kind of it this is.
    const char *name;
    Texts texts;
    /// Makes one as a window of its own.
    std::unique_ptr<QWidget> (*make)();
};

/// Every widget of the library that a host can make.
[[nodiscard]] const QList<LibraryWidget> &libraryWidgets();

/// Those of them that have a form, or set or paint texts in their code.
[[nodiscard]] const QList<LibraryWidget> &libraryWidgetsWithTexts();

/// The names of the forms in the sources that are none of these widgets. When no form is found at
/// all the list holds their folder instead.
[[nodiscard]] QStringList formsMissingIn(const QList<LibraryWidget> &widgets);
