#include "PatchDifferenceCell.h"

#include "ChartPatches.h"

#include "TXColorSquareWidget.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QStyle>

namespace {

constexpr QSize kSwatchPixels(46, 34);
constexpr double kCornerPixels = 7;
constexpr int kSwatchGap = 3;
constexpr int kDecimals = 2;

TXColorSquareWidget *makeSwatch(const LabColour &colour, QWidget *parent)
{
    auto *swatch = new TXColorSquareWidget(parent);
    swatch->setSizeHint(kSwatchPixels);
    swatch->setBrush(colour.toScreen());
    swatch->setRadius(kCornerPixels);
    return swatch;
}

/// Thin and quiet, or such that it is seen at once.
QPen frame(const QPalette &palette, bool isMarked)
{
    return isMarked ? QPen(palette.color(QPalette::WindowText), 2)
                    : QPen(palette.color(QPalette::Mid), 1);
}

} // namespace

PatchDifferenceCell::PatchDifferenceCell(const PatchPair &pair, QWidget *parent)
    : QWidget(parent)
    , pair(pair)
    , name(new QLabel(this))
    , older(makeSwatch(chartPatches().at(size_t(pair.older)).older, this))
    , newer(makeSwatch(chartPatches().at(size_t(pair.newer)).newer, this))
    , difference(new QLabel(this))
{
    name->setAlignment(Qt::AlignCenter);
    difference->setAlignment(Qt::AlignCenter);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kSwatchGap);
    grid->addWidget(name, 0, 0, 1, 2);
    grid->addWidget(older, 1, 0);
    grid->addWidget(newer, 1, 1);
    grid->addWidget(difference, 2, 0, 1, 2);
    moveTogether();
}

void PatchDifferenceCell::showDifference(DifferenceFormula formula, double limit)
{
    const double value = pair.by(formula);
    isMarked = value >= limit;
    QFont bold;
    bold.setBold(isMarked);
    difference->setFont(bold);
    difference->setText(tr("ΔE %1").arg(locale().toString(value, 'f', kDecimals)));
    setFrames();
}

void PatchDifferenceCell::retranslate()
{
    const QString patch = chartPatches().at(size_t(pair.older)).translatedName();
    name->setText(patch);
    older->setAccessibleName(tr("%1, before November 2014").arg(patch));
    newer->setAccessibleName(tr("%1, since November 2014").arg(patch));
}

void PatchDifferenceCell::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setFrames();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        moveTogether();
    }
}

void PatchDifferenceCell::moveTogether()
{
    const auto towards = [this](Qt::Alignment side) {
        return QStyle::visualAlignment(layoutDirection(), side) | Qt::AlignVCenter;
    };
    older->setAlignment(towards(Qt::AlignRight));
    newer->setAlignment(towards(Qt::AlignLeft));
}

void PatchDifferenceCell::setFrames()
{
    for (TXColorSquareWidget *swatch : {older, newer}) {
        swatch->setPen(frame(palette(), isMarked));
    }
}
