#pragma once

#include "GalleryPanel.h"

#include "TXError.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// The choice of the application's style sheet, and the sheet's text as the application has got it,
/// with its places made absolute.
///
/// What is chosen holds for the whole gallery until it ends; it is not remembered. A sheet that
/// cannot be read leaves the one before, and why is told.
class StyleSheetPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit StyleSheetPanel(QWidget *parent = nullptr);

    /// Applies the sheet that the gallery ships, as if it were chosen.
    void applyShipped();

protected:
    void retranslate() override;

private slots:
    void sheetActivated(int index);
    void readAgain();

private:
    void setUpLayout();
    void fillBox();
    void apply(const QString &name);
    void showOutcome();

    QLabel *boxLabel;
    QComboBox *box;
    QPushButton *readButton;
    QLabel *outcome;
    QLabel *textLabel;
    QPlainTextEdit *text;
    /// The sheet in use, empty for none.
    QString current;
    TXError error;
};
