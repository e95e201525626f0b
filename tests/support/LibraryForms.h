#pragma once

#include <QList>
#include <QSharedPointer>

class QWidget;

/// A widget of the library that brings texts of its own.
struct LibraryForm
{
    /// The name of its class.
    const char *name;
    /// Makes one as a window of its own.
    QSharedPointer<QWidget> (*create)();
};

/// All of them: those with a form, and those that set or paint texts in their code.
[[nodiscard]] const QList<LibraryForm> &libraryForms();
