#include "ReportView.h"

#include "ReportViewAccessible.h"

#include "TXReportDocument.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPointsPerInch = 72;
/// Around and between the sheets.
constexpr int kGapPixels = 14;
constexpr int kLineStepPixels = 24;
constexpr double kZoomStep = 1.25;
/// Of all pictures together. Sheets that are larger by themselves are painted where they are seen.
constexpr int kPicturesKilobytes = 96 * 1024;
constexpr int kLargestPictureKilobytes = kPicturesKilobytes / 3;
constexpr QSize kUsualSize(480, 420);

const QColor kPaper(Qt::white);

int kilobytesOf(const QSize &pixels)
{
    constexpr qint64 kBytesOfPixel = 4;
    return int(1 + qint64(pixels.width()) * pixels.height() * kBytesOfPixel / 1024);
}

double withinLimits(double percent)
{
    return std::clamp(percent, double(ReportView::kSmallestZoomPercent),
                      double(ReportView::kLargestZoomPercent));
}

} // namespace

ReportView::ReportView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , pictures(kPicturesKilobytes)
{
    ReportViewAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    // A bar that comes and goes would change the width that a sheet is fitted to.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
}

void ReportView::setDocument(const std::shared_ptr<TXReportDocument> &report)
{
    document = report;
    pages = report ? report->pageCount() : 0;
    sheetPoints = report ? report->pageLayout().fullRect(QPageLayout::Point).size() : QSizeF();
    pictures.clear();
    refit();
    updateScrollBars();
    viewport()->update();
    tellPage();
    TXReportAccessible::announceChange(this);
}

int ReportView::currentPage() const
{
    if (pages == 0) {
        return -1;
    }
    // Of several small sheets the first one counts.
    const int middle =
        verticalScrollBar()->value() + std::min(viewport()->height(), pageStep()) / 2;
    return std::clamp((middle - kGapPixels / 2) / pageStep(), 0, pages - 1);
}

void ReportView::setZoomMode(ZoomMode newMode)
{
    if (newMode != mode) {
        mode = newMode;
        fit();
        emit zoomChanged();
    }
}

void ReportView::setZoomPercent(double newPercent)
{
    zoomAround(newPercent, viewport()->rect().center());
}

/// From below the smallest percentage, where a fitted sheet may be, a step out would go in.
void ReportView::zoomBy(double factor, const QPointF &anchor)
{
    const double wanted = withinLimits(percent * factor);
    const bool isThatWay = factor > 1 ? wanted > percent : factor < 1 && wanted < percent;
    if (isThatWay) {
        zoomAround(wanted, anchor);
    }
}

QRect ReportView::pageRect(int page) const
{
    if (page < 0 || page >= pages) {
        return {};
    }
    const QSize size = pageSize();
    const int left = std::max((viewport()->width() - size.width()) / 2, kGapPixels);
    const int top = kGapPixels + page * pageStep();
    return {QPoint(left - horizontalScrollBar()->value(), top - verticalScrollBar()->value()),
            size};
}

void ReportView::goToPage(int page)
{
    if (pages > 0) {
        verticalScrollBar()->setValue(std::clamp(page, 0, pages - 1) * pageStep());
    }
}

void ReportView::zoomIn()
{
    zoomBy(kZoomStep, viewport()->rect().center());
}

void ReportView::zoomOut()
{
    zoomBy(1 / kZoomStep, viewport()->rect().center());
}

void ReportView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const int first =
        std::max(0, (event->rect().top() + verticalScrollBar()->value()) / pageStep() - 1);
    for (int page = first; page < pages; ++page) {
        const QRect rect = pageRect(page);
        if (rect.top() > event->rect().bottom()) {
            return;
        }
        if (rect.adjusted(-1, -1, 1, 1).intersects(event->rect())) {
            paintSheet(&painter, page, event->rect());
        }
    }
}

void ReportView::paintSheet(QPainter *painter, int page, const QRect &exposed)
{
    const QRect rect = pageRect(page);
    painter->setPen(palette().color(QPalette::Dark));
    painter->setBrush(kPaper);
    painter->drawRect(rect.adjusted(-1, -1, 0, 0));
    // Not the widget's own ratio: it may be painted to something finer.
    if (const QPixmap *picture = pictureOf(page, painter->deviceTransform().m11())) {
        painter->drawPixmap(rect.topLeft(), *picture);
        return;
    }
    painter->save();
    painter->setClipRect(rect & exposed);
    painter->translate(rect.topLeft());
    paintContent(painter, page);
    painter->restore();
}

void ReportView::paintContent(QPainter *painter, int page) const
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->scale(pixelsPerPoint(), pixelsPerPoint());
    document->paintPage(page, painter);
}

