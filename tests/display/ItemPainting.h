#pragma once

#include "PixelProbe.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QApplication>
#include <QDebug>
#include <QImage>
#include <QItemSelectionModel>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRect>
#include <QStandardItem>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <QTest>
#include <QWidget>

#include <array>

/// What the tests of the item delegates share.
namespace ItemPainting {

/// The states that a row of a view can be in.
enum State { Plain, Selected, Focused, Inactive, Disabled, DisabledRow };

/// Data rows of each state at each device pixel ratio.
inline void addStates()
{
    static constexpr std::array<const char *, 6> kNames{"plain",    "selected", "focused",
                                                        "inactive", "disabled", "disabled row"};
    QTest::addColumn<int>("state");
    QTest::addColumn<qreal>("ratio");
    for (int state = Plain; state <= DisabledRow; ++state) {
        for (const qreal ratio : {1.0, 2.0}) {
            QTest::addRow("%s at %g", kNames.at(std::size_t(state)), ratio) << state << ratio;
        }
    }
}

/// A colour of its own for each group of those roles that items are painted with.
inline QPalette tellingPalette()
{
    QPalette palette(Qt::white);
    int shade = 0;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Base, Qt::white);
        palette.setColor(group, QPalette::Highlight, QColor(0, 0, 255 - shade));
        palette.setColor(group, QPalette::HighlightedText, QColor(255, 255 - shade, 0));
        palette.setColor(group, QPalette::Window, QColor(200, 255 - shade, 200));
        palette.setColor(group, QPalette::WindowText, QColor(255 - shade, 0, 0));
        palette.setColor(group, QPalette::Text, QColor(255 - shade, 0, 255));
        palette.setColor(group, QPalette::Dark, QColor(0, 255 - shade, 255));
        shade += 50;
    }
    return palette;
}

/// The view's rows, without its frame and scroll bars.
inline QImage pictureOf(QAbstractItemView &view, qreal ratio)
{
    return PixelProbe(*view.viewport(), ratio).image();
}

/// Remembers the option that a view gives for an item.
class OptionRecorder : public QStyledItemDelegate
{
public:
    explicit OptionRecorder(const QModelIndex &index)
        : index(index)
    { }
    void paint(QPainter * /*painter*/, const QStyleOptionViewItem &option,
               const QModelIndex &painted) const override
    {
        state = painted == index ? option.state : state;
    }
    mutable QStyle::State state;

private:
    QModelIndex index;
};

/// A window with a view in which an item is in a state. The item is not the first of its parent:
/// the first one is what has the focus in the other states.
class Stage
{
public:
    Stage(int state, QAbstractItemView &view, QStandardItem &item)
        : view(view)
    {
        view.setParent(&window);
        view.setFrameShape(QFrame::NoFrame);
        view.setPalette(tellingPalette());
        view.resize(200, 160);
        view.setEnabled(state != Disabled);
        item.setEnabled(state != DisabledRow);
        window.show();
        activate(window);
        view.setFocus();
        select(state, item.index());
        if (state == Inactive) {
            other.show();
            activate(other);
        }
        check(state, item.index());
    }
    ~Stage() { view.setParent(nullptr); }
    Q_DISABLE_COPY_MOVE(Stage)

private:
    static void activate(QWidget &widget)
    {
        widget.activateWindow();
        if (!QTest::qWaitForWindowActive(&widget)) {
            qWarning("The window does not become active.");
        }
    }

    void select(int state, const QModelIndex &index)
    {
        QItemSelectionModel &selection = *view.selectionModel();
        selection.setCurrentIndex(state == Focused ? index : index.siblingAtRow(0),
                                  QItemSelectionModel::NoUpdate);
        if (state != Plain && state != DisabledRow) {
            selection.select(index, QItemSelectionModel::ClearAndSelect);
        }
    }

