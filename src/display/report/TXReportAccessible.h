#pragma once

#include "TXGUICommonExport.h"
#include "TXReportText.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QHash>
#include <QList>

class QAbstractScrollArea;
class QTransform;

/// What screen readers learn of a view that shows pages of a report: each page is a document, and
/// each text on it can be read, in the order of reading.
///
/// A QGraphicsView that shows a TXGraphicsScene has such an interface by itself, with the scene as
/// its only page; there is nothing to do. It follows the scene: what is added, changed or removed,
/// another scene, and none any more.
///
/// A host whose own view paints the pages of a TXReportDocument derives from this class, tells the
/// pages by TXReportDocument::pageTexts(), and makes Qt use it:
///
/// ```
/// QAccessible::installFactory([](const QString &name, QObject *object) -> QAccessibleInterface * {
///     return name == QLatin1String("MyReportView")
///         ? new MyReportViewAccessible(static_cast<MyReportView *>(object)) : nullptr;
/// });
/// ```
///
/// It then calls announceChange() when the view shows other pages.
///
/// Nothing is made before somebody asks: the texts of a page are looked for when its children are,
/// and each text gets an interface of its own only when that very child is asked for.
///
/// Behind the pages come the children that the view has anyway, as its scroll bars. Name and
/// description are those that the host gives to the view.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXReportAccessible : public QAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(TXReportAccessible)
    Q_DISABLE_COPY_MOVE(TXReportAccessible)

public:
    /// An interface for this view, which Qt deletes along with it.
    explicit TXReportAccessible(QAbstractScrollArea *view);
    /// Called by Qt. Takes the pages along.
    ~TXReportAccessible() override;

    /// Lets the interface of the view read all pages anew, and tells assistive programs so. Does
    /// nothing for null and for a view with another kind of interface. Interfaces of pages and
    /// texts that somebody holds are gone after that.
    static void announceChange(QAbstractScrollArea *view);

    /// How many pages the view shows, 0 without any. Asked for often.
    [[nodiscard]] virtual int pageCount() const = 0;
    /// The texts of a page, counted from 0, in the order of reading. Asked for once until the next
    /// announceChange().
    [[nodiscard]] virtual QList<TXReportText> pageTexts(int page) const = 0;
    /// The room of the page, in the units of the texts' places.
    [[nodiscard]] virtual QRectF pageRect(int page) const = 0;
    /// How these units become pixels of the view's viewport, as it is scrolled and scaled now.
    [[nodiscard]] virtual QTransform pageTransform(int page) const = 0;

    /// A place on a page as it is on the screen; of no size for a view that is not seen.
    [[nodiscard]] QRect screenRect(int page, const QRectF &rect) const;
    /// Whether anything of such a place is within the viewport.
    [[nodiscard]] bool isInView(int page, const QRectF &rect) const;

    /// The pages, and behind them the parts of the view.
    [[nodiscard]] int childCount() const override;
    /// Null outside of the children.
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    /// -1 for all but a child.
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    /// The page at the place of the screen, or else what Qt finds there.
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;

private:
    void forgetPages();
    [[nodiscard]] QAbstractScrollArea *view() const;

    /// The pages that somebody has asked for.
    mutable QHash<int, QAccessible::Id> pages;
};
