#pragma once

#include "TXGUICommonExport.h"

#include <QAccessibleWidget>
#include <QCoreApplication>

class QVariant;
class TXVariantViewer;

/// What helpers of the user, a screen reader for one, learn of a viewer of values: a tree of items.
///
/// The name is the key of an entry, its place such as "[2]" in a list, or for the root the
/// accessible name that the host has set ("Value" without one). The value is the text of the line,
/// at most 1,000 characters, made when it is asked for. The description tells the kind and how many
/// entries there are. Children are the viewers of the entries that are open. The actions are to
/// open or close, and to copy.
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
    /// Tells that the viewer shows another value.
    static void announceValue(TXVariantViewer &viewer);

    /// A tree for the root, an item of it for the viewers within.
    [[nodiscard]] QAccessible::Role role() const override;
    /// Name, value and description as told above; all else as Qt has it for widgets.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    /// As Qt has it for widgets, and whether there is something to open and whether it is.
    [[nodiscard]] QAccessible::State state() const override;

    /// The viewers of the entries, in their order; none while closed.
    [[nodiscard]] int childCount() const override;
    /// Null outside of the children.
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    /// -1 for all but a child. Costs the number of the children.
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
    [[nodiscard]] QString description() const;
    [[nodiscard]] static QString kind(const QVariant &value);
    [[nodiscard]] static QString kindOfScalar(int type);
};
