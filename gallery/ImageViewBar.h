#pragma once

#include <QWidget>

class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class TXImageViewer;

/// The strip above a TXImageViewer: its scale, and what is painted over the pictures.
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

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void fit();
    void share();
    void showNaturalSize();
    void setPercent(double percent);
    void showScale(float scale);

private:
    void retranslate();
    void setUpLayout();

    TXImageViewer *viewer = nullptr;
    QPushButton *fitButton;
    QPushButton *shareButton;
    QPushButton *naturalButton;
    QLabel *scaleLabel;
    QDoubleSpinBox *scaleBox;
    QCheckBox *overlayBox;
    QCheckBox *markerBox;
};
