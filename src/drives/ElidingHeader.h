#pragma once

#include "TXGUICommonExport.h"

#include <QHeaderView>

class QWidget;

/// The header of a tree, with an ellipsis at the end of each text that its section has no room for.
///
/// QHeaderView::setTextElideMode() has no effect in some versions of Qt, which cut the text off in
/// the middle of a letter. The tooltip says the whole text.
///
/// In all else as the header that a QTreeView makes itself: sections can be moved, and the last one
/// takes what room is left.
class TXGUICOMMON_PRIVATE_EXPORT ElidingHeader : public QHeaderView
{
    Q_OBJECT

public:
    /// Hand it to QTreeView::setHeader(), which takes it over.
    explicit ElidingHeader(QWidget *parent = nullptr);

protected:
    /// Answers the wish for a tooltip with the whole text of a section that shows a part of it.
    bool viewportEvent(QEvent *event) override;
    /// Shortens the text to what the section has room for.
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
};
