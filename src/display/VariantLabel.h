#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>

/// A label for one line of coloured, monospaced text.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantLabel : public QLabel
{
    Q_OBJECT

public:
    explicit VariantLabel(QWidget *parent);

    /// Paints the focus frame of this widget around the label, since the label covers it. The owner
    /// outlives the label; null, the default, stands for no frame.
    void setFocusOwner(const QWidget *owner);

    void paintEvent(QPaintEvent *event) override;

private:
    const QWidget *focusOwner = nullptr;
};
