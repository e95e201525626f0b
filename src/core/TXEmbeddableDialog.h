#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>

/// A dialog that can live inside another window as well.
///
/// As a window it is a QDialog in every way. After setAsWidget() it is a page in the host's layout,
/// and whatever would end the dialog (its buttons, the escape key) leaves the page as it is:
///
///     auto *page = new UpdatesDialog(window);
///     page->setAsWidget();
///     layout->addWidget(page);
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXEmbeddableDialog : public QDialog
{
    Q_OBJECT

public:
    /// A dialog over the parent, which owns it.
    explicit TXEmbeddableDialog(QWidget *parent = nullptr);

public slots:
    /// Ends the dialog with the result. Does nothing while it is embedded: the page stays visible,
    /// result() stays as it is, and none of the dialog's signals is emitted.
    void done(int r) override;

    /// Ends the dialog as accepted; nothing while it is embedded.
    void accept() override;

    /// Ends the dialog as rejected; nothing while it is embedded.
    void reject() override;

public:
    /// Turns the dialog into a plain child of its parent, to be put into a layout, and returns
    /// true. A visible dialog is hidden by it and needs show() again. Without a parent it still is
    /// a window, until a layout or setParent() gives it one. There is no way back.
    virtual bool setAsWidget();
};
