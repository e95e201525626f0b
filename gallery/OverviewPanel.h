#pragma once

#include "GalleryPanel.h"

class DifferenceLegend;
class QImage;
class TXAspectRatioPixmapLabel;

/// The first picture as a whole, in its proportions, and what the colours of the difference mean.
class OverviewPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit OverviewPanel(QWidget *parent = nullptr);

    /// Shows a picture, with the legend when one of the pictures beside it is a difference.
    void setPicture(const QImage &picture, bool hasDifference);

protected:
    void retranslate() override;

private:
    void setUpLayout();

    TXAspectRatioPixmapLabel *pictureLabel;
    DifferenceLegend *legend;
};
