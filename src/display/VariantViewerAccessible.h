#pragma once

#include "TXGUICommonExport.h"

#include <QAccessibleWidget>
#include <QCoreApplication>

class QVariant;
class TXVariantViewer;

/// What assistive tools, a screen reader for one, learn of a viewer of values: a tree of items.
///
/// The name is the key of an entry (in quotes when it is blank), its place such as "[2]" in a list,
/// or for the root the accessible name that the host has set ("Value" without one). The value is
/// the text of the line, at most 1,000 characters, made when it is asked for. It is told whole
/// whether or not the viewer has a preview: the line may well be empty, and then nothing else tells
/// it.
///
/// The description tells the value and its kind ("42, whole number"), of lists and dictionaries the
/// kind and how many entries there are before the value: on Linux nothing but name and description
/// comes through. The tool tip follows on a line of its own. A description that the host has set
/// stands in place of all that.
///
/// Children are the viewers of the entries that are open, and behind them the button for more of
/// them while there is one. The actions are to open or close, and to copy.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantViewerAccessible : public QAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(TXVariantViewer)

public:
    /// An interface for this viewer, which Qt deletes along with it.
    explicit VariantViewerAccessible(TXVariantViewer *viewer);

    /// Tells that the viewer has been opened or closed.
    static void announceFolding(TXVariantViewer &viewer);

    /// A tree for the root, an item of it for the viewers within.
    [[nodiscard]] QAccessible::Role role() const override;
    /// Name, value and description as told above; all else as Qt has it for widgets.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    /// As Qt has it for widgets, and whether there is something to open and whether it is.
    [[nodiscard]] QAccessible::State state() const override;

    /// The viewers of the entries, in their order, and the button; none while closed.
    [[nodiscard]] int childCount() const override;
    /// Null outside of the children.
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    /// -1 for all but a child. Costs the same for any number of children, as name and place of each
    /// do: to read all of them costs their number.
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;

    /// The action that opens or closes, when there is something to open, and the one that copies.
    [[nodiscard]] QStringList actionNames() const override;
    [[nodiscard]] QString localizedActionName(const QString &name) const override;
    /// Nothing for other names, and nothing while disabled.
    void doAction(const QString &name) override;
    /// The keys that do the same on the viewer that has the focus.
    [[nodiscard]] QStringList keyBindingsForAction(const QString &name) const override;

private:
    [[nodiscard]] TXVariantViewer &viewer() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString valueAndKind() const;
    [[nodiscard]] static QString kindOfContainer(const QVariant &value);
    [[nodiscard]] static QString kindOfScalar(const QVariant &value);
    [[nodiscard]] static QString kindOfType(int type);
};
