#include "TXReportAccessible.h"

#include "ReportPageAccessible.h"

#include <QAbstractScrollArea>
#include <QTransform>

TXReportAccessible::TXReportAccessible(QAbstractScrollArea *view)
    : QAccessibleWidget(view, QAccessible::Client)
{ }

TXReportAccessible::~TXReportAccessible()
{
    for (const QAccessible::Id id : std::as_const(pages)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

void TXReportAccessible::announceChange(QAbstractScrollArea *view)
{
    auto *accessible =
        dynamic_cast<TXReportAccessible *>(QAccessible::queryAccessibleInterface(view));
    if (accessible == nullptr) {
        return;
    }
    accessible->forgetPages();
    if (QAccessible::isActive()) {
        QAccessibleEvent event(view, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
}

void TXReportAccessible::forgetPages()
{
    const QHash<int, QAccessible::Id> known = std::exchange(pages, {});
    for (const QAccessible::Id id : known) {
        if (QAccessible::isActive()) {
            QAccessibleEvent event(QAccessible::accessibleInterface(id),
                                   QAccessible::ObjectDestroyed);
            QAccessible::updateAccessibility(&event);
        }
        QAccessible::deleteAccessibleInterface(id);
    }
}

QRect TXReportAccessible::screenRect(int page, const QRectF &rect) const
{
    if (!view()->isVisible()) {
        return {};
    }
    // Beyond that nothing is seen, and whole numbers come to their end.
    constexpr double kFarPixels = 1e6;
    const QRectF reach(-kFarPixels, -kFarPixels, 2 * kFarPixels, 2 * kFarPixels);
    const QRect inViewport = pageTransform(page).mapRect(rect).intersected(reach).toAlignedRect();
    return {view()->viewport()->mapToGlobal(inViewport.topLeft()), inViewport.size()};
}

bool TXReportAccessible::isInView(int page, const QRectF &rect) const
{
    const QRectF inViewport = pageTransform(page).mapRect(rect);
    return view()->isVisible() && inViewport.intersects(view()->viewport()->rect());
}

int TXReportAccessible::childCount() const
{
    return pageCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface *TXReportAccessible::child(int index) const
{
    const int count = pageCount();
    if (index < 0 || index >= count) {
        return index < 0 ? nullptr : QAccessibleWidget::child(index - count);
    }
    const auto known = pages.constFind(index);
    if (known != pages.constEnd()) {
        return QAccessible::accessibleInterface(*known);
    }
    QAccessibleInterface *page = new ReportPageAccessible(*this, index);
    pages.insert(index, QAccessible::registerAccessibleInterface(page));
    return page;
}

int TXReportAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *page = dynamic_cast<const ReportPageAccessible *>(child);
    if (page != nullptr) {
        return page->parent() == this ? page->number() : -1;
    }
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? -1 : pageCount() + index;
}

QAccessibleInterface *TXReportAccessible::childAt(int x, int y) const
{
    const QRect visible(view()->viewport()->mapToGlobal(QPoint()), view()->viewport()->size());
    const int count = visible.contains(x, y) ? pageCount() : 0;
    for (int page = 0; page < count; ++page) {
        if (screenRect(page, pageRect(page)).contains(x, y)) {
            return child(page);
        }
    }
    return QAccessibleWidget::childAt(x, y);
}

QAbstractScrollArea *TXReportAccessible::view() const
{
    return static_cast<QAbstractScrollArea *>(widget());
}
