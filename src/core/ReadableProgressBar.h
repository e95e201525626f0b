#pragma once

#include "TXGUICommonExport.h"

#include <QProgressBar>

/// A bar whose text stands out from what is behind it, also where the bar fills from the right: in
/// a layout from right to left, or inverted in one from left to right.
///
/// Fusion writes the text in two colours, one on the filled part and one beside it, and takes the
/// filled part to be at the left wherever it is. The colours are the style's here too, each where
/// it belongs. A bar that fills from the left is QProgressBar's to the pixel.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ReadableProgressBar : public QProgressBar
{
public:
    /// As QProgressBar starts: from 0 to 100, without a value.
    explicit ReadableProgressBar(QWidget *parent = nullptr);

protected:
    /// Two pictures of the text, as large as the bar, are made for each painting of a bar that
    /// fills from the right.
    void paintEvent(QPaintEvent *event) override;
};
