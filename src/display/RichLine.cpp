#include "RichLine.h"

#include "ColouredLine.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextOption>
#include <QUrl>
#include <QVariant>

namespace {

/// A document that opens no files: a value could name one that never ends.
class SelfContainedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override
    {
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
};

void align(QTextDocument &document, Qt::Alignment alignment)
{
    QTextOption option = document.defaultTextOption();
    // The document would be laid out again even so.
    if (option.wrapMode() == QTextOption::ManualWrap && option.alignment() == alignment) {
        return;
    }
    option.setWrapMode(QTextOption::ManualWrap);
    option.setAlignment(alignment);
    document.setDefaultTextOption(option);
}

void removeMargin(const QTextDocument &document)
{
    QTextFrameFormat format = document.rootFrame()->frameFormat();
    format.setMargin(0);
    document.rootFrame()->setFrameFormat(format);
}

/// Whether a tag may be that of a table or of its cells. Qt takes it for one in capitals, behind
/// blanks, in quotes, and with entities, too.
bool mayHoldTable(const QString &markup)
{
    static const QRegularExpression kTable(QStringLiteral("<\\W*(?:table|t[dh]|\\w*&)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return markup.contains(kTable);
}

} // namespace

bool RichLine::isWanted(const ColouredLine &line, const QString &markup)
{
    // The search would go on from each of many tags to the end; so the number of tags comes first.
    return (line.isForeign() || line.hasRightToLeft()) && markup.size() <= kCharactersMaximum
        && line.foreignTags() <= kTagsMaximum && !mayHoldTable(markup);
}

RichLine::RichLine(const QString &markup, const QFont &font)
    : document(std::make_unique<SelfContainedDocument>())
{
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(font);
    if (Qt::mightBeRichText(markup)) {
        document->setHtml(markup);
    } else {
        document->setPlainText(markup);
    }
    align(*document, Qt::AlignLeft);
    removeMargin(*document);
    document->setTextWidth(-1);
    fullSize = document->size();
}

RichLine::~RichLine() = default;

QString RichLine::text() const
{
    return document->toPlainText();
}

void RichLine::draw(QPainter &painter, const QPointF &topLeft, qreal room, Qt::Alignment alignment,
                    const QPalette &palette, const QRectF &visible) const
{
    align(*document, alignment);
    document->setTextWidth(room);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette;
    // Slanted and stacked letters reach beyond their line.
    const qreal overhang = QFontMetricsF(document->defaultFont()).height();
    context.clip = visible.translated(-topLeft).adjusted(-overhang, -overhang, overhang, overhang);
    painter.save();
    painter.translate(topLeft);
    document->documentLayout()->draw(&painter, context);
    painter.restore();
}
