#include "ImageViewBar.h"

#include "WheelGuard.h"

#include "TXImageViewer.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr double kWholePercent = 100;
constexpr double kSmallestPercent = 0.1;
constexpr double kLargestPercent = 1600;
constexpr double kPercentStep = 10;

} // namespace

ImageViewBar::ImageViewBar(QWidget *parent)
    : QWidget(parent)
    , fitButton(new QPushButton(this))
    , shareButton(new QPushButton(this))
    , naturalButton(new QPushButton(this))
    , scaleLabel(new QLabel(this))
    , scaleBox(new QDoubleSpinBox(this))
    , overlayBox(new QCheckBox(this))
    , markerBox(new QCheckBox(this))
{
    scaleBox->setDecimals(1);
    scaleBox->setRange(kSmallestPercent, kLargestPercent);
    scaleBox->setSingleStep(kPercentStep);
    scaleBox->setValue(kWholePercent);
    scaleBox->setKeyboardTracking(false);
    scaleLabel->setBuddy(scaleBox);
    WheelGuard::protect(scaleBox);
    overlayBox->setChecked(true);
    markerBox->setChecked(true);
    setUpLayout();
    retranslate();
    connect(overlayBox, SIGNAL(toggled(bool)), this, SIGNAL(overlayWanted(bool)));
    connect(markerBox, SIGNAL(toggled(bool)), this, SIGNAL(markerWanted(bool)));
}

void ImageViewBar::setViewer(TXImageViewer *newViewer)
{
    viewer = newViewer;
    connect(fitButton, SIGNAL(clicked()), this, SLOT(fit()));
    connect(shareButton, SIGNAL(clicked()), this, SLOT(share()));
    connect(naturalButton, SIGNAL(clicked()), this, SLOT(showNaturalSize()));
    connect(scaleBox, SIGNAL(valueChanged(double)), this, SLOT(setPercent(double)));
    connect(viewer, SIGNAL(scaleChanged(float)), this, SLOT(showScale(float)));
}

void ImageViewBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void ImageViewBar::fit()
{
    viewer->scale(TXImageViewer::ScaleFit);
}

void ImageViewBar::share()
{
    viewer->scale(TXImageViewer::ScaleShare);
}

void ImageViewBar::showNaturalSize()
{
    viewer->scale(TXImageViewer::ScaleNatural);
}

void ImageViewBar::setPercent(double percent)
{
    viewer->scale(percent / kWholePercent, TXImageViewer::Absolute);
}

/// What the box shows is rounded: setting it must not come back as the scale.
void ImageViewBar::showScale(float scale)
{
    const QSignalBlocker blocker(scaleBox);
    scaleBox->setValue(double(scale) * kWholePercent);
}

void ImageViewBar::retranslate()
{
    fitButton->setText(tr("&Fit"));
    fitButton->setToolTip(tr("The whole picture in each zone, also when the window changes"));
    shareButton->setText(tr("S&hare"));
    shareButton->setToolTip(
        tr("Each zone's share of the width: a half with two pictures, also when the window "
           "changes"));
    naturalButton->setText(tr("1&00 %"));
    naturalButton->setToolTip(tr("A pixel of the picture as one of the screen"));
    scaleLabel->setText(tr("Scal&e:"));
    scaleBox->setSuffix(tr(" %"));
    overlayBox->setText(tr("O&verlay"));
    overlayBox->setToolTip(tr("Names of the pictures, outlines and numbers of the patches"));
    markerBox->setText(tr("&Marker"));
    markerBox->setToolTip(tr("A crosshair at the same place in all pictures"));
}

void ImageViewBar::setUpLayout()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    const QList<QWidget *> controls = {fitButton, shareButton, naturalButton, scaleLabel, scaleBox};
    for (QWidget *control : controls) {
        row->addWidget(control);
    }
    row->addStretch();
    row->addWidget(overlayBox);
    row->addWidget(markerBox);
}
