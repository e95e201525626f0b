#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>
#include <QSize>

class QTextLayout;

/// A label for a name that may be long and without blanks, as that of a server: its plain text
/// wraps between words where it can and anywhere else where it has to.
///
/// A layout never gives it less room than its text takes, whatever the font; so a window with such
/// a label in its layout grows by itself. Of a text longer than 1,000 characters those are shown,
/// and an ellipsis.
class TXGUICOMMON_PRIVATE_EXPORT WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// What the text takes on one line, or on several when they would be wider than 50 characters
    /// of the font. In the time of one layout of the text.
    [[nodiscard]] QSize sizeHint() const override;
    /// The same.
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// Paints the text in the middle of the height, in the palette's colour for the label. Its
    /// lines begin at the side where the layout direction has the beginning; the direction of
    /// their words is that of the text itself, since a name is in no language.
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QSizeF layOut(QTextLayout *layout, qreal width) const;
};
