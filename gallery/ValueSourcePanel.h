#pragma once

#include "GalleryPanel.h"

#include "TXStringI18n.h"

class QLabel;
class QPushButton;

/// Where a value may come from, a button for each, and below them what there is to say: that an
/// answer is waited for, or what went wrong.
class ValueSourcePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ValueSourcePanel(QWidget *parent = nullptr);

    /// Shows the text in place of what was shown.
    void showNote(const TXStringI18n &text);

    /// Shows what went wrong, with the sign of an error. The reason, a sentence more, may be empty.
    void showError(const TXStringI18n &text, const TXStringI18n &reason = {});

    /// The note, or the error with its reason, in the language of the moment.
    [[nodiscard]] QString message() const;

signals:
    /// The user wants to see the settings.
    void settingsWanted();

    /// The user wants to choose a JSON file.
    void fileWanted();

    /// The user wants the answer of the update service.
    void answerWanted();

protected:
    void retranslate() override;

private:
    void showMessage(bool isError);
    void setUpLayout();

    QPushButton *settingsButton;
    QPushButton *fileButton;
    QPushButton *serviceButton;
    QLabel *errorPicture;
    QLabel *messageLabel;
    TXStringI18n shownText;
    TXStringI18n shownReason;
};
