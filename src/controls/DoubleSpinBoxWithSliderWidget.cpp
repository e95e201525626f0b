#include "DoubleSpinBoxWithSliderWidget.h"

#include "WholeNumber.h"
#include "ui_DoubleSpinBoxWithSliderWidget.h"

#include <QEvent>

#include <algorithm>

namespace {

/// A power of ten with more digits has no place in the integer that computes it; no slider has
/// that many steps anyway.
constexpr int kMaximumScaleDigits = 18;

/// Ten to the power of the decimals.
double scaleFor(int decimals)
{
    qint64 scale = 1;
    for (int digit = std::min(decimals, kMaximumScaleDigits); digit > 0; --digit) {
        scale *= 10;
    }
    return double(scale);
}

/// More steps than an int holds become as many as it holds; what is no number becomes 0.
int toSteps(double value, double scale)
{
    return WholeNumber::truncated(value * scale);
}

/// A label may end with a colon, that of Chinese and Japanese too; a name does not.
QString withoutColon(const QString &label)
{
    constexpr QChar kFullwidthColon(0xFF1A);
    const QString name = label.trimmed();
    const bool hasColon = name.endsWith(QLatin1Char(':')) || name.endsWith(kFullwidthColon);
    return hasColon ? name.chopped(1).trimmed() : name;
}

} // namespace

DoubleSpinBoxWithSliderWidget::DoubleSpinBoxWithSliderWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::DoubleSpinBoxWithSliderWidget>())
{
    ui->setupUi(this);
    ui->dataLeftDoubleSpinBox->hide();
    ui->minValueNameLabel->hide();
    ui->widgetSpacer->hide();
    ui->maxValueNameLabel->hide();
    updateSliderProperties();
    for (QDoubleSpinBox *box : {ui->dataDoubleSpinBox, ui->dataLeftDoubleSpinBox}) {
        connect(box, SIGNAL(valueChanged(double)), this, SLOT(currentSpinBoxValueChanged(double)));
    }
    connect(ui->dataHorizontalSlider, SIGNAL(valueChanged(int)), this,
            SLOT(currentSliderValueChanged(int)));
    ui->dataDoubleSpinBox->installEventFilter(this);
    ui->dataHorizontalSlider->installEventFilter(this);
    ui->dataLeftDoubleSpinBox->installEventFilter(this);
}

DoubleSpinBoxWithSliderWidget::~DoubleSpinBoxWithSliderWidget() = default;

int DoubleSpinBoxWithSliderWidget::decimals() const
{
    return usedBox()->decimals();
}

void DoubleSpinBoxWithSliderWidget::setDecimals(int decimals)
{
    ui->dataDoubleSpinBox->setDecimals(decimals);
    ui->dataLeftDoubleSpinBox->setDecimals(decimals);
    updateSliderProperties();
}

double DoubleSpinBoxWithSliderWidget::minimumValue() const
{
    return usedBox()->minimum();
}

void DoubleSpinBoxWithSliderWidget::setMinimumValue(double minimum)
{
    ui->dataDoubleSpinBox->setMinimum(minimum);
    ui->dataLeftDoubleSpinBox->setMinimum(minimum);
    updateSliderProperties();
}

double DoubleSpinBoxWithSliderWidget::maximumValue() const
{
    return usedBox()->maximum();
}

void DoubleSpinBoxWithSliderWidget::setMaximumValue(double maximum)
{
    ui->dataDoubleSpinBox->setMaximum(maximum);
    ui->dataLeftDoubleSpinBox->setMaximum(maximum);
    updateSliderProperties();
}

double DoubleSpinBoxWithSliderWidget::value() const
{
    return usedBox()->value();
}

void DoubleSpinBoxWithSliderWidget::setValue(double value)
{
    ui->dataDoubleSpinBox->setValue(value);
    ui->dataLeftDoubleSpinBox->setValue(value);
    updateSliderProperties();
}

double DoubleSpinBoxWithSliderWidget::singleStep() const
{
    return usedBox()->singleStep();
}

void DoubleSpinBoxWithSliderWidget::setSingleStep(double step)
{
    ui->dataDoubleSpinBox->setSingleStep(step);
    ui->dataLeftDoubleSpinBox->setSingleStep(step);
}

QString DoubleSpinBoxWithSliderWidget::spinBoxSuffix() const
{
    return usedBox()->suffix();
}

void DoubleSpinBoxWithSliderWidget::setSpinBoxSuffix(const QString &suffix)
{
    ui->dataDoubleSpinBox->setSuffix(suffix);
    ui->dataLeftDoubleSpinBox->setSuffix(suffix);
}

QString DoubleSpinBoxWithSliderWidget::specialValueText() const
{
    return usedBox()->specialValueText();
}

void DoubleSpinBoxWithSliderWidget::setSpecialValueText(const QString &text)
{
    ui->dataDoubleSpinBox->setSpecialValueText(text);
    ui->dataLeftDoubleSpinBox->setSpecialValueText(text);
}

int DoubleSpinBoxWithSliderWidget::spinBoxWidth()
{
    return usedBox()->width();
}

int DoubleSpinBoxWithSliderWidget::spinBoxMinimumWidth() const
{
    return usedBox()->minimumWidth();
}

