#pragma once

#include "TXImageViewer.h"

#include <QWidget>

class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

/// The strip above a TXImageViewer: its scale, and what is painted over the pictures.
///
/// The viewer fits its pictures anew when its size or they change, and does not take the wheel and
/// the zooming keys for an end of that. With this strip they are: the scale that a user has chosen
/// stays until another is.
class ImageViewBar final : public QWidget
{
    Q_OBJECT

public:
    /// A strip that steers nothing yet.
    explicit ImageViewBar(QWidget *parent = nullptr);

    /// Steers the viewer, which has to outlive the strip. To be called once.
    void setViewer(TXImageViewer *newViewer);

signals:
    void overlayWanted(bool isWanted);
    void markerWanted(bool isWanted);
    /// The user has set a scale here; the viewer has it already.
    void scaleChosen();

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void fit();
    void share();
    void showNaturalSize();
    void setPercent(double percent);
    void followScale();

private:
    void choose(TXImageViewer::Scaling scaling);
    void keepScale();
    void showScale();
    void retranslate();
    void setUpLayout();

    TXImageViewer *viewer = nullptr;
    /// Whether the zone's share holds.
    bool isShared = false;
    bool isKeepingScale = false;
    QPushButton *fitButton;
    QPushButton *shareButton;
    QPushButton *naturalButton;
    QLabel *scaleLabel;
    QDoubleSpinBox *scaleBox;
    QCheckBox *overlayBox;
    QCheckBox *markerBox;
};
