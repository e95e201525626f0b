#pragma once

#include <QComboBox>
#include <QStyleOptionComboBox>

/// A box for choices such as "12:00 am" or "N:/", which read from left to right in a language that
/// is written from right to left as well: there they would be "am 12:00" and "/:N". The texts of
/// the items stay as they are. For choices in words take QComboBox.
class LeftToRightComboBox : public QComboBox
{
public:
    /// A box without items.
    explicit LeftToRightComboBox(QWidget *parent = nullptr)
        : QComboBox(parent)
    {
        setLayoutDirection(Qt::LeftToRight);
    }

protected:
    /// Keeps the text that is painted in its order: painters follow the direction of the program,
    /// not that of the widget.
    void initStyleOption(QStyleOptionComboBox *option) const override
    {
        constexpr QChar kLeftToRightIsolate(0x2066);
        constexpr QChar kPopDirectionalIsolate(0x2069);
        QComboBox::initStyleOption(option);
        option->currentText = kLeftToRightIsolate + option->currentText + kPopDirectionalIsolate;
    }
};
