#pragma once

#include "TXGUICommonExport.h"

#include <QPushButton>

class TXVariantViewer;

/// The button below the entries of a large level, a child of the viewer; a click makes the viewer
/// add more of them. Its text tells how many come and how many the level has.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantMoreButton : public QPushButton
{
    Q_OBJECT

public:
    explicit VariantMoreButton(TXVariantViewer *owner);

    /// Puts the numbers into the text.
    void announce(qsizetype next, qsizetype all);

private slots:
    void askForMore();

private:
    TXVariantViewer *viewer;
};
