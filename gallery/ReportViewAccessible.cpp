#include "ReportViewAccessible.h"

#include "ReportView.h"

#include "TXReportDocument.h"

#include <QTransform>

namespace {

QAccessibleInterface *make(const QString &className, QObject *object)
{
    if (className != QLatin1String(ReportView::staticMetaObject.className())) {
        return nullptr;
    }
    return new ReportViewAccessible(static_cast<ReportView *>(object));
}

} // namespace

ReportViewAccessible::ReportViewAccessible(ReportView *view)
    : TXReportAccessible(view)
{ }

void ReportViewAccessible::install()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(make);
        return true;
    }();
}

int ReportViewAccessible::pageCount() const
{
    return reportView().pageCount();
}

QList<TXReportText> ReportViewAccessible::pageTexts(int page) const
{
    const TXReportDocument *report = reportView().report();
    return report == nullptr ? QList<TXReportText>() : report->pageTexts(page);
}

QRectF ReportViewAccessible::pageRect(int /*page*/) const
{
    return {QPointF(), reportView().paperSize()};
}

QTransform ReportViewAccessible::pageTransform(int page) const
{
    const QPointF corner = reportView().pageRect(page).topLeft();
    const double scale = reportView().pixelsPerPoint();
    return QTransform::fromTranslate(corner.x(), corner.y()).scale(scale, scale);
}

const ReportView &ReportViewAccessible::reportView() const
{
    return *static_cast<const ReportView *>(object());
}
