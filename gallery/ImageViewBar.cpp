#include "ImageViewBar.h"

#include "WheelGuard.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace {

constexpr double kWholePercent = 100;
/// Beyond what any picture is fitted with, from the largest to one of a single pixel. What is typed
/// is held to the viewer's limits.
constexpr double kSmallestPercent = 0.001;
constexpr double kLargestPercent = 1'000'000;
constexpr double kPercentStep = 10;
constexpr int kDigits = 1;
/// Below one percent.
constexpr int kDigitsOfSmall = 3;

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
    scaleBox->setDecimals(kDigits);
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
    connect(viewer, SIGNAL(scaleChanged(float)), this, SLOT(followScale()));
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
    choose(TXImageViewer::ScaleFit);
}

void ImageViewBar::share()
{
    choose(TXImageViewer::ScaleShare);
}

void ImageViewBar::showNaturalSize()
{
    choose(TXImageViewer::ScaleNatural);
}

void ImageViewBar::setPercent(double percent)
{
    isShared = false;
    viewer->scale(percent / kWholePercent, TXImageViewer::Absolute);
    // What the viewer does not go along with.
    showScale();
    emit scaleChosen();
}

void ImageViewBar::followScale()
{
    if (!isKeepingScale) {
        keepScale();
        showScale();
    }
}

void ImageViewBar::choose(TXImageViewer::Scaling scaling)
{
    isShared = scaling == TXImageViewer::ScaleShare;
    viewer->scale(scaling);
    emit scaleChosen();
}

/// A scale that is none of those that the viewer sets by itself is the user's: set by a function it
/// holds. Back at the fitting one, the pictures count as fitted again.
void ImageViewBar::keepScale()
{
    const QScopedValueRollback<bool> keeping(isKeepingScale, true);
    const double scale = viewer->scale();
    isShared = isShared && scale == viewer->scaleHint(TXImageViewer::ScaleShare);
    if (isShared) {
        return;
    }
    if (scale == viewer->scaleHint(TXImageViewer::ScaleFit)) {
        viewer->scale(TXImageViewer::ScaleFit);
    } else {
        viewer->scale(scale, TXImageViewer::Absolute);
    }
}

/// What the box shows is rounded: setting it must not come back as the scale.
void ImageViewBar::showScale()
{
    const QSignalBlocker blocker(scaleBox);
    const double percent = viewer->scale() * kWholePercent;
    scaleBox->setDecimals(percent < 1 ? kDigitsOfSmall : kDigits);
    scaleBox->setValue(percent);
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
