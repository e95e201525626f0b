#include "ValueSliderPanel.h"

#include "EmissionList.h"

#include "DoubleSpinBoxWithSliderWidget.h"
#include "TXWidgetUtilities.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace {

constexpr int kSpinBoxWidth = 96;
constexpr double kExposureStops = 4;
constexpr double kExposureStep = 0.05;
constexpr double kPictureExposure = 0.35;
constexpr double kSmallestGamma = 1;
constexpr double kLargestGamma = 3;
constexpr double kGammaStep = 0.025;
constexpr double kUsualGamma = 2.2;
constexpr double kLargestTolerance = 10;
constexpr double kToleranceStep = 0.1;
constexpr double kUsualTolerance = 2.5;
constexpr double kLargestSmoothing = 100;
constexpr double kLargestInkPercent = 400;
constexpr double kUsualInkPercent = 320;
constexpr double kPictureInkPercent = 280;

struct Range
{
    int decimals;
    double minimum;
    double maximum;
    double step;
};

void setRange(DoubleSpinBoxWithSliderWidget *slider, const Range &range)
{
    slider->setDecimals(range.decimals);
    slider->setMinimumValue(range.minimum);
    slider->setMaximumValue(range.maximum);
    slider->setSingleStep(range.step);
}

} // namespace

ValueSliderPanel::ValueSliderPanel(QWidget *parent)
    : GalleryPanel(parent)
    , exposure(new DoubleSpinBoxWithSliderWidget(this))
    , gamma(new DoubleSpinBoxWithSliderWidget(this))
    , tolerance(new DoubleSpinBoxWithSliderWidget(this))
    , smoothing(new DoubleSpinBoxWithSliderWidget(this))
    , ink(new DoubleSpinBoxWithSliderWidget(this))
    , disabledInk(new DoubleSpinBoxWithSliderWidget(this))
    , sliders({exposure, gamma, tolerance, smoothing, ink, disabledInk})
    , emissions(new EmissionList(this))
    , note(new QLabel(this))
{
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    setUpValues();
    setUpLayout();
    retranslate();
    for (DoubleSpinBoxWithSliderWidget *slider : qAsConst(sliders)) {
        connect(slider, SIGNAL(valueChanged(double)), this, SLOT(noteEmission(double)));
    }
}

void ValueSliderPanel::fillForPicture()
{
    exposure->setValue(kPictureExposure);
    ink->setValue(kPictureInkPercent);
}

void ValueSliderPanel::retranslate()
{
    setTitle(tr("Spin box with slider"));
    exposure->setDataName(tr("Exposure"));
    exposure->setSpinBoxSuffix(tr(" EV"));
    exposure->setMinLabelName(tr("darker"));
    exposure->setMaxLabelName(tr("lighter"));
    gamma->setDataName(tr("Gamma"));
    tolerance->setDataName(tr("Delta E tolerance"));
    tolerance->setMaxLabelName(tr("seen by anyone"));
    smoothing->setDataName(tr("Smoothing"));
    smoothing->setSpecialValueText(tr("off"));
    ink->setDataName(tr("Total ink coverage"));
    ink->setMinLabelName(tr("bare paper"));
    ink->setMaxLabelName(tr("four full inks"));
    disabledInk->setDataName(tr("Total ink coverage, disabled"));
    emissions->retranslate(tr("&valueChanged: %1"), tr("Emissions of valueChanged"));
    note->setText(tr("A value typed into the box goes to the slider and comes back, so one edit "
                     "tells of itself more than once. The wheel changes nothing: it scrolls the "
                     "page."));
    alignLabels();
}

void ValueSliderPanel::noteEmission(double value)
{
    auto *slider = qobject_cast<DoubleSpinBoxWithSliderWidget *>(sender());
    if (!slider) {
        return;
    }
    const QString number = locale().toString(value, 'f', slider->decimals());
    emissions->append(QStringLiteral("%1  %2").arg(slider->dataName(), number));
}

void ValueSliderPanel::setUpValues()
{
    setRange(exposure, {2, -kExposureStops, kExposureStops, kExposureStep});
    exposure->setValue(0);
    setRange(gamma, {3, kSmallestGamma, kLargestGamma, kGammaStep});
    gamma->setValue(kUsualGamma);
    gamma->hideRightSpinBox();
    setRange(tolerance, {2, 0, kLargestTolerance, kToleranceStep});
    tolerance->setValue(kUsualTolerance);
    setRange(smoothing, {0, 0, kLargestSmoothing, 1});
    for (DoubleSpinBoxWithSliderWidget *coverage : {ink, disabledInk}) {
        setRange(coverage, {0, 0, kLargestInkPercent, 1});
        coverage->setValue(kUsualInkPercent);
        coverage->setSpinBoxSuffix(QStringLiteral(" %"));
    }
    disabledInk->setEnabled(false);
    for (DoubleSpinBoxWithSliderWidget *slider : qAsConst(sliders)) {
        slider->setSpinBoxMinimumWidth(kSpinBoxWidth);
        slider->setSpinBoxMaximumWidth(kSpinBoxWidth);
    }
}

void ValueSliderPanel::setUpLayout()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(kGap);
    for (DoubleSpinBoxWithSliderWidget *slider : qAsConst(sliders)) {
        column->addWidget(slider);
    }
    column->addStretch();

    auto *columns = new QHBoxLayout;
    columns->setSpacing(2 * kGap);
    columns->addLayout(column, 3);
    columns->addWidget(emissions, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(columns);
    rows->addWidget(note);
}

void ValueSliderPanel::alignLabels()
{
    QList<QLabel *> labels;
    for (DoubleSpinBoxWithSliderWidget *slider : qAsConst(sliders)) {
        labels.append(slider->findChild<QLabel *>(QStringLiteral("dataNameLabel")));
    }
    const int width = TXWidgetUtilities::maxSizeNeededForLabelList(labels).width();
    for (DoubleSpinBoxWithSliderWidget *slider : qAsConst(sliders)) {
        slider->setLabelMinimumWidth(width);
    }
}
