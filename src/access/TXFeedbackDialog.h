#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QVariantHash>

#include <memory>

namespace Ui {
class TXFeedbackDialog;
}

/// A TXFeedbackWidget as a window. It closes with QDialog::Accepted when the service has taken the
/// note and with QDialog::Rejected when the user cancels, and stays open after a failure.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXFeedbackDialog : public QDialog
{
    Q_OBJECT

public:
    /// `extraFields` travels with the note; see TXFeedbackWidget::setExtraFields().
    explicit TXFeedbackDialog(const QVariantHash &extraFields, QWidget *parent = nullptr);
    ~TXFeedbackDialog() override;

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::TXFeedbackDialog> ui;
};
