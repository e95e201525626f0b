#include "ProgressBarSwitches.h"

#include "GalleryPanel.h"

#include "TXProgressBar.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

/// An upright bar has to be high enough to be seen growing.
constexpr int kUprightHeightPixels = 90;
constexpr int kFormatWidthPixels = 110;
constexpr int kLongestFormat = 60;

} // namespace

ProgressBarSwitches::ProgressBarSwitches(TXProgressBar *bar, QWidget *parent)
    : QWidget(parent)
    , bar(bar)
    , textBox(new QCheckBox(this))
    , formatLabel(new QLabel(this))
    , formatEdit(new QLineEdit(bar->format(), this))
    , invertedBox(new QCheckBox(this))
    , uprightBox(new QCheckBox(this))
{
    textBox->setChecked(bar->isTextVisible());
    formatEdit->setMaxLength(kLongestFormat);
    formatEdit->setFixedWidth(kFormatWidthPixels);
    formatLabel->setBuddy(formatEdit);
    setUpLayout();
    retranslate();
    apply();
    for (QCheckBox *box : {textBox, invertedBox, uprightBox}) {
        connect(box, SIGNAL(toggled(bool)), this, SLOT(apply()));
    }
    connect(formatEdit, SIGNAL(textChanged(QString)), this, SLOT(apply()));
}

void ProgressBarSwitches::apply()
{
    const bool isUpright = uprightBox->isChecked();
    bar->setTextVisible(textBox->isChecked());
    bar->setFormat(formatEdit->text());
    bar->setInvertedAppearance(invertedBox->isChecked());
    bar->setOrientation(isUpright ? Qt::Vertical : Qt::Horizontal);
    bar->setMinimumHeight(isUpright ? kUprightHeightPixels : 0);
}

void ProgressBarSwitches::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void ProgressBarSwitches::retranslate()
{
    textBox->setText(tr("Show te&xt"));
    formatLabel->setText(tr("For&mat:"));
    formatEdit->setToolTip(tr("%p stands for the percentage, %v for the value, %m for the number "
                              "of steps."));
    invertedBox->setText(tr("In&verted"));
    uprightBox->setText(tr("&Upright"));
}

void ProgressBarSwitches::setUpLayout()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(GalleryPanel::kGap);
    row->addWidget(textBox);
    row->addWidget(formatLabel);
    row->addWidget(formatEdit);
    row->addWidget(invertedBox);
    row->addWidget(uprightBox);
    row->addStretch();
}
