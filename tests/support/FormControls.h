#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QWidget;

/// What a form offers to users of the keyboard and of screen readers: its controls, their names,
/// the way of the Tab key through them, and what is wrong with these.
namespace FormControls {

/// Whether the widget is a part of a control, or the room around some, and has no name of its own:
/// what Qt makes inside of its composites (named "qt_…"), the list of a combo box, headers and
/// viewports of views, and the field of a spin box or a combo box, whose name is that of the whole.
[[nodiscard]] bool isPart(const QWidget &widget);

/// All widgets of the form, itself included, that can take the focus, hidden ones too. Parts are
/// left out, and labels that have no text at the time.
[[nodiscard]] QList<QWidget *> of(QWidget &form);

/// What tells one control from the others in a message: its class, its object name and where it is.
[[nodiscard]] QString inWords(const QWidget &widget);

/// The name that a screen reader says. Empty when it is none of the control's own: the title of the
/// group around it, or what stands in an empty field as an example.
[[nodiscard]] QString spokenName(QWidget &control);

/// The controls without a name.
[[nodiscard]] QStringList nameless(QWidget &form);

/// Which names are looked at: all, or those alone that are not the text of a label or a button,
/// which may well end with a colon.
enum class Names { All, Unseen };

/// The widgets that paint themselves, are no controls and stand for nothing but themselves, and of
/// which a screen reader would learn nothing: neither a name nor a description nor a value.
/// Recognised by a class that is not Qt's and has no widgets in it.
[[nodiscard]] QStringList mutePictures(QWidget &form);

/// The controls whose names hold marks that are no part of a name: a mnemonic's "&", or a colon or
/// blank at the end.
[[nodiscard]] QStringList unclean(QWidget &form, Names names);

/// The names that several controls of one kind in the same group of the form share. Those that
/// are hidden, as they stand in for others, or disabled do not count.
[[nodiscard]] QStringList ambiguous(QWidget &form);

/// The visible, enabled controls that Tab has to come to, in the order in which they were made.
[[nodiscard]] QList<QWidget *> tabStops(QWidget &form);

/// The one of the stops that Tab comes to first in the form, null when there are none.
[[nodiscard]] QWidget *firstStop(QWidget &form, const QList<QWidget *> &stops);

/// The widgets that get the focus one after the other by the key, from `start` until it comes back
/// to it. `start` is the last one then.
[[nodiscard]] QList<QWidget *> walk(QWidget &start, bool isForwards);

/// Those of the stops that are not among the steps.
[[nodiscard]] QStringList missing(const QList<QWidget *> &steps, const QList<QWidget *> &stops);

/// Brings the control to where it is seen in the scroll areas around it, as Tab does.
void scrollTo(QWidget &control);

/// The steps from one widget of the form to another that go against the order of reading: up in the
/// same column, or to the left in the same row.
[[nodiscard]] QStringList backwardSteps(const QList<QWidget *> &steps, const QWidget &form);

} // namespace FormControls
