#pragma once

#include "ColourPreset.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class TXDoubleSpinBoxDisabled;
class TXSpinBoxDisabled;

/// The settings of one colour preset, to be read or to be changed. The name and the id are not
/// shown, but kept.
class ColourPresetForm final : public QWidget
{
    Q_OBJECT

public:
    explicit ColourPresetForm(QWidget *parent = nullptr);

    /// Shows the settings of a preset, or with null nothing, in the same room.
    void showPreset(const ColourPreset *preset);

    /// The preset that was shown last, with what the user has changed. A number that the user has
    /// not touched is exactly the one that was shown, however many digits it has.
    [[nodiscard]] ColourPreset preset() const;

    /// Whether the settings can be changed. False at first.
    void setEditable(bool isEditable);

    /// Gives the keyboard to the first field.
    void focusFirstField();

    /// Sets all texts in the language of the moment.
    void retranslate();

private slots:
    void showPaper();

private:
    /// A part of the colour of the paper.
    struct Axis
    {
        QLabel *label;
        TXDoubleSpinBoxDisabled *box;
        /// What the box has made of the number that was shown.
        double shown = 0;
    };

    Axis makeAxis(double minimum, double maximum);
    void setUpLayout();
    [[nodiscard]] static double valueOf(const Axis &axis, double original);

    ColourPreset base;
    QLabel *intentLabel;
    QComboBox *intentBox;
    QCheckBox *compensationBox;
    QLabel *inkLabel;
    TXSpinBoxDisabled *inkBox;
    QLabel *paperLabel;
    QFrame *swatch;
    std::array<Axis, 3> axes;
};
