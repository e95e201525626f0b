#include "ReportContent.h"

#include "ReportPlacement.h"
#include "ReportSharedParts.h"
#include "ReportTexts.h"
#include "TXGraphicsScene.h"
#include "TXTableCell.h"

#include <QGraphicsItem>
#include <QPainter>

#include <utility>

namespace {

/// How far the frame of a table stands out from its cells, on each side.
constexpr double kTableFramePoints = ReportPlacement::kTableFrameMargin;

/// Hides what is too far out for a PDF as long as it lives.
class FarItemsHidden
{
    Q_DISABLE_COPY_MOVE(FarItemsHidden)

public:
    explicit FarItemsHidden(const QGraphicsScene &scene)
    {
        const QList<QGraphicsItem *> items = scene.items();
        for (QGraphicsItem *item : items) {
            if (item->isVisible() && !ReportPlacement::isWithinReach(item->sceneBoundingRect())) {
                hidden.append({item, item->isSelected()});
                item->setVisible(false);
            }
        }
    }
    ~FarItemsHidden()
    {
        for (const auto &[item, wasSelected] : std::as_const(hidden)) {
            item->setVisible(true);
            item->setSelected(wasSelected);
        }
    }

private:
    QList<std::pair<QGraphicsItem *, bool>> hidden;
};

/// All of the sheet shows the scene, not only where the content belongs.
void renderScene(TXGraphicsScene &scene, QPainter *painter, const ReportPaper &paper)
{
    const QRectF source = paper.sheet.translated(-paper.content.topLeft());
    const FarItemsHidden hidden(scene);
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

void ReportScenePage::paint(QPainter *painter, int /*page*/, const ReportPaper &paper,
                            ReportSharedParts * /*shared*/)
{
    if (scene != nullptr) {
        renderScene(*scene, painter, paper);
    }
}

QList<TXReportText> ReportScenePage::texts(int /*page*/, const ReportPaper &paper,
                                           ReportSharedParts * /*shared*/)
{
    return scene == nullptr ? QList<TXReportText>()
                            : ReportTexts::ofScene(*scene, paper.content.topLeft());
}

ReportDrawnPages::ReportDrawnPages(int count, Drawing draw)
    : count(count)
    , draw(std::move(draw))
{ }

int ReportDrawnPages::pageCount(const ReportPaper & /*paper*/)
{
    return count;
}

void ReportDrawnPages::paint(QPainter *painter, int page, const ReportPaper &paper,
                             ReportSharedParts *shared)
{
    ReportPageScene scene(&shared->pictures);
    draw(&scene, page);
    renderScene(scene, painter, paper);
}

QList<TXReportText> ReportDrawnPages::texts(int page, const ReportPaper &paper,
                                            ReportSharedParts *shared)
{
    ReportPageScene scene(&shared->pictures);
    draw(&scene, page);
    return ReportTexts::ofScene(scene, paper.content.topLeft());
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

void ReportTableContent::paint(QPainter *painter, int page, const ReportPaper &paper,
                               ReportSharedParts *shared)
{
    const QPointF cells = paper.content.topLeft() + QPointF(kTableFramePoints, kTableFramePoints);
    shared->tables.paintTable(painter, pagesOn(paper).page(page), cells, font);
}

QList<TXReportText> ReportTableContent::texts(int page, const ReportPaper &paper,
                                              ReportSharedParts * /*shared*/)
{
    const QPointF cells = paper.content.topLeft() + QPointF(kTableFramePoints, kTableFramePoints);
    return ReportTexts::ofTable(pagesOn(paper).page(page), cells);
}
