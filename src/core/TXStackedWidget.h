#pragma once

#include "TXGUICommonExport.h"

#include <QStackedWidget>

/// A stack of pages that asks for the size of the page on top.
///
/// QStackedWidget asks for room for the largest of its pages; here hidden pages do not count, so
/// that a dialog can grow and shrink with the page that it shows.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    /// An empty stack in the parent, which owns it.
    explicit TXStackedWidget(QWidget *parent = nullptr);

    /// The size hint of the current page; without pages that of an empty frame.
    [[nodiscard]] QSize sizeHint() const override;

    /// The minimum size hint of the current page; without pages that of a plain widget.
    [[nodiscard]] QSize minimumSizeHint() const override;
};
