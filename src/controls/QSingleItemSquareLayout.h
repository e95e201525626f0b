#pragma once

#include "TXGUICommonExport.h"

#include <QLayout>
#include <QRect>

/// A layout for one item, which it keeps square, as large as fits, and centred: a colour sample, a
/// dial, a preview. Take a QGridLayout for anything that may fill its place, or for several items.
///
/// The item's place counts from the top left corner (0, 0) of the parent widget, not of the
/// rectangle that the layout is given. So make it the layout of a widget that holds nothing else;
/// inside another layout, or in a widget with contents margins, the item stands too far left and
/// up by the place of that rectangle.
///
/// A rectangle that comes a second time in a row is not laid out again, unless a hidden item has
/// been shown meanwhile: new contents margins show with the next change of the size.
///
/// The layout owns its item as every QLayout does, and never the item's widget. A widget or layout
/// that is destroyed takes its item out of here.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT QSingleItemSquareLayout : public QLayout
{
    Q_OBJECT

public:
    /// An empty layout, installed on the parent, which must have no layout yet. The spacing in
    /// pixels is only kept: one item has no neighbour.
    QSingleItemSquareLayout(QWidget *parent, int spacing);
    /// An empty layout, to be installed with QWidget::setLayout() or put into another layout.
    explicit QSingleItemSquareLayout(int spacing);
    /// Deletes the item, but not its widget.
    ~QSingleItemSquareLayout() override;

    /// Takes the item over, through replaceItem(). Ignored, and the item stays the caller's, when
    /// an item is present already, for null, and for an item that cannot stand here: a layout that
    /// has a parent, or anything that holds this layout itself.
    void add(QLayoutItem *newItem);
    /// The same as add(). Unlike with Qt's own layouts an item may be refused, and then stays the
    /// caller's: look at hasItem() before.
    void addItem(QLayoutItem *newItem) override;
    /// Takes the widget in, which becomes a child of the layout's parent widget and is shown with
    /// it, unless it was hidden explicitly. Ignored when an item is present, for null, and for a
    /// widget that the layout is inside of; the widget then stays what it was.
    ///
    /// This hides QLayout::addWidget(). Called as that, on a full layout, it would still give the
    /// widget its parent and lose the item that it makes.
    void addWidget(QWidget *widget);

    /// Both directions: the layout takes all space that it can have.
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    /// False: the height is no matter of the width.
    [[nodiscard]] bool hasHeightForWidth() const override;
    /// The item's minimum size, without margins; (0, 0) without an item.
    [[nodiscard]] QSize sizeHint() const override;
    /// The same as sizeHint().
    [[nodiscard]] QSize minimumSize() const override;
    /// The square that the item was given last; a null rectangle before that.
    [[nodiscard]] QRect geometry() const override;

    /// 1 with an item, else 0.
    [[nodiscard]] int count() const override;
    /// The item for the index 0, null when there is none and for any other index.
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    /// Takes the item out, as take() does; null for any other index than 0.
    QLayoutItem *takeAt(int index) override;

    /// Gives the item its square in the middle of a rectangle of this size. Nothing happens without
    /// an item, and for the rectangle that came last, but for an item that was hidden then.
    void setGeometry(const QRect &newRect) override;

    /// Sets the item and gives it its square in geometry(), the former item's square; the space of
    /// the parent widget counts again with its next layout. Null leaves the layout empty.
    ///
    /// Returns the former item, which now is the caller's, or null. Null also when nothing changes:
    /// for the item that is here already, and for one that add() would refuse as unfit.
    virtual QLayoutItem *replaceItem(QLayoutItem *newItem);
    /// Takes the item out and hands it to the caller; null when there is none.
    virtual QLayoutItem *take();
    /// True when there is an item.
    [[nodiscard]] virtual bool hasItem() const;

    /// Sets what setGeometry() takes for the rectangle that came last.
    void setLastReceivedRect(const QRect &newRect);
    /// The square that fits into the size, in pixels: the width less the left and right margins
    /// when the width is at most the height, otherwise the height less the top and bottom margins.
    /// Negative when the margins are wider than that.
    [[nodiscard]] QSize calculateProperSize(QSize size) const;
    /// The top left corner of an item of this size in the middle of the size `from`, by integer
    /// division, neither coordinate below 0.
    [[nodiscard]] QPoint calculateCenterLocation(QSize from, QSize itemSize) const;
    /// True when both have the same corners.
    [[nodiscard]] bool areRectsEqual(const QRect &first, const QRect &second) const;

private slots:
    /// Drops the item, whose widget is being destroyed.
    void dropItem();

private:
    void init(int spacing);
    void release();
    void adopt();

    QLayoutItem *item = nullptr;
    QRect lastReceivedRect;
    QRect rect;
    /// The item's widget or layout, null for any other item.
    QObject *itemObject = nullptr;
    /// The item was hidden when it was given `rect`.
    bool isUnplaced = false;
};