void DoubleSpinBoxWithSliderWidget::setSpinBoxMinimumWidth(int width)
{
    ui->dataDoubleSpinBox->setMinimumWidth(width);
    ui->dataLeftDoubleSpinBox->setMinimumWidth(width);
}

int DoubleSpinBoxWithSliderWidget::spinBoxMaximumWidth() const
{
    return usedBox()->maximumWidth();
}

void DoubleSpinBoxWithSliderWidget::setSpinBoxMaximumWidth(int width)
{
    ui->dataDoubleSpinBox->setMaximumWidth(width);
    ui->dataLeftDoubleSpinBox->setMaximumWidth(width);
}

QAbstractSpinBox::ButtonSymbols DoubleSpinBoxWithSliderWidget::spinBoxButtonSymbol() const
{
    return usedBox()->buttonSymbols();
}

void DoubleSpinBoxWithSliderWidget::setSpinBoxButtonSymbol(QAbstractSpinBox::ButtonSymbols symbols)
{
    ui->dataDoubleSpinBox->setButtonSymbols(symbols);
    ui->dataLeftDoubleSpinBox->setButtonSymbols(symbols);
}

QString DoubleSpinBoxWithSliderWidget::dataName()
{
    return ui->dataNameLabel->text();
}

void DoubleSpinBoxWithSliderWidget::setDataName(const QString &name)
{
    ui->dataNameLabel->setText(name);
    const QString spoken = withoutColon(name);
    ui->dataDoubleSpinBox->setAccessibleName(spoken);
    ui->dataHorizontalSlider->setAccessibleName(spoken);
    ui->dataLeftDoubleSpinBox->setAccessibleName(spoken);
}

int DoubleSpinBoxWithSliderWidget::labelMinimumWidth() const
{
    return ui->dataNameLabel->minimumWidth();
}

void DoubleSpinBoxWithSliderWidget::setLabelMinimumWidth(int width)
{
    ui->dataNameLabel->setMinimumWidth(width);
}

bool DoubleSpinBoxWithSliderWidget::isLabelVisible() const
{
    return !ui->dataNameLabel->isHidden();
}

void DoubleSpinBoxWithSliderWidget::setLabelVisible(bool visible)
{
    ui->dataNameLabel->setVisible(visible);
}

QString DoubleSpinBoxWithSliderWidget::minLabelName() const
{
    return ui->minValueNameLabel->text();
}

void DoubleSpinBoxWithSliderWidget::setMinLabelName(const QString &name)
{
    setEndLabelName(ui->minValueNameLabel, ui->maxValueNameLabel, name);
}

QString DoubleSpinBoxWithSliderWidget::maxLabelName() const
{
    return ui->maxValueNameLabel->text();
}

void DoubleSpinBoxWithSliderWidget::setMaxLabelName(const QString &name)
{
    setEndLabelName(ui->maxValueNameLabel, ui->minValueNameLabel, name);
}

bool DoubleSpinBoxWithSliderWidget::isSpinBoxLeftOfSlider() const
{
    return !ui->dataLeftDoubleSpinBox->isHidden();
}

void DoubleSpinBoxWithSliderWidget::placeSpinBox(bool isLeftOfSlider)
{
    if (isLeftOfSlider) {
        hideRightSpinBox();
    } else {
        hideLeftSpinBox();
    }
}

void DoubleSpinBoxWithSliderWidget::hideLeftSpinBox()
{
    ui->dataDoubleSpinBox->show();
    ui->dataLeftDoubleSpinBox->hide();
}

void DoubleSpinBoxWithSliderWidget::hideRightSpinBox()
{
    ui->dataDoubleSpinBox->hide();
    ui->dataLeftDoubleSpinBox->show();
}

bool DoubleSpinBoxWithSliderWidget::eventFilter(QObject *object, QEvent *event)
{
    return event->type() == QEvent::Wheel || QWidget::eventFilter(object, event);
}

void DoubleSpinBoxWithSliderWidget::currentSpinBoxValueChanged(double value)
{
    updateSliderProperties();
    emit valueChanged(value);
}

void DoubleSpinBoxWithSliderWidget::currentSliderValueChanged(int steps)
{
    const double value = steps / scaleFor(decimals());
    ui->dataDoubleSpinBox->setValue(value);
    ui->dataLeftDoubleSpinBox->setValue(value);
    emit valueChanged(value);
}

QDoubleSpinBox *DoubleSpinBoxWithSliderWidget::usedBox() const
{
    return ui->dataDoubleSpinBox->isVisible() ? ui->dataDoubleSpinBox : ui->dataLeftDoubleSpinBox;
}

void DoubleSpinBoxWithSliderWidget::setEndLabelName(QLabel *label, const QLabel *otherLabel,
                                                    const QString &name)
{
    label->setText(name);
    if (!name.isEmpty()) {
        label->show();
        ui->widgetSpacer->show();
    } else if (otherLabel->text().isEmpty()) {
        ui->minValueNameLabel->hide();
        ui->maxValueNameLabel->hide();
        ui->widgetSpacer->hide();
    }
}

void DoubleSpinBoxWithSliderWidget::updateSliderProperties()
{
    const double scale = scaleFor(decimals());
    ui->dataHorizontalSlider->setMinimum(toSteps(minimumValue(), scale));
    ui->dataHorizontalSlider->setMaximum(toSteps(maximumValue(), scale));
    ui->dataHorizontalSlider->setValue(toSteps(value(), scale));
}
