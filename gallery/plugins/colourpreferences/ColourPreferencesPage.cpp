#include "ColourPreferencesPage.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace {

const QString kIlluminantKey = QStringLiteral("ColourIlluminant");
const QString kObserverKey = QStringLiteral("ColourObserver");
const QString kFormulaKey = QStringLiteral("ColourDifferenceFormula");
const QString kToleranceKey = QStringLiteral("ColourTolerance");

constexpr int kD50 = 50;
constexpr int kD65 = 65;
constexpr int kSmallFieldDegrees = 2;
constexpr int kLargeFieldDegrees = 10;
constexpr double kLeastTolerance = 0.1;
constexpr double kMostTolerance = 20.0;
constexpr double kDefaultTolerance = 2.0;
constexpr double kToleranceStep = 0.1;

struct Formula
{
    const char *key;
    const char *title;
};

constexpr std::array kFormulas = {
    Formula{"CIE76", "CIE 1976"},
    Formula{"CIE94", "CIE 1994"},
    Formula{"CIEDE2000", "CIEDE2000"},
    Formula{"CMC", "CMC (2:1)"},
};
const QString kDefaultFormula = QStringLiteral("CIEDE2000");

/// The white of an illuminant as an observer sees it, Y being 100, after ASTM E308.
struct White
{
    int illuminant;
    int observer;
    double x;
    double z;
};

constexpr std::array kWhites = {
    White{kD50, kSmallFieldDegrees, 96.422, 82.521},
    White{kD50, kLargeFieldDegrees, 96.720, 81.427},
    White{kD65, kSmallFieldDegrees, 95.047, 108.883},
    White{kD65, kLargeFieldDegrees, 94.811, 107.304},
};

int readIlluminant(const QVariant &value)
{
    return value.toString() == QLatin1String("D65") ? kD65 : kD50;
}

int readObserver(const QVariant &value)
{
    return value.toInt() == kLargeFieldDegrees ? kLargeFieldDegrees : kSmallFieldDegrees;
}

double readTolerance(const QVariant &value)
{
    bool isNumber = false;
    const double tolerance = value.toDouble(&isNumber);
    // Not a number compares as false.
    const bool isUsable = isNumber && tolerance >= kLeastTolerance && tolerance <= kMostTolerance;
    return isUsable ? tolerance : kDefaultTolerance;
}

QButtonGroup *makeChoice(QWidget *parent, int firstId, int secondId)
{
    auto *group = new QButtonGroup(parent);
    group->addButton(new QRadioButton(parent), firstId);
    group->addButton(new QRadioButton(parent), secondId);
    return group;
}

QHBoxLayout *makeRow(const QButtonGroup &group)
{
    auto *row = new QHBoxLayout;
    const QList<QAbstractButton *> buttons = group.buttons();
    for (QAbstractButton *button : buttons) {
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

} // namespace

ColourPreferencesPage::ColourPreferencesPage(QWidget *parent)
    : ConfWidget(parent)
    , illuminantLabel(new QLabel(this))
    , illuminants(makeChoice(this, kD50, kD65))
    , observerLabel(new QLabel(this))
    , observers(makeChoice(this, kSmallFieldDegrees, kLargeFieldDegrees))
    , whitePointLabel(new QLabel(this))
    , whitePoint(new QLabel(this))
    , formulaLabel(new QLabel(this))
    , formulaBox(new QComboBox(this))
    , toleranceLabel(new QLabel(this))
    , toleranceBox(new QDoubleSpinBox(this))
{
    for (const Formula &formula : kFormulas) {
        formulaBox->addItem(QString::fromLatin1(formula.title), QString::fromLatin1(formula.key));
    }
    toleranceBox->setRange(kLeastTolerance, kMostTolerance);
    toleranceBox->setSingleStep(kToleranceStep);
    toleranceBox->setDecimals(1);
    illuminantLabel->setBuddy(illuminants->button(kD50));
    observerLabel->setBuddy(observers->button(kSmallFieldDegrees));
    formulaLabel->setBuddy(formulaBox);
    toleranceLabel->setBuddy(toleranceBox);
    whitePoint->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    load({});
    retranslate();
    for (const QButtonGroup *group : {illuminants, observers}) {
        connect(group, SIGNAL(idToggled(int, bool)), this, SLOT(choiceToggled(int, bool)));
    }
    connect(formulaBox, SIGNAL(currentIndexChanged(int)), this, SLOT(valueEdited()));
    connect(toleranceBox, SIGNAL(valueChanged(double)), this, SLOT(valueEdited()));
}

void ColourPreferencesPage::load(const QHash<QString, QVariant> &settings)
{
    isLoading = true;
    illuminants->button(readIlluminant(settings.value(kIlluminantKey)))->setChecked(true);
    observers->button(readObserver(settings.value(kObserverKey)))->setChecked(true);
    const int formula = formulaBox->findData(settings.value(kFormulaKey).toString());
    formulaBox->setCurrentIndex(formula >= 0 ? formula : formulaBox->findData(kDefaultFormula));
    toleranceBox->setValue(readTolerance(settings.value(kToleranceKey)));
    isLoading = false;
    showWhitePoint();
}

QHash<QString, QVariant> ColourPreferencesPage::save()
{
    return {
        {kIlluminantKey, QStringLiteral("D%1").arg(illuminants->checkedId())},
        {kObserverKey, observers->checkedId()},
        {kFormulaKey, formulaBox->currentData()},
        {kToleranceKey, toleranceBox->value()},
    };
}

void ColourPreferencesPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    ConfWidget::changeEvent(event);
}

void ColourPreferencesPage::choiceToggled(int /*id*/, bool isChecked)
{
    // A choice toggles two buttons; it is made with the second one.
    if (isChecked && !isLoading) {
        showWhitePoint();
        valueEdited();
    }
}

void ColourPreferencesPage::valueEdited()
{
    if (!isLoading) {
        emit confWidgetChanged();
    }
}

void ColourPreferencesPage::setUpLayout()
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(illuminantLabel, makeRow(*illuminants));
    form->addRow(observerLabel, makeRow(*observers));
    form->addRow(whitePointLabel, whitePoint);
    form->addRow(formulaLabel, formulaBox);
    form->addRow(toleranceLabel, toleranceBox);
}

void ColourPreferencesPage::showWhitePoint()
{
    for (const White &white : kWhites) {
        if (white.illuminant == illuminants->checkedId()
            && white.observer == observers->checkedId()) {
            whitePoint->setText(QStringLiteral("X %1   Y %2   Z %3")
                                    .arg(locale().toString(white.x, 'f', 2),
                                         locale().toString(100.0, 'f', 2),
                                         locale().toString(white.z, 'f', 2)));
        }
    }
}

void ColourPreferencesPage::retranslate()
{
    illuminantLabel->setText(tr("&Illuminant:"));
    illuminants->button(kD50)->setText(tr("D&50, prints"));
    illuminants->button(kD65)->setText(tr("D&65, daylight"));
    observerLabel->setText(tr("&Observer:"));
    observers->button(kSmallFieldDegrees)->setText(tr("&2° field"));
    observers->button(kLargeFieldDegrees)->setText(tr("&10° field"));
    whitePointLabel->setText(tr("White point:"));
    formulaLabel->setText(tr("Difference &formula:"));
    toleranceLabel->setText(tr("&Tolerance:"));
    toleranceBox->setPrefix(tr("ΔE ", "before a number"));
    showWhitePoint();
}
