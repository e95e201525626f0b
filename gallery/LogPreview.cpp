#include "LogPreview.h"

#include "LeftToRight.h"

#include "TXLogManager.h"
#include "TXLogModel.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

namespace {

constexpr int kFollowIntervalMilliseconds = 100;
constexpr int kHintRows = 14;
constexpr int kHintWidth = 640;

/// Lets each message read in its own direction, whatever that of the page is; what the log holds
/// stays as it is.
class MessageDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    /// From right to left one copy of the text for each row that is painted.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->direction == Qt::RightToLeft) {
            option->text = inItsOwnDirection(option->text);
        }
    }
};

} // namespace

LogPreview::LogPreview(const QSharedPointer<TXLogManager> &log, QWidget *parent)
    : QTreeView(parent)
    , followTimer(new QTimer(this))
{
    setModel(new TXLogModel(log, this));
    setItemDelegateForColumn(TXLogModel::MessageColumn, new MessageDelegate(this));
    setColumnHidden(TXLogModel::LevelColumn, true);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(TXLogModel::DateColumn, QHeaderView::ResizeToContents);
    // A column as wide as all of a long log would be measured at each entry.
    header()->setResizeContentsPrecision(0);

    // Scrolling lays out all rows: not for every batch of the log.
    followTimer->setSingleShot(true);
    followTimer->setInterval(kFollowIntervalMilliseconds);
    connect(followTimer, SIGNAL(timeout()), this, SLOT(scrollToBottom()));
    connect(verticalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(noteScrolling(int)));
}

QSize LogPreview::sizeHint() const
{
    return {kHintWidth, fontMetrics().height() * kHintRows};
}

void LogPreview::showNewest()
{
    const int last = model()->rowCount() - 1;
    expand(model()->index(last, 0));
    scrollToBottom();
}

void LogPreview::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    // The view would make the next row current and lay out all rows to scroll there, at each entry
    // that a full log drops.
    const QModelIndex current = currentIndex();
    if (current.parent() == parent && current.row() >= start && current.row() <= end) {
        selectionModel()->clearCurrentIndex();
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void LogPreview::rowsInserted(const QModelIndex &parent, int start, int end)
{
    QTreeView::rowsInserted(parent, start, end);
    if (isFollowing && !followTimer->isActive()) {
        followTimer->start();
    }
}

void LogPreview::noteScrolling(int value)
{
    isFollowing = value == verticalScrollBar()->maximum();
}