const QPixmap *ReportView::pictureOf(int page, double ratio)
{
    const QPixmap *kept = pictures.object(page);
    if (kept && kept->devicePixelRatio() == ratio) {
        return kept;
    }
    const QSize pixels = (QSizeF(pageSize()) * ratio).toSize();
    const int cost = kilobytesOf(pixels);
    if (cost > kLargestPictureKilobytes) {
        return nullptr;
    }
    auto picture = std::make_unique<QPixmap>(pixels);
    picture->setDevicePixelRatio(ratio);
    picture->fill(kPaper);
    QPainter painter(picture.get());
    paintContent(&painter, page);
    painter.end();
    pictures.insert(page, picture.release(), cost);
    return pictures.object(page);
}

void ReportView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    refit();
    updateScrollBars();
    tellPage();
}

void ReportView::keyPressEvent(QKeyEvent *event)
{
    // Ctrl with the page keys belongs to the window around.
    const bool isPlain = (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
    const bool isZoom =
        (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier | Qt::ControlModifier)) == 0;
    if ((isPlain && turnPage(event->key())) || (isZoom && zoomByKey(event->key()))) {
        event->accept();
    } else if (isPlain) {
        QAbstractScrollArea::keyPressEvent(event);
    } else {
        event->ignore();
    }
}

bool ReportView::turnPage(int key)
{
    switch (key) {
    case Qt::Key_PageDown:
        goToPage(currentPage() + 1);
        return true;
    case Qt::Key_PageUp:
        goToPage(currentPage() - 1);
        return true;
    case Qt::Key_Home:
        goToPage(0);
        return true;
    case Qt::Key_End:
        goToPage(pages - 1);
        return true;
    default:
        return false;
    }
}

bool ReportView::zoomByKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        return true;
    case Qt::Key_Minus:
        zoomOut();
        return true;
    case Qt::Key_0:
        setZoomPercent(100);
        return true;
    default:
        return false;
    }
}

void ReportView::wheelEvent(QWheelEvent *event)
{
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr double kNotch = 120;
    const double notches = event->angleDelta().y() / kNotch;
    zoomBy(std::pow(kZoomStep, notches), event->position());
    event->accept();
}

void ReportView::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
    tellPage();
}

void ReportView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange) {
        viewport()->update();
    }
}

QSize ReportView::sizeHint() const
{
    return kUsualSize;
}

double ReportView::pixelsPerPoint() const
{
    return percent / 100 * logicalDpiX() / kPointsPerInch;
}

QSize ReportView::pageSize() const
{
    return (sheetPoints * pixelsPerPoint()).toSize().expandedTo(QSize(1, 1));
}

int ReportView::pageStep() const
{
    return pageSize().height() + kGapPixels;
}

QSize ReportView::contentSize() const
{
    return {pageSize().width() + 2 * kGapPixels, kGapPixels + pages * pageStep()};
}

double ReportView::fittingPercent() const
{
    if (mode == ZoomMode::Fixed || sheetPoints.isEmpty()) {
        return percent;
    }
    const QSizeF room = viewport()->size() - QSize(2 * kGapPixels, 2 * kGapPixels);
    const double horizontal = room.width() / sheetPoints.width();
    const double vertical = room.height() / sheetPoints.height();
    const double scale = mode == ZoomMode::FitWidth ? horizontal : std::min(horizontal, vertical);
    constexpr double kLeastPercent = 5;
    return std::max(kLeastPercent, 100 * scale * kPointsPerInch / logicalDpiX());
}

void ReportView::zoomAround(double newPercent, const QPointF &anchor)
{
    const double wanted = withinLimits(newPercent);
    const bool isNews = mode != ZoomMode::Fixed || wanted != percent;
    mode = ZoomMode::Fixed;
    applyPercent(wanted, anchor);
    if (isNews) {
        emit zoomChanged();
    }
}

void ReportView::applyPercent(double newPercent, const QPointF &anchor)
{
    if (newPercent == percent) {
        return;
    }
    const int page = currentPage();
    const QPointF before = pageRect(page).topLeft();
    const double growth = newPercent / percent;
    percent = newPercent;
    pictures.clear();
    updateScrollBars();
    // What was below the anchor is below it again.
    const QPointF drift = pageRect(page).topLeft() - (anchor - (anchor - before) * growth);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(drift.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(drift.y()));
    viewport()->update();
    tellPage();
}

void ReportView::updateScrollBars()
{
    const QSize excess = contentSize() - viewport()->size();
    horizontalScrollBar()->setRange(0, pages == 0 ? 0 : excess.width());
    // The last sheet too can come to the top.
    verticalScrollBar()->setRange(
        0, pages == 0 ? 0 : std::max(excess.height(), (pages - 1) * pageStep()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setSingleStep(kLineStepPixels);
    verticalScrollBar()->setSingleStep(kLineStepPixels);
}

void ReportView::refit()
{
    if (fit()) {
        emit zoomChanged();
    }
}

/// Whether the percentage has become another.
bool ReportView::fit()
{
    const double fitting = fittingPercent();
    if (fitting == percent) {
        return false;
    }
    applyPercent(fitting, QPointF(viewport()->width() / 2.0, 0));
    return true;
}

void ReportView::tellPage()
{
    if (currentPage() != toldPage || pages != toldPages) {
        toldPage = currentPage();
        toldPages = pages;
        emit pageChanged();
    }
}
