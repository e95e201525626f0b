#include "ReportContent.h"

#include "ReportTablePainter.h"
#include "TXGraphicsScene.h"
#include "TXTableCell.h"

#include <QPainter>

#include <utility>

namespace {

/// How far the frame of a table stands out from its cells, on each side.
constexpr double kTableFramePoints = 5.0;

/// All of the sheet shows the scene, not only where the content belongs.
void renderScene(TXGraphicsScene &scene, QPainter *painter, const ReportPaper &paper)
{
    const QRectF source = paper.sheet.translated(-paper.content.topLeft());
    scene.render(painter, paper.sheet, source, Qt::IgnoreAspectRatio);
}

} // namespace

ReportContent::~ReportContent() = default;

ReportScenePage::ReportScenePage(TXGraphicsScene *scene)
    : scene(scene)
{ }

int ReportScenePage::pageCount(const ReportPaper & /*paper*/)
{
    return 1;
}

void ReportScenePage::paint(QPainter *painter, int /*page*/, const ReportPaper &paper)
{
    if (scene != nullptr) {
        renderScene(*scene, painter, paper);
    }
}

ReportDrawnPages::ReportDrawnPages(int count, Drawing draw)
    : count(count)
    , draw(std::move(draw))
{ }

int ReportDrawnPages::pageCount(const ReportPaper & /*paper*/)
{
    return count;
}

void ReportDrawnPages::paint(QPainter *painter, int page, const ReportPaper &paper)
{
    TXGraphicsScene scene;
    // For one rendering a search tree would cost more than it saves.
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    draw(&scene, page);
    renderScene(scene, painter, paper);
}

ReportTableContent::ReportTableContent(const TXTable &table, const QFont &font)
    : table(table)
    , font(font)
{ }

const ReportTablePages &ReportTableContent::pagesOn(const ReportPaper &paper)
{
    const double height = paper.content.height() - 2 * kTableFramePoints;
    if (!pages.has_value() || height != cutHeight) {
        pages.emplace(table, float(height));
        cutHeight = height;
    }
    return *pages;
}

int ReportTableContent::pageCount(const ReportPaper &paper)
{
    return pagesOn(paper).count();
}

void ReportTableContent::paint(QPainter *painter, int page, const ReportPaper &paper)
{
    const QPointF cells = paper.content.topLeft() + QPointF(kTableFramePoints, kTableFramePoints);
    ReportTablePainter::paint(painter, pagesOn(paper).page(page), cells, font);
}
