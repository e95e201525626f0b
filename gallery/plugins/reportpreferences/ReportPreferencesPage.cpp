#include "ReportPreferencesPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace {

const QString kCompanyKey = QStringLiteral("ReportCompany");
const QString kOperatorKey = QStringLiteral("ReportOperator");
const QString kPaperKey = QStringLiteral("ReportPaperSize");
const QString kDateKey = QStringLiteral("ReportDateOnEachPage");
constexpr int kLongestText = 80;

bool readDate(const QVariant &value)
{
    // A settings file gives texts back; what is neither yes nor no reads as the default.
    const QString text = value.toString();
    return text != QLatin1String("false") && text != QLatin1String("0");
}

} // namespace

ReportPreferencesPage::ReportPreferencesPage(QWidget *parent)
    : ConfWidget(parent)
    , companyLabel(new QLabel(this))
    , companyEdit(new QLineEdit(this))
    , operatorLabel(new QLabel(this))
    , operatorEdit(new QLineEdit(this))
    , paperLabel(new QLabel(this))
    , paperBox(new QComboBox(this))
    , dateCheck(new QCheckBox(this))
{
    companyLabel->setBuddy(companyEdit);
    operatorLabel->setBuddy(operatorEdit);
    paperLabel->setBuddy(paperBox);
    companyEdit->setMaxLength(kLongestText);
    operatorEdit->setMaxLength(kLongestText);
    paperBox->addItems({QStringLiteral("A4"), QStringLiteral("A3"), QStringLiteral("Letter")});
    setUpLayout();
    load({});
    retranslate();
    connect(companyEdit, SIGNAL(textChanged(QString)), this, SLOT(valueEdited()));
    connect(operatorEdit, SIGNAL(textChanged(QString)), this, SLOT(valueEdited()));
    connect(paperBox, SIGNAL(currentIndexChanged(int)), this, SLOT(valueEdited()));
    connect(dateCheck, SIGNAL(toggled(bool)), this, SLOT(valueEdited()));
}

void ReportPreferencesPage::load(const QHash<QString, QVariant> &settings)
{
    isLoading = true;
    companyEdit->setText(settings.value(kCompanyKey).toString());
    operatorEdit->setText(settings.value(kOperatorKey).toString());
    paperBox->setCurrentIndex(
        std::max(0, paperBox->findText(settings.value(kPaperKey).toString())));
    dateCheck->setChecked(readDate(settings.value(kDateKey)));
    isLoading = false;
}

QHash<QString, QVariant> ReportPreferencesPage::save()
{
    return {
        {kCompanyKey, companyEdit->text()},
        {kOperatorKey, operatorEdit->text()},
        {kPaperKey, paperBox->currentText()},
        {kDateKey, dateCheck->isChecked()},
    };
}

void ReportPreferencesPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    ConfWidget::changeEvent(event);
}

void ReportPreferencesPage::valueEdited()
{
    if (!isLoading) {
        emit confWidgetChanged();
    }
}

void ReportPreferencesPage::setUpLayout()
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(companyLabel, companyEdit);
    form->addRow(operatorLabel, operatorEdit);
    form->addRow(paperLabel, paperBox);
    form->addRow(QString(), dateCheck);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void ReportPreferencesPage::retranslate()
{
    companyLabel->setText(tr("&Company:"));
    companyEdit->setPlaceholderText(tr("Stands at the head of the report"));
    companyEdit->setToolTip(companyEdit->placeholderText());
    operatorLabel->setText(tr("Op&erator:"));
    operatorEdit->setPlaceholderText(tr("Who has measured"));
    paperLabel->setText(tr("Paper si&ze:"));
    dateCheck->setText(tr("&Date on each page"));
}
