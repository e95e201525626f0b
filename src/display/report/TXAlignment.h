#pragma once

#include <QtGlobal>

/// Horizontal place of a text or a picture within its rectangle.
///
/// Settings dictionaries hold the number. A number that is none of the three is a legal value of
/// the type, and leaves the thing at the rectangle's top-left corner.
enum TXHorizontalAlignment : quint32 {
    /// At the left side.
    TXAlignLeft = 0,
    /// At the right side.
    TXAlignRight = 1,
    /// In the middle between the sides.
    TXAlignHorizontallyCentred = 2
};

/// Vertical place of a text or a picture within its rectangle; see TXHorizontalAlignment.
enum TXVerticalAlignment : quint32 {
    /// At the top.
    TXAlignTop = 0,
    /// At the bottom.
    TXAlignBottom = 1,
    /// In the middle between top and bottom.
    TXAlignVerticallyCentred = 2
};
