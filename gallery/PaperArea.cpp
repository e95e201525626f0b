#include "PaperArea.h"

#include "PaperPalette.h"

#include "TXVariantViewer.h"

#include <QEvent>
#include <QPalette>
#include <QVBoxLayout>

namespace {

constexpr int kPaperMargin = 8;
constexpr int kLeastHeight = 160;

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness()
        > palette.color(QPalette::Window).lightness();
}

} // namespace

PaperArea::PaperArea(QWidget *parent)
    : QScrollArea(parent)
{
    // As the viewer is: otherwise a long line would be shown from its end.
    setLayoutDirection(Qt::LeftToRight);
    auto *paper = new QWidget(this);
    shownViewer = new TXVariantViewer(paper);
    auto *rows = new QVBoxLayout(paper);
    rows->setContentsMargins(kPaperMargin, kPaperMargin, kPaperMargin, kPaperMargin);
    rows->addWidget(shownViewer);
    rows->addStretch(1);
    setWidget(paper);
    setWidgetResizable(true);
    setMinimumHeight(kLeastHeight);
    // The viewer has keys of its own, and leaves to the area those that it has no use for.
    setFocusPolicy(Qt::NoFocus);
    choosePaper();
}

void PaperArea::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        choosePaper();
    }
}

void PaperArea::choosePaper()
{
    viewport()->setPalette(isDark(palette()) ? paperPalette() : QPalette());
}
