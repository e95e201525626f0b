// Makes a PDF manual of a Markdown file: TXManualMaker <file.md> <file.pdf>. Runs at build time.
// The manual has the date of SOURCE_DATE_EPOCH, seconds since 1970, if that is set, else that of
// now.

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <array>
#include <cstdio>

namespace {

constexpr double kTextPoints = 10.5;
constexpr double kLineHeightPercent = 125;
constexpr int kDotsPerInch = 96;
constexpr double kParagraphGap = 7;
constexpr double kTableGap = 10;
constexpr double kCellPadding = 4;
constexpr qsizetype kDateDigits = 14;
/// In millimetres, on top of the 20 mm that QTextDocument keeps free itself.
constexpr QMarginsF kPageMargins(4, 0, 4, 0);

const QColor kHeadingColour(0x1f, 0x4f, 0xa8);
const QColor kCodeColour(0x8a, 0x1f, 0x4d);
const QColor kLineColour(0xc4, 0xca, 0xd4);
const QColor kHeaderRowColour(0xee, 0xf1, 0xf6);

/// By the level of the heading, from 1.
constexpr std::array kHeadingPoints = {24.0, 15.0, 12.0};
constexpr std::array kHeadingGaps = {0.0, 22.0, 14.0};

void formatCode(const QTextBlock &block)
{
    const QStringList families = {QStringLiteral("DejaVu Sans Mono"),
                                  QFontDatabase::systemFont(QFontDatabase::FixedFont).family()};
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (!part.fragment().charFormat().fontFixedPitch()) {
            continue;
        }
        QTextCharFormat format;
        format.setFontFamilies(families);
        format.setFontPointSize(kTextPoints - 1);
        format.setForeground(kCodeColour);
        QTextCursor cursor(block);
        cursor.setPosition(part.fragment().position());
        cursor.setPosition(part.fragment().position() + part.fragment().length(),
                           QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
}

void formatHeading(QTextCursor &cursor, int level)
{
    const size_t index = std::min(size_t(level), kHeadingPoints.size()) - 1;
    QTextCharFormat characters;
    characters.setFontPointSize(kHeadingPoints[index]);
    characters.setFontWeight(QFont::DemiBold);
    characters.setForeground(kHeadingColour);
    // Not merged: Markdown's own size of headings, relative to the text, would go on top.
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.setCharFormat(characters);
    QTextBlockFormat block;
    block.setTopMargin(kHeadingGaps[index]);
    block.setBottomMargin(kParagraphGap);
    cursor.mergeBlockFormat(block);
}

void formatText(QTextCursor &cursor)
{
    QTextBlockFormat format;
    format.setLineHeight(kLineHeightPercent, QTextBlockFormat::ProportionalHeight);
    const bool isInList = cursor.currentList() != nullptr;
    const bool isInTable = cursor.currentTable() != nullptr;
    format.setTopMargin(0);
    format.setBottomMargin(isInTable ? 0 : isInList ? kParagraphGap / 2 : kParagraphGap);
    cursor.mergeBlockFormat(format);
}

/// A rule across the page, as three dashes make it, begins a new page.
void breakPages(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
            continue;
        }
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        format.clearProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysAfter);
        format.setLineHeight(1, QTextBlockFormat::FixedHeight);
        cursor.setBlockFormat(format);
    }
}

void formatBlocks(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        const int level = block.blockFormat().headingLevel();
        if (level > 0) {
            formatHeading(cursor, level);
        } else {
            formatText(cursor);
            formatCode(block);
        }
    }
}

void formatTable(QTextTable &table)
{
    QTextTableFormat format = table.format();
    format.setBorderCollapse(true);
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(kLineColour);
    format.setCellPadding(kCellPadding);
    format.setCellSpacing(0);
    format.setTopMargin(kTableGap / 2);
    format.setBottomMargin(kTableGap);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat header = cell.format();
        header.setBackground(kHeaderRowColour);
        cell.setFormat(header);
    }
}

void formatTables(QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            formatTable(*table);
        }
    }
}

QByteArray asPdf(QTextDocument &document)
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(document.begin().text());
        writer.setResolution(kDotsPerInch * 4);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                         kPageMargins, QPageLayout::Millimeter));
        document.print(&writer);
    }
    return pdf;
}

/// QPdfWriter takes no date. It is put in the place of that of now, with as many digits, since the
/// file tells where its parts begin.
void setDate(QByteArray &pdf, qint64 secondsSinceEpoch)
{
    const QByteArray key = "/CreationDate (D:";
    const QByteArray date = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::UTC)
                                .toString(QStringLiteral("yyyyMMddHHmmss"))
                                .toLatin1();
    const qsizetype at = pdf.indexOf(key);
    if (at >= 0 && date.size() == kDateDigits) {
        pdf.replace(at + key.size(), kDateDigits, date);
    }
}

bool write(QTextDocument &document, const QString &path)
{
    QByteArray pdf = asPdf(document);
    bool hasDate = false;
    const qint64 date = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&hasDate);
    if (hasDate) {
        setDate(pdf, date);
    }
    // A build that is stopped half-way leaves no half manual behind.
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.commit();
}

int fail(const QString &message)
{
    std::fputs(qUtf8Printable(QStringLiteral("TXManualMaker: %1\n").arg(message)), stderr);
    return EXIT_FAILURE;
}

int makeManual(const QString &from, const QString &to)
{
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(QStringLiteral("%1: %2").arg(from, file.errorString()));
    }
    QTextDocument document;
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(kTextPoints);
    document.setDefaultFont(font);
    document.setMarkdown(QString::fromUtf8(file.readAll()));
    formatBlocks(document);
    formatTables(document);
    breakPages(document);
    return write(document, to) ? EXIT_SUCCESS
                               : fail(QStringLiteral("%1 cannot be written").arg(to));
}

} // namespace

int main(int argc, char **argv)
{
    // A build has no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The same text gives the same manual, in every time zone. Qt writes fonts in the order of a
    // hash.
    qputenv("TZ", "UTC");
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        return fail(QStringLiteral("wants the Markdown file and the PDF file"));
    }
    return makeManual(arguments[1], arguments[2]);
}
