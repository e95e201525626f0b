#include "VariantViewerAccessible.h"

#include "AccessibleDescription.h"
#include "TXVariantViewer.h"
#include "VariantCopyAction.h"
#include "VariantKind.h"
#include "VariantMoreButton.h"
#include "VariantPlainText.h"

namespace {

/// The name by which assistive tools ask for it; what the user reads is localizedActionName().
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
        return AccessibleDescription::withValue(viewer(), valueAndKind());
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
        const bool isBlank = QStringView(shown.entryKey).trimmed().isEmpty();
        return isBlank ? QStringLiteral("\"%1\"").arg(shown.entryKey) : shown.entryKey;
    }
    return QStringLiteral("[%1]").arg(parent->indexOfEntry(&shown));
}

QString VariantViewerAccessible::valueAndKind() const
{
    const QVariant &value = viewer().value;
    const QString text = VariantPlainText::fromVariant(value);
    switch (VariantKind::of(value)) {
    case VariantKind::Kind::Dictionary:
    case VariantKind::Kind::List:
        return tr("%1: %2", "kind and value").arg(kindOfContainer(value), text);
    default:
        return text.isEmpty() ? kindOfScalar(value)
                              : tr("%1, %2", "value and kind").arg(text, kindOfScalar(value));
    }
}

QString VariantViewerAccessible::kindOfContainer(const QVariant &value)
{
    const int count = static_cast<int>(VariantKind::entryCount(value));
    if (VariantKind::isMap(value)) {
        return count == 1 ? tr("dictionary, one entry")
                          : tr("dictionary, %n entries", nullptr, count);
    }
    return count == 1 ? tr("list, one entry") : tr("list, %n entries", nullptr, count);
}

QString VariantViewerAccessible::kindOfScalar(const QVariant &value)
{
    switch (VariantKind::of(value)) {
    case VariantKind::Kind::Text:
        return tr("text");
    case VariantKind::Kind::Nothing:
        return tr("nothing");
    case VariantKind::Kind::TrueOrFalse:
        return tr("true or false");
    default:
        return kindOfType(value.typeId());
    }
}

QString VariantViewerAccessible::kindOfType(int type)
{
    switch (type) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return tr("whole number");
    case QMetaType::Double:
    case QMetaType::Float:
        return tr("number");
    case QMetaType::QDate:
        return tr("date");
    case QMetaType::QTime:
        return tr("time");
    case QMetaType::QDateTime:
        return tr("date and time");
    case QMetaType::QUrl:
        return tr("address");
    default:
        return tr("value");
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
    const int buttons = viewer().moreButton == nullptr ? 0 : 1;
    return static_cast<int>(viewer().entryCount()) + buttons;
}

QAccessibleInterface *VariantViewerAccessible::child(int index) const
{
    if (index < 0) {
        return nullptr;
    }
    QWidget *widget = viewer().entryViewer(index);
    if (index == viewer().entryCount()) {
        widget = viewer().moreButton;
    }
    return widget == nullptr ? nullptr : QAccessible::queryAccessibleInterface(widget);
}

int VariantViewerAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    QObject *object = child == nullptr ? nullptr : child->object();
    if (object != nullptr && object == viewer().moreButton) {
        return static_cast<int>(viewer().entryCount());
    }
    const auto *entry = qobject_cast<TXVariantViewer *>(object);
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
        viewer().copy(viewer().value);
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
