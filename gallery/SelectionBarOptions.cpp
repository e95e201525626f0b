#include "SelectionBarOptions.h"

#include "TXSelectionItemWidget.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

SelectionBarOptions::SelectionBarOptions(TXSelectionItemWidget *bar, QWidget *parent)
    : GalleryPanel(parent)
    , bar(bar)
    , importLabel(new QLabel(this))
    , boxButton(new QRadioButton(this))
    , menuButton(new QRadioButton(this))
    , namesBox(new QCheckBox(this))
    , labelBox(new QCheckBox(this))
    , labelEdit(new QLineEdit(this))
{
    boxButton->setChecked(true);
    namesBox->setChecked(true);
    labelBox->setChecked(true);
    setUpLayout();
    retranslate();
    connect(boxButton, SIGNAL(toggled(bool)), this, SIGNAL(importInBoxChanged(bool)));
    connect(namesBox, SIGNAL(toggled(bool)), this, SLOT(allowNames(bool)));
    connect(labelBox, SIGNAL(toggled(bool)), this, SLOT(showLabel(bool)));
    connect(labelEdit, SIGNAL(textEdited(QString)), this, SLOT(setLabel(QString)));
}

void SelectionBarOptions::retranslate()
{
    setTitle(tr("Options"));
    importLabel->setText(tr("Import:"));
    boxButton->setText(tr("in the bo&x"));
    menuButton->setText(tr("in a &menu"));
    namesBox->setText(tr("Names can be &typed over"));
    labelBox->setText(tr("Sho&w the label:"));
    labelEdit->setAccessibleName(tr("Text of the label"));
    labelEdit->setText(bar->labelName());
}

void SelectionBarOptions::allowNames(bool isAllowed)
{
    bar->allowComboboxNameEdition(isAllowed);
}

void SelectionBarOptions::showLabel(bool isShown)
{
    bar->setVisibleItemLabel(isShown);
    labelEdit->setEnabled(isShown);
}

void SelectionBarOptions::setLabel(const QString &text)
{
    bar->setLabelName(text);
}

void SelectionBarOptions::setUpLayout()
{
    auto *importRow = new QHBoxLayout;
    importRow->setSpacing(kGap);
    importRow->addWidget(importLabel);
    importRow->addWidget(boxButton);
    importRow->addWidget(menuButton);
    importRow->addStretch();

    auto *labelRow = new QHBoxLayout;
    labelRow->addWidget(labelBox);
    labelRow->addWidget(labelEdit, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(importRow);
    rows->addWidget(namesBox);
    rows->addLayout(labelRow);
    rows->addStretch();
}
