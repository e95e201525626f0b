#pragma once

#include "GalleryPanel.h"

#include <QList>

class PasswordFieldCell;
class QLabel;
class QLineEdit;
class QPushButton;

/// TXPasswordLineEdit and a plain QLineEdit in password mode, side by side, enabled and disabled:
/// a value that the program sets stays out of the first one's text.
class PasswordFieldPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PasswordFieldPanel(QWidget *parent = nullptr);

public slots:
    /// Sets the value of all four fields, as a program does with what it has stored. An empty
    /// value empties the plain fields only: the others keep theirs.
    void setByProgram();

protected:
    void retranslate() override;

private:
    template<class Field>
    PasswordFieldCell *makeCell(bool isEnabled);
    void setUpLayout();

    QLabel *valueLabel;
    QLineEdit *valueEdit;
    QPushButton *setButton;
    QList<QLabel *> headings;
    QLabel *protectedLabel;
    QLabel *plainLabel;
    QList<PasswordFieldCell *> protectedCells;
    QList<PasswordFieldCell *> plainCells;
    QLabel *note;
};
