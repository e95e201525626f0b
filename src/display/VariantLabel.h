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
};
