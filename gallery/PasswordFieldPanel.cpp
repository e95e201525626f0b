#include "PasswordFieldPanel.h"

#include "PasswordFieldCell.h"

#include "TXPasswordLineEdit.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kCaptionColumn = 0;
constexpr int kFirstFieldColumn = 1;

} // namespace

PasswordFieldPanel::PasswordFieldPanel(QWidget *parent)
    : GalleryPanel(parent)
    , valueLabel(new QLabel(this))
    , valueEdit(new QLineEdit(QStringLiteral("Lab-D50/2"), this))
    , setButton(new QPushButton(this))
    , headings({new QLabel(this), new QLabel(this)})
    , protectedLabel(new QLabel(this))
    , plainLabel(new QLabel(this))
    , protectedCells({makeCell<TXPasswordLineEdit>(true), makeCell<TXPasswordLineEdit>(false)})
    , plainCells({makeCell<QLineEdit>(true), makeCell<QLineEdit>(false)})
    , note(new QLabel(this))
{
    valueLabel->setBuddy(valueEdit);
    protectedLabel->setBuddy(protectedCells.first()->field());
    plainLabel->setBuddy(plainCells.first()->field());
    for (QLabel *label : {protectedLabel, plainLabel}) {
        // On one line with the field, not with all of its cell.
        label->setMinimumHeight(valueEdit->sizeHint().height());
    }
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    retranslate();
    connect(setButton, SIGNAL(clicked()), this, SLOT(setByProgram()));
    connect(valueEdit, SIGNAL(returnPressed()), this, SLOT(setByProgram()));
}

void PasswordFieldPanel::setByProgram()
{
    for (PasswordFieldCell *cell : protectedCells + plainCells) {
        cell->setByProgram(valueEdit->text());
    }
}

void PasswordFieldPanel::retranslate()
{
    setTitle(tr("Password line edit"));
    valueLabel->setText(tr("&Value:"));
    setButtonText(setButton, tr("Set &by the Program"));
    headings.first()->setText(tr("Enabled"));
    headings.last()->setText(tr("Disabled"));
    protectedLabel->setText(tr("T&XPasswordLineEdit"));
    plainLabel->setText(tr("&QLineEdit"));
    protectedCells.first()->retranslate(tr("TXPasswordLineEdit, enabled"));
    protectedCells.last()->retranslate(tr("TXPasswordLineEdit, disabled"));
    plainCells.first()->retranslate(tr("QLineEdit, enabled"));
    plainCells.last()->retranslate(tr("QLineEdit, disabled"));
    note->setText(tr("What the program has set stays enciphered, and a mask of fixed length stands "
                     "in its place, until the first key pressed in the field drops both. What the "
                     "user types stands in the field, as in any other."));
}

template<class Field>
PasswordFieldCell *PasswordFieldPanel::makeCell(bool isEnabled)
{
    auto *field = new Field(this);
    field->setEchoMode(QLineEdit::Password);
    field->setEnabled(isEnabled);
    return new PasswordFieldCell(field,
                                 {[field](const QString &value) { field->setText(value); },
                                  [field]() {
                                      return field->text();
                                  }},
                                 this);
}

void PasswordFieldPanel::setUpLayout()
{
    auto *valueRow = new QHBoxLayout;
    valueRow->addWidget(valueLabel);
    valueRow->addWidget(valueEdit);
    valueRow->addWidget(setButton);
    valueRow->addStretch();

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kGap);
    grid->addWidget(protectedLabel, 1, kCaptionColumn, Qt::AlignTop);
    grid->addWidget(plainLabel, 2, kCaptionColumn, Qt::AlignTop);
    for (int i = 0; i < headings.size(); ++i) {
        const int column = kFirstFieldColumn + i;
        headings[i]->setForegroundRole(QPalette::PlaceholderText);
        grid->addWidget(headings[i], 0, column);
        grid->addWidget(protectedCells[i], 1, column);
        grid->addWidget(plainCells[i], 2, column);
        grid->setColumnStretch(column, 1);
    }

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(valueRow);
    rows->addLayout(grid);
    rows->addWidget(note);
}
