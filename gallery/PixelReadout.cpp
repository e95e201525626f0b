#include "PixelReadout.h"

#include "PictureSet.h"

#include "TXColorSquareWidget.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace {

constexpr int kSwatchPixels = 30;
constexpr double kSwatchRadius = 4;
constexpr int kColumnGap = 18;
constexpr int kDeltaDigits = 2;
constexpr int kWherePixels = 220;
constexpr int kDeltaPixels = 70;

const QString kNothing = QStringLiteral("–");

QLabel *makeLabel(QWidget *parent, QPalette::ColorRole role = QPalette::WindowText)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(role);
    return label;
}

QLabel *makeCaption(QWidget *parent)
{
    return makeLabel(parent, QPalette::PlaceholderText);
}

} // namespace

PixelReadout::PixelReadout(QWidget *parent)
    : QWidget(parent)
    , whereLabel(makeCaption(this))
    , placeLabel(makeLabel(this))
    , deltaNameLabel(makeCaption(this))
    , deltaLabel(makeLabel(this))
{
    for (int i = 0; i < PictureSet::kLargestCount; ++i) {
        cells.append(makeCell());
    }
    setUpLayout();
    setNames({});
}

void PixelReadout::setNames(const QStringList &names)
{
    for (int i = 0; i < cells.size(); ++i) {
        const QLabel &label = *cells[i].name;
        cells[i].name->setText(
            fontMetrics().elidedText(names.value(i), Qt::ElideMiddle, label.maximumWidth()));
        cells[i].name->setToolTip(names.value(i));
        cells[i].whole->setVisible(i < names.size());
    }
    deltaNameLabel->setVisible(names.size() > 1);
    deltaLabel->setVisible(names.size() > 1);
    clear();
}

void PixelReadout::showPixel(const Pixel &newPixel)
{
    pixel = newPixel;
    showState();
}

void PixelReadout::clear()
{
    pixel.reset();
    showState();
}

void PixelReadout::changeEvent(QEvent *event)
{
    // The frames of the swatches are in a colour of the palette.
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange) {
        showState();
    }
    QWidget::changeEvent(event);
}

PixelReadout::Cell PixelReadout::makeCell()
{
    constexpr int kNamePixels = 100;
    auto *whole = new QWidget(this);
    const Cell cell = {new TXColorSquareWidget(whole), makeCaption(whole), makeLabel(whole), whole};
    cell.swatch->setSizeHint(QSize(kSwatchPixels, kSwatchPixels));
    cell.swatch->setFixedSize(kSwatchPixels, kSwatchPixels);
    cell.swatch->setRadius(kSwatchRadius);
    cell.swatch->setAlignment(Qt::AlignCenter);
    cell.name->setMaximumWidth(kNamePixels);
    // The widest: nothing moves while the mouse does.
    cell.colour->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("#dddddd")));
    auto *grid = new QGridLayout(whole);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->addWidget(cell.swatch, 0, 0, 2, 1);
    grid->addWidget(cell.name, 0, 1);
    grid->addWidget(cell.colour, 1, 1);
    return cell;
}

void PixelReadout::setUpLayout()
{
    whereLabel->setMinimumWidth(kWherePixels);
    deltaLabel->setMinimumWidth(kDeltaPixels);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(kColumnGap);
    int column = 0;
    grid->addWidget(whereLabel, 0, column);
    grid->addWidget(placeLabel, 1, column);
    grid->setColumnStretch(column, 1);
    for (const Cell &cell : cells) {
        grid->addWidget(cell.whole, 0, ++column, 2, 1);
    }
    grid->addWidget(deltaNameLabel, 0, ++column);
    grid->addWidget(deltaLabel, 1, column);
}

/// Without the separators of thousands, which are for amounts.
QString PixelReadout::placeText(const QPoint &place) const
{
    QLocale shown = locale();
    shown.setNumberOptions(QLocale::OmitGroupSeparator);
    return tr("x %1, y %2").arg(shown.toString(place.x()), shown.toString(place.y()));
}

void PixelReadout::showState()
{
    deltaNameLabel->setText(QStringLiteral("ΔE"));
    deltaNameLabel->setToolTip(tr("Between the first two pictures, by CIEDE2000"));
    const QString where = pixel ? pixel->where : tr("Move the mouse over a picture.");
    whereLabel->setText(fontMetrics().elidedText(where, Qt::ElideMiddle, kWherePixels));
    whereLabel->setToolTip(where);
    placeLabel->setText(pixel ? placeText(pixel->place) : kNothing);
    for (int i = 0; i < cells.size(); ++i) {
        showColour(cells[i], pixel ? pixel->colours.value(i) : QColor());
    }
    deltaLabel->setText(pixel && pixel->delta ? locale().toString(*pixel->delta, 'f', kDeltaDigits)
                                              : kNothing);
}

void PixelReadout::showColour(const Cell &cell, const QColor &colour) const
{
    cell.colour->setText(colour.isValid() ? colour.name() : kNothing);
    cell.swatch->setBrush(colour.isValid() ? QBrush(colour) : QBrush());
    cell.swatch->setPen(palette().color(QPalette::Mid));
}
