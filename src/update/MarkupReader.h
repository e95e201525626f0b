#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QStringView>

#include <utility>

/// Walks over rich text from tag to tag without building anything. Reads tags as Qt's own reader
/// of HTML does as long as they are written in the usual way, and says so where they are not.
///
/// A walk takes time in proportion to the length of the text. The pieces are views of the text,
/// which must outlive them.
///
/// Thread: any one thread.
class TXGUICOMMON_PRIVATE_EXPORT MarkupReader
{
public:
    /// What a piece of the text is.
    enum class Kind {
        Words, ///< text between tags, with its entities as they are written
        OpeningTag, ///< a tag that begins an element
        ClosingTag, ///< a tag that ends an element
        Remark, ///< a comment or a declaration
        Odd ///< a tag that may be read in more than one way, or an angle alone
    };

    /// A run of words or one tag.
    struct Piece
    {
        /// What the piece is.
        Kind kind = Kind::Words;
        /// The whole piece as it is written.
        QStringView text;
        /// The name of the tag as it is written, letters and digits; empty for other pieces, and
        /// for odd ones possibly.
        QStringView name;
        /// Names and values of an opening tag's attributes, without quotes; empty otherwise.
        QList<std::pair<QStringView, QStringView>> attributes;
    };

    /// A walk that stands before the first piece.
    explicit MarkupReader(QStringView text);

    /// Whether the end of the text is reached.
    [[nodiscard]] bool atEnd() const;

    /// The next piece; an empty one at the end. The pieces together are the whole text.
    [[nodiscard]] Piece next();

private:
    [[nodiscard]] bool startsHere(QLatin1String start) const;
    [[nodiscard]] QStringView takeName();
    void skipSpaces();
    void skipBehind(QLatin1String end);
    void skipOddTag();
    void readRemark(Piece &piece);
    bool readTag(Piece &piece);
    bool readAttribute(Piece &piece);
    bool readValue(QStringView &value);
    bool readQuoted(QStringView &value);

    QStringView text;
    qsizetype place = 0;
};
