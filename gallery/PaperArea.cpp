#include "PaperArea.h"

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

/// Ink on paper. The paper is not quite white, so that the light of a hover is seen on it.
QPalette paperPalette()
{
    const QColor ink(0x1c, 0x22, 0x2e);
    const QColor accent(0x2b, 0x6c, 0xd4);
    QPalette palette(ink, QColor(0xfb, 0xfb, 0xfd), Qt::white, QColor(0x9a, 0xa1, 0xad),
                     QColor(0xd5, 0xd9, 0xe0), ink, Qt::white, Qt::white, QColor(0xe9, 0xe8, 0xe3));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    return palette;
}

} // namespace

PaperArea::PaperArea(QWidget *parent)
    : QScrollArea(parent)
{
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
