#pragma once

#include "GalleryPanel.h"

#include <QVariantHash>

class QLabel;
class TXFeedbackDialog;
class TXFeedbackWidget;

/// The library's feedback form as a part of a window, and a button that opens it as a dialog.
class FeedbackFormPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FeedbackFormPanel(QWidget *parent = nullptr);

    /// The form in the panel. Owned.
    [[nodiscard]] TXFeedbackWidget *form() const { return feedback; }

    /// What goes with the notes of the form and of a dialog that is opened from now on.
    void setExtraFields(const QVariantHash &fields);

    /// Fills an example of a note into the form in the panel.
    void fillInExample();

signals:
    /// A dialog has been opened; it is deleted when it is closed.
    void dialogOpened(TXFeedbackDialog *dialog);

protected:
    void retranslate() override;

private slots:
    void openDialog();

private:
    void setUpLayout();

    TXFeedbackWidget *feedback;
    QPushButton *dialogButton;
    QLabel *explanation;
    QVariantHash extraFields;
};
