#pragma once

#include "TXGUICommonExport.h"

#include <QStyledItemDelegate>

/// Shows what stands under Qt::DisplayRole as a date at the left and a time at the right of the
/// cell, both in the short format of the option's locale, which is that of the view. In a
/// right-to-left view they change sides. What is no QDateTime and does not convert to one, as a
/// QDate and a text in ISO format do, shows nothing. The text of the model stays what it is, for
/// assistive tools and for copying.
///
/// A cell too narrow for both shows the date alone, and one too narrow for the date a beginning of
/// it with "...", at the least "..." alone.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDateTimeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// For any number of views.
    explicit TXDateTimeDelegate(QObject *parent = nullptr);

    /// The texts on the ground of their state: a selected cell of the active window on the
    /// palette's highlight, in white; a selected one without the focus, of another window or of a
    /// disabled view, on the colour of the window and in the painter's pen; all others on no
    /// ground, in QPalette::WindowText. The palette's group is its present one.
    ///
    /// What fits is measured in the font of the option, and drawn in that of the painter; in a view
    /// they are the same. The painter is left as it was. A date that does not fit is measured once
    /// for each two characters that it loses, and locales have short dates.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// What both texts need beside each other, with a blank between and two at either end, rounded
    /// to whole units.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};
