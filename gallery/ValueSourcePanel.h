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

    /// Shows the text without a sign, or with the sign of an error. An empty text takes away what
    /// was shown.
    void showNote(const TXStringI18n &text) { show(text, false); }
    void showError(const TXStringI18n &text) { show(text, true); }

    /// The text of the note or the error, in the language of the moment.
    [[nodiscard]] QString message() const { return shownMessage.toString(); }

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
    void show(const TXStringI18n &text, bool isError);
    void setUpLayout();

    QPushButton *settingsButton;
    QPushButton *fileButton;
    QPushButton *serviceButton;
    QLabel *errorPicture;
    QLabel *messageLabel;
    TXStringI18n shownMessage;
};
