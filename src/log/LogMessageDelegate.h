#pragma once

#include <QStyledItemDelegate>

/// Paints the messages of a log so that each reads in its own direction: an English one in a window
/// laid out from right to left would have its brackets and full stops at the wrong end.
///
/// What the model holds stays as it is, and from left to right so does what is painted.
///
/// Cost: from right to left one copy of the text for each row that is painted or measured.
class LogMessageDelegate : public QStyledItemDelegate
{
public:
    /// To be set for the column of the messages.
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    /// Puts the text between two characters, not seen themselves, that let its first letter tell
    /// the direction.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        constexpr QChar kFirstStrongIsolate(0x2068);
        constexpr QChar kPopDirectionalIsolate(0x2069);
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->direction == Qt::RightToLeft && !option->text.isEmpty()) {
            option->text = kFirstStrongIsolate + option->text + kPopDirectionalIsolate;
        }
    }
};
