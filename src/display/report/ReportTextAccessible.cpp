#include "ReportTextAccessible.h"

#include "ReportPageAccessible.h"

#include <QRect>

ReportTextAccessible::ReportTextAccessible(const ReportPageAccessible &page, int index)
    : page(page)
    , textIndex(index)
{ }

bool ReportTextAccessible::isValid() const
{
    return page.isValid() && page.hasText(textIndex);
}

QWindow *ReportTextAccessible::window() const
{
    return page.window();
}

QString ReportTextAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? page.textAt(textIndex).text : QString();
}

void ReportTextAccessible::setText(QAccessible::Text /*kind*/, const QString & /*text*/) { }

QRect ReportTextAccessible::rect() const
{
    return isValid() ? page.textRect(textIndex) : QRect();
}

QAccessible::State ReportTextAccessible::state() const
{
    return isValid() ? page.textState(textIndex) : QAccessible::State();
}

QAccessibleInterface *ReportTextAccessible::parent() const
{
    return const_cast<ReportPageAccessible *>(&page);
}

QAccessibleInterface *ReportTextAccessible::child(int /*index*/) const
{
    return nullptr;
}

int ReportTextAccessible::indexOfChild(const QAccessibleInterface * /*child*/) const
{
    return -1;
}

QAccessibleInterface *ReportTextAccessible::childAt(int /*x*/, int /*y*/) const
{
    return nullptr;
}
