#pragma once

#include "ReportPageScene.h"
#include "ReportTablePainter.h"

/// What the pages of one writing have in common, so that it is prepared, and stands in a PDF, once.
struct ReportSharedParts
{
    /// Remembers the texts and pictures of tables.
    ReportTablePainter tables;
    /// The pictures resampled for drawn pages.
    ReportPageScene::Pictures pictures;
};