    /// The view must say what the state is called.
    void check(int state, const QModelIndex &index)
    {
        OptionRecorder recorder(index);
        QAbstractItemDelegate *ours = view.itemDelegateForIndex(index);
        view.setItemDelegate(&recorder);
        view.setItemDelegateForColumn(index.column(), nullptr);
        pictureOf(view, 1.0);
        view.setItemDelegate(ours);
        const QStyle::State found = recorder.state;
        if (found.testFlag(QStyle::State_Selected) == (state == Plain || state == DisabledRow)
            || found.testFlag(QStyle::State_Active) == (state == Inactive || state == Disabled)
            || found.testFlag(QStyle::State_HasFocus) != (state == Focused)
            || found.testFlag(QStyle::State_Enabled)
                == (state == Disabled || state == DisabledRow)) {
            qWarning() << "The view does not come to the state" << state << "but to" << found;
        }
    }

    QWidget window;
    QWidget other;
    QAbstractItemView &view;
};

/// The same with Qt's own delegate in place of the one that the view has.
inline QImage plainPictureOf(QAbstractItemView &view, qreal ratio)
{
    QStyledItemDelegate plain;
    QAbstractItemDelegate *ours = view.itemDelegate();
    view.setItemDelegate(&plain);
    const QImage picture = pictureOf(view, ratio);
    view.setItemDelegate(ours);
    return picture;
}

/// The option of an enabled cell outside of any view.
inline QStyleOptionViewItem optionAt(const QRect &rect, QStyle::State state = {})
{
    QStyleOptionViewItem option;
    option.rect = rect;
    option.state = QStyle::State_Enabled | state;
    option.palette = tellingPalette();
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    option.locale = QLocale::c();
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    return option;
}

/// White paper.
inline QImage paper(const QSize &size, qreal ratio = 1.0)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// White paper with one cell painted on it.
inline QImage painted(const QAbstractItemDelegate &delegate, const QStyleOptionViewItem &option,
                      const QModelIndex &index, qreal ratio = 1.0)
{
    QImage image = paper({120, 60}, ratio);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    painter.end();
    return image;
}

/// The device pixels for which the function is true.
template<class IsMeant>
QRect pixelsOf(const QImage &image, IsMeant isMeant)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isMeant(QPoint(x, y))) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

/// The device pixels of the colour; below, those that are not white.
inline QRect pixelsOf(const QImage &image, const QColor &colour)
{
    return pixelsOf(image, [&](const QPoint &at) { return image.pixelColor(at) == colour; });
}

inline QRect inkOf(const QImage &image)
{
    return pixelsOf(image, [&](const QPoint &at) { return image.pixelColor(at) != Qt::white; });
}

/// The device pixels in which two pictures of one size differ.
inline QRect differenceOf(const QImage &left, const QImage &right)
{
    return pixelsOf(left, [&](const QPoint &at) { return left.pixel(at) != right.pixel(at); });
}

/// The rectangle in device pixels.
inline QRect scaled(const QRect &rect, qreal ratio)
{
    return {rect.topLeft() * ratio, rect.size() * ratio};
}

/// The device pixels of a line as wide as a unit, that was drawn from the top left to the bottom
/// right unit of a rectangle as thin as that. The pen stands centred on the point of the unit,
/// which at ratio 2 is a corner of its pixels.
inline QRect strokeOf(const QRect &line, qreal ratio)
{
    const int half = qFloor(ratio / 2.0);
    return scaled(line, ratio).translated(-half, -half);
}

/// Whether painting the cell leaves a painter as it was.
inline bool keepsPainter(const QAbstractItemDelegate &delegate, const QStyleOptionViewItem &option,
                         const QModelIndex &index)
{
    QImage image = paper({120, 60});
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 3.0));
    painter.setBrush(Qt::cyan);
    delegate.paint(&painter, option, index);
    return painter.pen() == QPen(Qt::magenta, 3.0) && painter.brush() == QBrush(Qt::cyan);
}

} // namespace ItemPainting
