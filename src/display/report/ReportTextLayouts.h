#pragma once

#include "TXGUICommonExport.h"

#include <QCache>
#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

#include <memory>

/// Texts of one font that are laid out already, so that a text that comes again need not be shaped
/// again. Remembers those used last, about 500 and less than a MB, as a page of items would take
/// more. Thread: any one at a time.
class TXGUICOMMON_PRIVATE_EXPORT ReportTextLayouts
{
public:
    /// A text ready to be drawn, its lines below one another as QGraphicsSimpleTextItem has them.
    struct Text
    {
        /// What TXGraphicsScene::getBoundingRectOfText() says.
        QSizeF size;
        /// Stands at (0, 0).
        QTextLayout layout;
    };

    /// Nothing is laid out yet.
    explicit ReportTextLayouts(const QFont &font);

    /// The font of all texts.
    [[nodiscard]] const QFont &font() const { return textFont; }

    /// The text laid out. The reference is good until the next call.
    [[nodiscard]] const Text &text(const QString &text);

private:
    QFont textFont;
    QCache<QString, Text> remembered;
    std::unique_ptr<Text> tooLong;
};
