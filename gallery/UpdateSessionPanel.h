#pragma once

#include "SessionPanel.h"

#include "TXCheckForUpdateWidget.h"

/// What happens between the update dialog and the service: the requests that the service gets, and
/// the signals that the dialog emits.
class UpdateSessionPanel final : public SessionPanel
{
    Q_OBJECT

public:
    explicit UpdateSessionPanel(QWidget *parent = nullptr);

public slots:
    void addState(TXCheckForUpdateWidget::State state);
    void addRelease(const QVariantHash &info);

protected:
    void retranslate() override;
};
