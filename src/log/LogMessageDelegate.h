#pragma once

#include <QStyledItemDelegate>

/// Paints the messages of a log so that each reads in its own direction: an English one in a window
/// laid out from right to left would have its brackets and full stops at the wrong end.
///
/// What the model holds stays as it is, and from left to right so does what is painted.
///
/// Cost: from right to left one look for the first letter and, when the text begins with one that
/// is written from left to right, one copy of the text, for each row that is painted or measured.
class LogMessageDelegate : public QStyledItemDelegate
{
public:
    /// To be set for the column of the messages.
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    /// Puts a text from left to right between two characters, not seen themselves, that let it read
    /// so. Those of embedding, not of isolation: fonts without the latter are many, and a letter of
    /// another font makes the row higher.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        constexpr QChar kLeftToRightEmbedding(0x202a);
        constexpr QChar kPopDirectionalFormatting(0x202c);
        QStyledItemDelegate::initStyleOption(option, index);
        const QString &text = option->text;
        if (option->direction == Qt::RightToLeft && !text.isEmpty() && !text.isRightToLeft()) {
            option->text = kLeftToRightEmbedding + text + kPopDirectionalFormatting;
        }
    }
};
