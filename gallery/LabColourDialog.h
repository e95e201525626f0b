#pragma once

#include "LabColour.h"

#include "TXEmbeddableDialog.h"

#include <array>

class QDialogButtonBox;
class QFrame;
class QLabel;
class QSlider;
class QSpinBox;

/// Mixes a colour in CIE L*a*b* and shows it. A dialog with OK and Cancel, or a part of a page.
class LabColourDialog : public TXEmbeddableDialog
{
    Q_OBJECT

public:
    /// Starts with a mid red.
    explicit LabColourDialog(QWidget *parent = nullptr);

    /// Shows the colour, rounded to whole numbers.
    void setColour(const LabColour &colour);
    [[nodiscard]] LabColour colour() const;

signals:
    /// Emitted when OK was clicked, whatever comes of it.
    void okClicked();

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void showColour();

private:
    /// One coordinate of the colour.
    struct Axis
    {
        QLabel *label;
        QSlider *slider;
        QSpinBox *box;
    };
    static constexpr int kAxes = 3;

    Axis makeAxis(int minimum, int maximum);
    void setUpLayout();
    void retranslate();

    std::array<Axis, kAxes> axes;
    QFrame *swatch;
    QLabel *note;
    QDialogButtonBox *buttons;
};
