#pragma once

#include "TXGUICommonExport.h"

#include <QSpinBox>

/// A QSpinBox that looks like a plain value, without frame and buttons, while it is disabled.
///
/// Frame, buttons and read-only state are the class's own: what is set from outside lasts until it
/// is next enabled or disabled.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSpinBoxDisabled : public QSpinBox
{
    Q_OBJECT

public:
    /// Looks disabled at once below a disabled parent.
    explicit TXSpinBoxDisabled(QWidget *parent = nullptr);

protected:
    /// Adjusts the look before the base class treats a change of the enabled state. Null is
    /// ignored.
    void changeEvent(QEvent *event) override;
};
