#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <QVariant>

class QAbstractSpinBox;
class QLabel;
class QPushButton;
class QWidget;

/// Static helpers for widgets. Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXWidgetUtilities
{
public:
    /// The size that shows each of these labels' texts on one line, in pixels: the largest width
    /// and, apart from it, the largest height. Null entries are skipped; empty for an empty list.
    static QSize maxSizeNeededForLabelList(const QList<QLabel *> &labels);

    /// Makes a disabled spin box look like a plain value: no frame, read-only, no buttons. An
    /// enabled one gets frame and arrows back and can be edited. Null is ignored.
    static void treatWhenSpinBoxDisabled(QAbstractSpinBox *spinBox);
};
