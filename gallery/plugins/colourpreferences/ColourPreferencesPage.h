#pragma once

#include "ConfWidget.h"

class QButtonGroup;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QRadioButton;

/// Settings of colour measurement.
///
/// | Key | Value | Default |
/// |---|---|---|
/// | "ColourIlluminant" | "D50" or "D65" | "D50" |
/// | "ColourObserver" | angle in degrees, 2 or 10 | 2 |
/// | "ColourDifferenceFormula" | "CIE76", "CIE94", "CIEDE2000" or "CMC" | "CIEDE2000" |
/// | "ColourTolerance" | greatest difference that passes, 0.1 to 20 | 2.0 |
class ColourPreferencesPage final : public ConfWidget
{
    Q_OBJECT

public:
    explicit ColourPreferencesPage(QWidget *parent = nullptr);

    void load(const QHash<QString, QVariant> &settings) override;
    QHash<QString, QVariant> save() override;

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void choiceToggled(int id, bool isChecked);
    void valueEdited();

private:
    void setUpLayout();
    void showWhitePoint();
    void retranslate();

    QLabel *illuminantLabel;
    QButtonGroup *illuminants;
    QLabel *observerLabel;
    QButtonGroup *observers;
    QLabel *whitePointLabel;
    QLabel *whitePoint;
    QLabel *formulaLabel;
    QComboBox *formulaBox;
    QLabel *toleranceLabel;
    QDoubleSpinBox *toleranceBox;
    bool isLoading = false;
};
