#include "VariantViewerAccessible.h"

#include "TXVariantViewer.h"
#include "VariantCopyAction.h"
#include "VariantKind.h"
#include "VariantPlainText.h"

namespace {

/// The name by which helpers ask for it; what the user reads is localizedActionName().
const QString kCopyAction = QStringLiteral("Copy");

} // namespace

VariantViewerAccessible::VariantViewerAccessible(TXVariantViewer *viewer)
    : QAccessibleWidget(viewer, QAccessible::TreeItem)
{ }

void VariantViewerAccessible::announceFolding(TXVariantViewer &viewer)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(&viewer, changed);
    QAccessible::updateAccessibility(&event);
}

void VariantViewerAccessible::announceValue(TXVariantViewer &viewer)
{
    QAccessibleValueChangeEvent event(&viewer, VariantPlainText::fromVariant(viewer.value));
    QAccessible::updateAccessibility(&event);
}

QAccessible::Role VariantViewerAccessible::role() const
{
    return viewer().parentViewer() == nullptr ? QAccessible::Tree : QAccessible::TreeItem;
}

QString VariantViewerAccessible::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return name();
    case QAccessible::Value:
        return VariantPlainText::fromVariant(viewer().value);
    case QAccessible::Description:
        return description();
    default:
        return QAccessibleWidget::text(kind);
    }
}

QString VariantViewerAccessible::name() const
{
    const TXVariantViewer &shown = viewer();
    const TXVariantViewer *parent = shown.parentViewer();
    if (!shown.accessibleName().isEmpty()) {
        return shown.accessibleName();
    }
    if (parent == nullptr) {
        return tr("Value");
    }
    if (VariantKind::isMap(parent->value)) {
        return shown.entryKey;
    }
    return QStringLiteral("[%1]").arg(parent->indexOfEntry(&shown));
}

QString VariantViewerAccessible::description() const
{
    const QString ofHost = viewer().accessibleDescription();
    return ofHost.isEmpty() ? kind(viewer().value) : ofHost;
}

QString VariantViewerAccessible::kind(const QVariant &value)
{
    if (VariantKind::isText(value)) {
        return tr("Text");
    }
    if (value.isNull()) {
        return tr("Nothing");
    }
    if (VariantKind::isMap(value)) {
        const qsizetype count = value.typeId() == QMetaType::QVariantHash ? value.toHash().size()
                                                                          : value.toMap().size();
        return count == 1 ? tr("Dictionary, one entry")
                          : tr("Dictionary, %n entries", nullptr, static_cast<int>(count));
    }
    if (VariantKind::isList(value)) {
        const qsizetype count = value.typeId() == QMetaType::QStringList
            ? value.toStringList().size()
            : value.toList().size();
        return count == 1 ? tr("List, one entry")
                          : tr("List, %n entries", nullptr, static_cast<int>(count));
    }
    return kindOfScalar(value.typeId());
}

QString VariantViewerAccessible::kindOfScalar(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return tr("True or false");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return tr("Whole number");
    case QMetaType::Double:
    case QMetaType::Float:
        return tr("Number");
    default:
        return QString::fromLatin1(QMetaType(type).name());
    }
}

QAccessible::State VariantViewerAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = viewer().isExpandable();
    state.expanded = viewer().isExpanded();
    state.collapsed = viewer().isExpandable() && !viewer().isExpanded();
    return state;
}

int VariantViewerAccessible::childCount() const
{
    return static_cast<int>(viewer().entryCount());
}

QAccessibleInterface *VariantViewerAccessible::child(int index) const
{
    TXVariantViewer *entry = index < 0 ? nullptr : viewer().entryViewer(index);
    return entry == nullptr ? nullptr : QAccessible::queryAccessibleInterface(entry);
}

int VariantViewerAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *entry =
        child == nullptr ? nullptr : qobject_cast<TXVariantViewer *>(child->object());
    return entry == nullptr ? -1 : static_cast<int>(viewer().indexOfEntry(entry));
}

QStringList VariantViewerAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (viewer().isEnabled()) {
        if (viewer().isExpandable()) {
            names.append(toggleAction());
        }
        names.append(kCopyAction);
    }
    return names;
}

QString VariantViewerAccessible::localizedActionName(const QString &name) const
{
    if (name == toggleAction()) {
        return viewer().isExpanded() ? tr("Collapse") : tr("Expand");
    }
    if (name == kCopyAction) {
        return VariantCopyAction::text(viewer().value);
    }
    return QAccessibleWidget::localizedActionName(name);
}

void VariantViewerAccessible::doAction(const QString &name)
{
    if (!viewer().isEnabled()) {
        return;
    }
    if (name == toggleAction()) {
        viewer().setExpanded(!viewer().isExpanded());
    } else if (name == kCopyAction) {
        viewer().copyValue();
    } else {
        QAccessibleWidget::doAction(name);
    }
}

QStringList VariantViewerAccessible::keyBindingsForAction(const QString &name) const
{
    if (name == toggleAction()) {
        return {QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText)};
    }
    if (name == kCopyAction) {
        return {QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText)};
    }
    return QAccessibleWidget::keyBindingsForAction(name);
}

TXVariantViewer &VariantViewerAccessible::viewer() const
{
    return *static_cast<TXVariantViewer *>(widget());
}
