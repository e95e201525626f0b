#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <QVariant>

class QAbstractSpinBox;
class QLabel;
class QPushButton;
class QWidget;

/// Static helpers for widgets: keeping the looks of a window from one run to the next, and giving
/// lists of buttons and labels one size. Thread: the GUI thread.
///
/// The state of widgets is a dictionary of plain values, fit for QSettings or a file. A host saves
/// when its window closes and restores before it is shown again:
///
///     QHash<QString, QVariant> state;
///     TXWidgetUtilities::saveWidgetStateInHash(window, state);
///     settings.setValue("window", state);
///
///     TXWidgetUtilities::restoreWidgetStateInHash(window, settings.value("window").toHash());
///
/// It has an entry for each widget, under its object name, which is a dictionary too:
///
/// | Key           | Value        | Of                                                           |
/// |---------------|--------------|--------------------------------------------------------------|
/// | "geometry"    | `QByteArray` | every widget                                                 |
/// | "state"       | `QByteArray` | main windows and splitters                                   |
/// | "headerState" | dictionary   | tables and trees, see saveWidgetStateInHash()                |
/// | "children"    | dictionary   | widgets with child widgets: their entries, by object name    |
///
/// Restore before the window is shown. Qt places child widgets as it does windows, clear of the
/// upper edge by the height of a title bar; when the window is shown, layouts, splitters and
/// scrolling views put that right. In a window that is on the screen they do so at its next resize.
///
/// A widget is known by its object name among its siblings. Of siblings with the same name, or
/// without one, only the last is kept, and when restoring all of them get what it had.
class TXGUICOMMON_EXPORT TXWidgetUtilities
{
public:
    /// Puts the entry of the widget, with all widgets below it, into `state`, where it replaces one
    /// of the same name and leaves the others. Null is ignored.
    ///
    /// Of a table or tree view the horizontal header is kept, in "headerState" under
    /// "horizontalState", unless all its sections are of fixed width. The vertical header, under
    /// "verticalState", is kept only of a view without a horizontal one: never of a table.
    ///
    /// Costs time in proportion to the number of widgets and of header sections, most of it Qt's
    /// for the geometries, which cost more the deeper widgets are nested.
    static void saveWidgetStateInHash(QWidget *widget, QHash<QString, QVariant> &state);

    /// Gives the widget, and all widgets below it, what `state` holds for them. Null is ignored.
    ///
    /// A widget without an entry, or with an empty one, stays as it is with all that is below it,
    /// whatever the dictionary holds further down. A value that is missing or of another type
    /// changes nothing, and nothing is reported. A header whose sections are all fixed by now stays
    /// as it is. Costs as much as saving.
    ///
    /// The byte arrays are in Qt's own formats. Qt refuses most that are cut short and trusts all
    /// others, so keep a dictionary where only the application writes.
    static void restoreWidgetStateInHash(QWidget *widget, const QHash<QString, QVariant> &state);

    /// The size that shows each of these labels' texts on one line, in pixels: the largest width
    /// and, apart from it, the largest height. Null entries are skipped; empty for an empty list.
    static QSize maxSizeNeededForLabelList(const QList<QLabel *> &labels);

    /// The same for the texts of buttons, with a margin of two blanks at each side.
    static QSize maxSizeNeededForButtonList(const QList<QPushButton *> &buttons);

    /// Gives all these buttons the same fixed width, in pixels. Null entries are skipped.
    static void setFixedWidthToButtonList(const QList<QPushButton *> &buttons, int width);

    /// Gives all these buttons the same fixed size, in pixels. Null entries are skipped.
    static void setFixedSizeToButtonList(const QList<QPushButton *> &buttons, QSize size);

    /// Makes a disabled spin box look like a plain value: no frame, read-only, no buttons. An
    /// enabled one gets frame and arrows back and can be edited. Null is ignored.
    static void treatWhenSpinBoxDisabled(QAbstractSpinBox *spinBox);
};
