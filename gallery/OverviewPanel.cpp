#include "OverviewPanel.h"

#include "DifferenceLegend.h"

#include "TXAspectRatioPixmapLabel.h"

#include <QImage>
#include <QVBoxLayout>

namespace {

constexpr int kPicturePixels = 120;
constexpr int kPanelPixels = 250;

} // namespace

OverviewPanel::OverviewPanel(QWidget *parent)
    : GalleryPanel(parent)
    , pictureLabel(new TXAspectRatioPixmapLabel(this))
    , legend(new DifferenceLegend(this))
{
    pictureLabel->setScaledContents(true);
    // Its size follows the panel, not the picture.
    pictureLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    pictureLabel->setFixedHeight(kPicturePixels);
    setFixedWidth(kPanelPixels);
    setUpLayout();
    retranslate();
}

void OverviewPanel::setPicture(const QImage &picture, bool hasDifference)
{
    pictureLabel->setPixmap(QPixmap::fromImage(picture));
    legend->setVisible(hasDifference);
}

void OverviewPanel::retranslate()
{
    setTitle(tr("Overview"));
    pictureLabel->setAccessibleName(tr("First picture as a whole"));
}

void OverviewPanel::setUpLayout()
{
    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(pictureLabel);
    rows->addWidget(legend);
    rows->addStretch();
}
