#pragma once

#include "TXGUICommonExport.h"

#include <QComboBox>
#include <QString>

/// A combo box whose tooltip is that of its current item: the text under Qt::ToolTipRole in column
/// 0 of the current row, below rootModelIndex(), or, where that is empty, the tooltip that the box
/// had when it was made.
///
/// The tooltip changes with the current row, not when the model's data changes, and stays as it is
/// while there is no current row. One that the host sets later is lost at the next change. As with
/// every tooltip, Qt shows a text that looks like markup as rich text.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// An empty box. A derived class that sets a tooltip in its constructor does so too late for
    /// it to come back: the one to fall back to is what is there at the end of this constructor.
    explicit TXComboBox(QWidget *parent = nullptr);

public slots:
    /// Takes over the tooltip of this row; connected to currentIndexChanged(int). A host may call
    /// it after it has changed the tooltip of the current item. No effect for a row that there is
    /// not.
    void currentIndexHasBeenChanged(int index);

private:
    QString baseToolTip;
};
