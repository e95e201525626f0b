#pragma once

#include "TXGUICommonExport.h"

#include <QStyledItemDelegate>

/// Draws the rows of a list of network finds, whose texts come from whoever is on the network: each
/// on one line, without markup, no longer than anybody can read, and from left to right whatever
/// the language is. The texts in the list stay what they are.
class TXGUICOMMON_PRIVATE_EXPORT ShareRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// What is drawn of a text; see AddressText.
    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override;

    /// One line high, for all rows alike, and no wider than the list: what is longer is elided.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};
