#include "StyleSamplePanel.h"

#include "WheelGuard.h"

#include "TXProgressBar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int kMostCopies = 12;
constexpr int kFirstCopies = 5;
constexpr int kPartGap = 8;
constexpr QSize kSignSize(24, 24);

} // namespace

StyleSamplePanel::StyleSamplePanel(QWidget *parent)
    : GalleryPanel(parent)
    , nameLabel(new QLabel(this))
    , nameEdit(new QLineEdit(QStringLiteral("Poster 12"), this))
    , paperLabel(new QLabel(this))
    , paperBox(new QComboBox(this))
    , copiesLabel(new QLabel(this))
    , copiesBox(new QSpinBox(this))
    , trimBox(new QCheckBox(this))
    , sign(new QLabel(this))
    , signText(new QLabel(this))
    , progress(new TXProgressBar(this))
    , printButton(new QPushButton(this))
    , cancelButton(new QPushButton(this))
{
    nameLabel->setBuddy(nameEdit);
    paperLabel->setBuddy(paperBox);
    copiesLabel->setBuddy(copiesBox);
    paperBox->addItems({QString(), QString()});
    copiesBox->setRange(0, kMostCopies);
    copiesBox->setValue(kFirstCopies);
    progress->setRange(0, kMostCopies);
    trimBox->setChecked(true);
    // The shipped style sheet draws it.
    sign->setProperty("textFileSign", true);
    sign->setFixedSize(kSignSize);
    signText->setForegroundRole(QPalette::PlaceholderText);
    cancelButton->setEnabled(false);
    WheelGuard::protect(paperBox);
    WheelGuard::protect(copiesBox);
    setUpLayout();
    showProgress();
    retranslate();
    connect(copiesBox, SIGNAL(valueChanged(int)), this, SLOT(showProgress()));
}

void StyleSamplePanel::retranslate()
{
    setTitle(tr("Sample"));
    nameLabel->setText(tr("&Job:"));
    paperLabel->setText(tr("&Paper:"));
    paperBox->setItemText(0, tr("Coated"));
    paperBox->setItemText(1, tr("Newsprint"));
    copiesLabel->setText(tr("&Copies of %1:").arg(locale().toString(kMostCopies)));
    trimBox->setText(tr("Tri&m marks"));
    signText->setText(tr("drawn by the shipped sheet"));
    progress->setMessage(tr("Copies made"));
    setButtonText(printButton, tr("Print Pr&oof"));
    setButtonText(cancelButton, tr("Cancel", "a disabled button"));
}

/// The bar is a control to look at: it follows the number of copies.
void StyleSamplePanel::showProgress()
{
    progress->setValue(copiesBox->value());
}

void StyleSamplePanel::setUpLayout()
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(nameLabel, nameEdit);
    form->addRow(paperLabel, paperBox);
    form->addRow(copiesLabel, copiesBox);
    form->addRow(trimBox);

    auto *signRow = new QHBoxLayout;
    signRow->setSpacing(kPartGap);
    signRow->addWidget(sign);
    signRow->addWidget(signText, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kPartGap);
    buttons->addWidget(printButton);
    buttons->addWidget(cancelButton);
    buttons->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(form);
    rows->addWidget(progress);
    rows->addLayout(signRow);
    rows->addLayout(buttons);
    rows->addStretch();
}
