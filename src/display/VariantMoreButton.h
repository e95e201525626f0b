#pragma once

#include "TXGUICommonExport.h"

#include <QPushButton>

class TXVariantViewer;

/// The button below the entries of a large level, a child of the viewer; a click makes the viewer
/// add more of them. Its text tells how many come and how many the level has. It is no stop of the
/// Tab key: the keys that move among the viewers reach and leave it.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantMoreButton : public QPushButton
{
    Q_OBJECT

public:
    /// A button without text for this viewer, which is its parent and outlives it; not null.
    explicit VariantMoreButton(TXVariantViewer *owner);

    /// Puts the numbers into the text.
    void announce(qsizetype next, qsizetype all);

protected:
    /// Tells the same numbers in a new language.
    void changeEvent(QEvent *event) override;
    /// Space and Return press the button, once for each time they go down. The keys that move go on
    /// to the viewer.
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void askForMore();

private:
    void retranslate();

    TXVariantViewer *viewer;
    qsizetype nextCount = 0;
    qsizetype allCount = 0;
};
