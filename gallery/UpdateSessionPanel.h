#pragma once

#include "GalleryPanel.h"

#include "TXCheckForUpdateWidget.h"

class QLabel;
class QPlainTextEdit;

/// What happens between dialog and service, live: the requests that the service gets, and the
/// signals that the dialog emits. The newest lines of each are kept.
class UpdateSessionPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The lines of each list above this number are dropped, oldest first.
    static constexpr int kMaximumLines = 500;

    explicit UpdateSessionPanel(QWidget *parent = nullptr);

public slots:
    void addRequest(const QString &line);
    void addState(TXCheckForUpdateWidget::State state);
    void addRelease(const QVariantHash &info);

protected:
    void retranslate() override;

private:
    [[nodiscard]] QPlainTextEdit *makeList(QLabel *label);
    void setUpLayout();

    QLabel *requestsLabel;
    QPlainTextEdit *requests;
    QLabel *emissionsLabel;
    QPlainTextEdit *emissions;
    QPushButton *clearButton;
};
