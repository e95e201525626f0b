#include "TXWidgetUtilities.h"

#include <QAbstractSpinBox>
#include <QFontMetrics>
#include <QLabel>

QSize TXWidgetUtilities::maxSizeNeededForLabelList(const QList<QLabel *> &labels)
{
    QSize needed(0, 0);
    for (QLabel *label : labels) {
        if (label) {
            label->ensurePolished();
            const QFontMetrics metrics(label->font());
            needed = needed.expandedTo(metrics.size(Qt::TextShowMnemonic, label->text()));
        }
    }
    return needed;
}

void TXWidgetUtilities::treatWhenSpinBoxDisabled(QAbstractSpinBox *spinBox)
{
    if (!spinBox) {
        return;
    }
    const bool isDisabled = spinBox->testAttribute(Qt::WA_Disabled);
    spinBox->setFrame(!isDisabled);
    spinBox->setReadOnly(isDisabled);
    spinBox->setButtonSymbols(isDisabled ? QAbstractSpinBox::NoButtons
                                         : QAbstractSpinBox::UpDownArrows);
}
