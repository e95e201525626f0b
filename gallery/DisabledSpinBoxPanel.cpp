#include "DisabledSpinBoxPanel.h"

#include "TXDoubleSpinBoxDisabled.h"
#include "TXSpinBoxDisabled.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kLargestRuling = 400;
constexpr int kUsualRuling = 175;
constexpr double kLargestWidth = 9999;
constexpr double kUsualWidth = 1118.5;

/// The name of the class, as a programmer looks for it.
QString nameOf(const QObject *object)
{
    return QString::fromLatin1(object->metaObject()->className());
}

} // namespace

DisabledSpinBoxPanel::DisabledSpinBoxPanel(QWidget *parent)
    : GalleryPanel(parent)
    , rows({makeRow<TXSpinBoxDisabled>(), makeRow<QSpinBox>(),
            makeDoubleRow<TXDoubleSpinBoxDisabled>(), makeDoubleRow<QDoubleSpinBox>()})
    , leftHeading(new QLabel(this))
    , rightHeading(new QLabel(this))
    , swapButton(new QPushButton(this))
{
    setUpLayout();
    enableColumns();
    retranslate();
    connect(swapButton, SIGNAL(clicked()), this, SLOT(swap()));
}

void DisabledSpinBoxPanel::retranslate()
{
    setTitle(tr("Spin boxes that are disabled"));
    const QString enabled = tr("Enabled");
    const QString disabled = tr("Disabled");
    leftHeading->setText(isLeftEnabled ? enabled : disabled);
    rightHeading->setText(isLeftEnabled ? disabled : enabled);
    for (const Row &row : qAsConst(rows)) {
        row.caption->setText(nameOf(row.left));
        // Not by their sides, which a layout from right to left swaps.
        QAbstractSpinBox *enabledBox = isLeftEnabled ? row.left : row.right;
        QAbstractSpinBox *disabledBox = isLeftEnabled ? row.right : row.left;
        enabledBox->setAccessibleName(tr("%1, enabled").arg(nameOf(enabledBox)));
        disabledBox->setAccessibleName(tr("%1, disabled").arg(nameOf(disabledBox)));
    }
    setButtonText(swapButton, tr("S&wap"));
}

void DisabledSpinBoxPanel::swap()
{
    isLeftEnabled = !isLeftEnabled;
    enableColumns();
    retranslate();
}

template<class SpinBox>
DisabledSpinBoxPanel::Row DisabledSpinBoxPanel::makeRow()
{
    auto *left = new SpinBox(this);
    auto *right = new SpinBox(this);
    for (SpinBox *box : {left, right}) {
        box->setMaximum(kLargestRuling);
        box->setValue(kUsualRuling);
        box->setSuffix(QStringLiteral(" lpi"));
    }
    return {new QLabel(this), left, right};
}

template<class SpinBox>
DisabledSpinBoxPanel::Row DisabledSpinBoxPanel::makeDoubleRow()
{
    auto *left = new SpinBox(this);
    auto *right = new SpinBox(this);
    for (SpinBox *box : {left, right}) {
        box->setDecimals(1);
        box->setMaximum(kLargestWidth);
        box->setValue(kUsualWidth);
        box->setSuffix(QStringLiteral(" mm"));
    }
    return {new QLabel(this), left, right};
}

void DisabledSpinBoxPanel::setUpLayout()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap / 2);
    grid->addWidget(leftHeading, 0, 1);
    grid->addWidget(rightHeading, 0, 2);
    for (QLabel *heading : {leftHeading, rightHeading}) {
        heading->setForegroundRole(QPalette::PlaceholderText);
    }
    for (int i = 0; i < rows.size(); ++i) {
        grid->addWidget(rows[i].caption, i + 1, 0);
        grid->addWidget(rows[i].left, i + 1, 1);
        grid->addWidget(rows[i].right, i + 1, 2);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);

    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(swapButton);
    buttonRow->addStretch();

    auto *all = new QVBoxLayout(this);
    setGaps(all);
    all->addLayout(grid);
    all->addStretch();
    all->addLayout(buttonRow);
}

void DisabledSpinBoxPanel::enableColumns()
{
    for (const Row &row : qAsConst(rows)) {
        row.left->setEnabled(isLeftEnabled);
        row.right->setEnabled(!isLeftEnabled);
    }
}
