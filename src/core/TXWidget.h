#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

/// Base of a page that a host shows as a part of a window: it can bring its contents up to date,
/// say whether they can be used, and tell that the user has finished with them.
///
/// The library calls none of this; page and host agree on when. For a configuration page that comes
/// from a plug-in take ConfWidget, for a dialog that can be a page too TXEmbeddableDialog.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXWidget : public QWidget
{
    Q_OBJECT

public:
    /// A page in the parent, which owns it. Without a parent it is a window of its own.
    explicit TXWidget(QWidget *parent = nullptr);

    /// Reads again what the page shows. The host calls it when that may have changed.
    virtual void updateContents() = 0;

    /// Whether what the user entered can be used. True unless a page knows better.
    virtual bool isValid();

signals:
    /// For pages to emit when the user has finished editing. The base never does.
    void editionFinished();

protected:
    /// That of QWidget; for pages to override.
    void showEvent(QShowEvent *event) override;
    /// That of QWidget; for pages to override.
    void hideEvent(QHideEvent *event) override;
};
