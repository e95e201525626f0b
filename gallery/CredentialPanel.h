#pragma once

#include "GalleryPanel.h"

#include <memory>

class CredentialDialog;
class QCheckBox;
class QLabel;

/// Asks for credentials in the library's dialog, with and without the offer to remember them, and
/// shows what a host hears of it: the user, the length of the password, and whether the callback
/// was called. Nothing of it is kept.
class CredentialPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit CredentialPanel(QWidget *parent = nullptr);
    ~CredentialPanel() override;

    /// The dialog that was opened last, null before the first. Owned.
    [[nodiscard]] CredentialDialog *dialog() const { return openDialog.get(); }

public slots:
    /// Opens a dialog in place of the one before.
    void ask();

protected:
    void retranslate() override;

private slots:
    void take(int result);

private:
    enum class Outcome {
        None, ///< none asked yet
        Cancelled,
        Confirmed,
    };

    void showOutcome();
    void setUpLayout();

    QPushButton *askButton;
    QCheckBox *rememberBox;
    QLabel *explanation;
    QLabel *outcomeLabel;
    std::unique_ptr<CredentialDialog> openDialog;
    Outcome outcome = Outcome::None;
    // Of the dialog that was confirmed last.
    QString user;
    qsizetype passwordLength = 0;
    bool wasCalled = false;
    bool isRemembering = false;
};
