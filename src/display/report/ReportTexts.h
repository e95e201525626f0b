#pragma once

#include "TXGUICommonExport.h"
#include "TXReportText.h"

#include <QList>
#include <QPointF>

class QGraphicsScene;
class TXTable;

/// Finds the texts of what a report shows.
namespace ReportTexts {

/// The texts that can be seen on a scene, blank ones aside, in the order of reading. `offset` is
/// added to their places. Costs as much as sorting them.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QList<TXReportText> ofScene(const QGraphicsScene &scene,
                                                                     const QPointF &offset = {});

/// The texts of a table whose cells' top left corner is at the place, row by row, each row from the
/// side from which inReadingOrder() would read it. Costs a step for each cell.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QList<TXReportText> ofTable(const TXTable &table,
                                                                     const QPointF &topLeft);

/// Sorts texts line by line from the top. On one line is what has its middle above the lower edge
/// of the line's topmost text. A line is read from the right when most of its texts are in a script
/// that runs from there, else from the left; texts without any letters do not count, and where
/// there are as many of both, or none, it is what most texts of all lines are in. Costs as much as
/// sorting.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QList<TXReportText>
inReadingOrder(QList<TXReportText> texts);

} // namespace ReportTexts
