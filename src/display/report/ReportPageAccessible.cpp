#include "ReportPageAccessible.h"

#include "ReportTextAccessible.h"
#include "TXReportAccessible.h"

#include <QRect>

ReportPageAccessible::ReportPageAccessible(const TXReportAccessible &view, int number)
    : view(view)
    , pageNumber(number)
{ }

ReportPageAccessible::~ReportPageAccessible()
{
    for (const QAccessible::Id id : std::as_const(children)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

const QList<TXReportText> &ReportPageAccessible::texts() const
{
    if (!found.has_value()) {
        found = isValid() ? view.pageTexts(pageNumber) : QList<TXReportText>();
    }
    return *found;
}

bool ReportPageAccessible::hasText(int index) const
{
    return index >= 0 && index < texts().size();
}

QRect ReportPageAccessible::textRect(int index) const
{
    return view.screenRect(pageNumber, textAt(index).rect);
}

QAccessible::State ReportPageAccessible::textState(int index) const
{
    return stateOf(textAt(index).rect);
}

QAccessible::State ReportPageAccessible::stateOf(const QRectF &rect) const
{
    QAccessible::State state;
    state.readOnly = true;
    state.offscreen = !view.isInView(pageNumber, rect);
    state.invisible = view.state().invisible;
    return state;
}

bool ReportPageAccessible::isValid() const
{
    return view.isValid() && pageNumber < view.pageCount();
}

QWindow *ReportPageAccessible::window() const
{
    return view.window();
}

QString ReportPageAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid()) {
        return {};
    }
    return TXReportAccessible::tr("Page %1 of %2").arg(pageNumber + 1).arg(view.pageCount());
}

void ReportPageAccessible::setText(QAccessible::Text /*kind*/, const QString & /*text*/) { }

QRect ReportPageAccessible::rect() const
{
    return isValid() ? view.screenRect(pageNumber, view.pageRect(pageNumber)) : QRect();
}

QAccessible::State ReportPageAccessible::state() const
{
    return isValid() ? stateOf(view.pageRect(pageNumber)) : QAccessible::State();
}

QAccessibleInterface *ReportPageAccessible::parent() const
{
    return const_cast<TXReportAccessible *>(&view);
}

int ReportPageAccessible::childCount() const
{
    return int(texts().size());
}

QAccessibleInterface *ReportPageAccessible::child(int index) const
{
    if (!hasText(index)) {
        return nullptr;
    }
    const auto known = children.constFind(index);
    if (known != children.constEnd()) {
        return QAccessible::accessibleInterface(*known);
    }
    QAccessibleInterface *made = new ReportTextAccessible(*this, index);
    children.insert(index, QAccessible::registerAccessibleInterface(made));
    return made;
}

int ReportPageAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *text = dynamic_cast<const ReportTextAccessible *>(child);
    return text != nullptr && text->parent() == this ? text->index() : -1;
}

QAccessibleInterface *ReportPageAccessible::childAt(int x, int y) const
{
    for (int index = childCount() - 1; index >= 0; --index) {
        if (textRect(index).contains(x, y)) {
            return child(index);
        }
    }
    return nullptr;
}
