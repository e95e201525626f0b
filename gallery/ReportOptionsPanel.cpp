#include "ReportOptionsPanel.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>

namespace {

constexpr double kLeastTolerance = 0.1;
constexpr double kLargestTolerance = 20;
constexpr double kToleranceStep = 0.1;
constexpr QPageSize::PageSizeId kPapers[] = {QPageSize::A4, QPageSize::Letter, QPageSize::A5};

/// The choices in the order of their enumeration, texts to come.
QComboBox *makeBox(int count, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    for (int i = 0; i < count; ++i) {
        box->addItem(QString());
    }
    return box;
}

void setTexts(QComboBox *box, const QStringList &texts)
{
    for (int i = 0; i < texts.size(); ++i) {
        box->setItemText(i, texts.at(i));
    }
}

QStringList paperNames()
{
    QStringList names;
    for (const QPageSize::PageSizeId paper : kPapers) {
        names.append(QPageSize::name(paper));
    }
    return names;
}

} // namespace

ReportOptionsPanel::ReportOptionsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , formulaLabel(new QLabel(this))
    , formulaBox(makeBox(2, this))
    , toleranceLabel(new QLabel(this))
    , toleranceBox(new QDoubleSpinBox(this))
    , orderLabel(new QLabel(this))
    , orderBox(makeBox(3, this))
    , paperLabel(new QLabel(this))
    , paperBox(new QComboBox(this))
    , orientationLabel(new QLabel(this))
    , orientationBox(makeBox(2, this))
{
    const ChartReportOptions usual;
    for (const QPageSize::PageSizeId paper : kPapers) {
        paperBox->addItem(QString(), paper);
    }
    formulaBox->setCurrentIndex(int(usual.formula));
    orderBox->setCurrentIndex(int(usual.order));
    toleranceBox->setRange(kLeastTolerance, kLargestTolerance);
    toleranceBox->setSingleStep(kToleranceStep);
    toleranceBox->setValue(usual.tolerance);

    auto *form = new QFormLayout(this);
    setMargins(form);
    addRow(form, formulaLabel, formulaBox);
    addRow(form, toleranceLabel, toleranceBox);
    addRow(form, orderLabel, orderBox);
    addRow(form, paperLabel, paperBox);
    addRow(form, orientationLabel, orientationBox);
    retranslate();

    connect(toleranceBox, SIGNAL(valueChanged(double)), this, SIGNAL(optionsChanged()));
    for (QComboBox *box : {formulaBox, orderBox, paperBox, orientationBox}) {
        connect(box, SIGNAL(currentIndexChanged(int)), this, SIGNAL(optionsChanged()));
    }
}

ChartReportOptions ReportOptionsPanel::options() const
{
    ChartReportOptions chosen;
    chosen.formula = DifferenceFormula(formulaBox->currentIndex());
    chosen.tolerance = toleranceBox->value();
    chosen.order = PairOrder(orderBox->currentIndex());
    chosen.paper = QPageSize::PageSizeId(paperBox->currentData().toInt());
    chosen.orientation = QPageLayout::Orientation(orientationBox->currentIndex());
    return chosen;
}

void ReportOptionsPanel::retranslate()
{
    setTitle(tr("Report"));
    formulaLabel->setText(tr("&Formula:"));
    toleranceLabel->setText(tr("&Tolerance:"));
    orderLabel->setText(tr("Pa&irs:"));
    paperLabel->setText(tr("&Paper:"));
    orientationLabel->setText(tr("O&rientation:"));
    setTexts(formulaBox, {tr("CIE76"), tr("CIEDE2000")});
    setTexts(orderBox, {tr("By number"), tr("Largest first"), tr("Smallest first")});
    setTexts(paperBox, paperNames());
    setTexts(orientationBox, {tr("Portrait"), tr("Landscape")});
    formulaBox->setAccessibleName(tr("Formula"));
    toleranceBox->setAccessibleName(tr("Tolerance"));
    orderBox->setAccessibleName(tr("Order of the pairs"));
    paperBox->setAccessibleName(tr("Paper"));
    orientationBox->setAccessibleName(tr("Orientation"));
}

void ReportOptionsPanel::addRow(QFormLayout *form, QLabel *label, QWidget *field)
{
    label->setBuddy(field);
    form->addRow(label, field);
}
