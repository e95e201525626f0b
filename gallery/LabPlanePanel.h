#pragma once

#include "GalleryPanel.h"

class LabPlane;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLayoutItem;
class QPushButton;
class QSingleItemSquareLayout;
class QSpinBox;
class RotationLabel;

/// A plot that QSingleItemSquareLayout keeps square, with RotationLabel at its axes.
class LabPlanePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit LabPlanePanel(QWidget *parent = nullptr);
    ~LabPlanePanel() override;

protected:
    void retranslate() override;

private slots:
    void showLightness();
    void turnLabel();
    void changeMargin();
    void takeOrPutBack();

private:
    void setUpControls();
    void setUpLayout();
    [[nodiscard]] QHBoxLayout *makeControlRow();
    static void giveRoom(RotationLabel *label);
    void layOutAnew();

    QWidget *area;
    QSingleItemSquareLayout *square;
    LabPlane *plane;
    /// The plane while it is out of the layout, else null.
    QLayoutItem *takenItem = nullptr;
    RotationLabel *upLabel;
    RotationLabel *acrossLabel;
    QLabel *lightnessLabel;
    QSpinBox *lightnessBox;
    QLabel *turnLabelText;
    QComboBox *turnBox;
    QLabel *marginLabel;
    QSpinBox *marginBox;
    QPushButton *takeButton;
};
