#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

/// A PDF as somebody else reads it: poppler's tools are asked, none of our code.
///
/// Each question runs a tool of poppler-utils anew, some 10 milliseconds, so ask once for all
/// pages. A tool that is missing, fails or complains is an error: the answer is empty and
/// errorText() says why, also when later questions succeed. Never is a missing tool passed over.
///
/// Pages are counted from 1, as the tools do. Places are points from the top left corner of the
/// paper.
class PdfFile
{
public:
    /// A word, which poppler ends at blanks and wide gaps. Letters written from the right come as a
    /// word each.
    struct Word
    {
        QString text;
        /// The left side is the origin of the first glyph and the right side that of what would
        /// follow the last, not where there is ink. The top is the font's ascent above the
        /// baseline and the bottom its descent below: for text on a scene, the top of its line.
        QRectF box;
    };

    /// What the file tells of itself.
    struct Information
    {
        QString title;
        QString author;
        /// In points, one for each page.
        QList<QSizeF> pageSizes;
    };

    /// A font that the file uses.
    struct Font
    {
        QString name;
        bool isEmbedded = false;
        /// Whether the file tells the characters behind the glyphs, without which no text is found.
        bool hasCharacters = false;
    };

    /// A picture on a page, once for each time that the page shows it.
    struct Picture
    {
        int page = 0;
        /// "image", or "smask" for the transparency that belongs to the picture before it.
        QString type;
        QSize pixels;
        /// As poppler gives it, in whole dots per inch of the paper.
        QSize dotsPerInch;
        /// "image" for exact pixels, "jpeg" for such that were made smaller with losses.
        QString encoding;
        /// The number under which the file holds the picture; equal where it is shown again.
        int object = 0;

        /// The room that it takes on the paper, in points.
        [[nodiscard]] QSizeF size() const;
    };

    /// The file need not be there before the first question.
    explicit PdfFile(const QString &fileName);

    /// What has gone wrong first, in words; empty when nothing has.
    [[nodiscard]] QString errorText() const;

    /// Title, author and sizes of all pages.
    [[nodiscard]] Information information();

    /// The words of each page. The order is that in which poppler would read the page.
    [[nodiscard]] QList<QList<Word>> words();

    /// The text of each page, lines and columns as they stand on the page.
    [[nodiscard]] QStringList pageTexts();

    /// All fonts, each once.
    [[nodiscard]] QList<Font> fonts();

    /// All pictures, page by page in the order of painting.
    [[nodiscard]] QList<Picture> pictures();

    /// The pixels of the pictures on a page, as the file holds them, in the order of pictures().
    [[nodiscard]] QList<QImage> pixelsOfPictures(int page);

    /// A page as it looks, on white, with soft edges. `dotsPerInch` of 72 makes a pixel of each
    /// point. Colours of scaled pictures may come out one step too dark, as poppler cuts fractions
    /// off: take pixelsOfPictures() where they are to be exact.
    [[nodiscard]] QImage rendered(int page, double dotsPerInch);

    /// A part of a page, as rendered(). The area is in pixels of the whole page at that resolution,
    /// and as only it is painted the resolution may be very high.
    [[nodiscard]] QImage rendered(int page, double dotsPerInch, const QRect &pixels);

private:
    [[nodiscard]] std::optional<QByteArray> run(const QString &tool, const QStringList &arguments);
    [[nodiscard]] QByteArray output(const QString &tool, const QStringList &arguments);
    [[nodiscard]] QStringList lines(const QString &tool, const QStringList &options);
    [[nodiscard]] QImage imageFrom(const QStringList &options);
    void setError(const QString &text);

    QString fileName;
    QString error;
};
