#pragma once

#include "GalleryPanel.h"

class LabColourDialog;
class QFrame;
class QLabel;
class QPushButton;

/// One dialog in two places: embedded, where its OK leaves it as it is, and as a window, which OK
/// closes, handing its colour over to the embedded one.
class EmbeddingPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit EmbeddingPanel(QWidget *parent = nullptr);

    /// The dialog as a window; hidden at first.
    [[nodiscard]] LabColourDialog *dialogWindow() const { return windowDialog; }

public slots:
    /// Shows the window with the colour of the embedded dialog, or brings it to the front.
    void openWindow();

protected:
    void retranslate() override;

private slots:
    void embeddedOkClicked();
    void windowFinished(int result);

private:
    enum class Outcome {
        Nothing,
        StayedAfterOk,
        ClosedByOk,
        ClosedByCancel,
    };

    void setUpLayout();
    void showOutcome(Outcome newOutcome);

    QFrame *frame;
    LabColourDialog *embeddedDialog;
    LabColourDialog *windowDialog;
    QPushButton *windowButton;
    QLabel *explanation;
    QLabel *outcomeLabel;
    Outcome outcome = Outcome::Nothing;
};
