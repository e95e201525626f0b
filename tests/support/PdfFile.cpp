#include "PdfFile.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

constexpr int kToolMilliseconds = 60'000;
constexpr double kPointsPerInch = 72.0;

const QString kEncodingOption = QStringLiteral("-enc");
const QString kUtf8 = QStringLiteral("UTF-8");
const QString kFirstPageOption = QStringLiteral("-f");
const QString kLastPageOption = QStringLiteral("-l");
const QString kStandardOutput = QStringLiteral("-");

QStringList optionsForPage(int page)
{
    return {kFirstPageOption, QString::number(page), kLastPageOption, QString::number(page)};
}

/// Why a finished tool's output is not to be trusted; empty when it is.
QString complaintOf(QProcess &process)
{
    const QString complaint = QString::fromUtf8(process.readAllStandardError()).trimmed();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return complaint;
    }
    return QStringLiteral("exit code %1 %2").arg(process.exitCode()).arg(complaint).trimmed();
}

double numberOf(const QXmlStreamAttributes &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).toDouble();
}

QRectF boxOf(const QXmlStreamAttributes &word)
{
    return {QPointF(numberOf(word, "xMin"), numberOf(word, "yMin")),
            QPointF(numberOf(word, "xMax"), numberOf(word, "yMax"))};
}

/// The words of each page in the XHTML that pdftotext writes, up to where that is sound.
QList<QList<PdfFile::Word>> wordsOf(QXmlStreamReader &reader)
{
    QList<QList<PdfFile::Word>> pages;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"page") {
            pages.emplace_back();
        } else if (reader.name() == u"word" && !pages.isEmpty()) {
            const QRectF box = boxOf(reader.attributes());
            pages.last().append({reader.readElementText(), box});
        }
    }
    return pages;
}

/// The fields of a line, blanks as separators.
QStringList fieldsOf(const QString &line)
{
    return line.simplified().split(u' ');
}

/// What follows "Name:" and its blanks in the lines of pdfinfo.
QString valueOf(const QStringList &lines, const QString &name)
{
    constexpr int kColumnOfValues = 17;
    for (const QString &line : lines) {
        if (line.startsWith(name + u':')) {
            return line.mid(kColumnOfValues);
        }
    }
    return {};
}

QList<QSizeF> pageSizesOf(const QStringList &lines)
{
    static const QRegularExpression size(
        QStringLiteral("^Page +[0-9]+ size: +([0-9.]+) x ([0-9.]+) pts"));
    QList<QSizeF> sizes;
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = size.match(line);
        if (match.hasMatch()) {
            sizes.append({match.captured(1).toDouble(), match.captured(2).toDouble()});
        }
    }
    return sizes;
}

} // namespace

QSizeF PdfFile::Picture::size() const
{
    return {pixels.width() * kPointsPerInch / dotsPerInch.width(),
            pixels.height() * kPointsPerInch / dotsPerInch.height()};
}

PdfFile::PdfFile(const QString &fileName)
    : fileName(QFileInfo(fileName).absoluteFilePath())
{ }

QString PdfFile::errorText() const
{
    return error;
}

PdfFile::Information PdfFile::information()
{
    const QStringList found = lines(QStringLiteral("pdfinfo"),
                                    {kEncodingOption, kUtf8, kFirstPageOption, QStringLiteral("1"),
                                     kLastPageOption, QStringLiteral("-1")});
    return {valueOf(found, QStringLiteral("Title")), valueOf(found, QStringLiteral("Author")),
            pageSizesOf(found)};
}

QList<QList<PdfFile::Word>> PdfFile::words()
{
    const QByteArray xhtml =
        output(QStringLiteral("pdftotext"),
               {QStringLiteral("-bbox"), kEncodingOption, kUtf8, fileName, kStandardOutput});
    if (xhtml.isEmpty()) {
        return {};
    }
    // Not from its start: poppler writes some titles there in a way that is no UTF-8.
    QXmlStreamReader reader(xhtml.mid(xhtml.indexOf("<body>")).replace("</html>", ""));
    const QList<QList<Word>> pages = wordsOf(reader);
    if (reader.hasError()) {
        setError(QStringLiteral("pdftotext -bbox: ") + reader.errorString());
        return {};
    }
    return pages;
}

QStringList PdfFile::pageTexts()
{
    const QString text = QString::fromUtf8(
        output(QStringLiteral("pdftotext"),
               {QStringLiteral("-layout"), kEncodingOption, kUtf8, fileName, kStandardOutput}));
    QStringList pages = text.split(u'\f');
    // Each page ends with a form feed, so that nothing stands behind the last one.
    pages.removeLast();
    return pages;
}

QList<PdfFile::Font> PdfFile::fonts()
{
    constexpr int kFieldsFromEmbedded = 5;
    QList<Font> result;
    const QStringList rows = lines(QStringLiteral("pdffonts"), {}).mid(2);
    for (const QString &row : rows) {
        // From the end, as names and types may hold blanks: embedded, subset, Unicode, object, ID.
        const QStringList fields = fieldsOf(row);
        const qsizetype embedded = fields.size() - kFieldsFromEmbedded;
        if (embedded < 1) {
            setError(QStringLiteral("pdffonts: ") + row);
            return {};
        }
        result.append({fields[0], fields[embedded] == u"yes", fields[embedded + 2] == u"yes"});
    }
    return result;
}

QList<PdfFile::Picture> PdfFile::pictures()
{
    constexpr int kNumberOfFields = 16;
    QList<Picture> result;
    const QStringList rows = lines(QStringLiteral("pdfimages"), {QStringLiteral("-list")}).mid(2);
    for (const QString &row : rows) {
        const QStringList fields = fieldsOf(row);
        if (fields.size() != kNumberOfFields) {
            setError(QStringLiteral("pdfimages: ") + row);
            return {};
        }
        result.append({fields[0].toInt(),
                       fields[2],
                       {fields[3].toInt(), fields[4].toInt()},
                       {fields[12].toInt(), fields[13].toInt()},
                       fields[8],
                       fields[10].toInt()});
    }
    return result;
}

QList<QImage> PdfFile::pixelsOfPictures(int page)
{
    const QTemporaryDir folder;
    const QStringList options = optionsForPage(page)
        << QStringLiteral("-png") << fileName << folder.filePath(QStringLiteral("picture"));
    if (!run(QStringLiteral("pdfimages"), options)) {
        return {};
    }
    QList<QImage> images;
    const QStringList names = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        images.append(QImage(folder.filePath(name)));
    }
    return images;
}

QImage PdfFile::rendered(int page, double dotsPerInch)
{
    return imageFrom(optionsForPage(page)
                     << QStringLiteral("-r") << QString::number(dotsPerInch, 'f'));
}

QImage PdfFile::rendered(int page, double dotsPerInch, const QRect &pixels)
{
    return imageFrom(optionsForPage(page)
                     << QStringLiteral("-r") << QString::number(dotsPerInch, 'f')
                     << QStringLiteral("-x") << QString::number(pixels.x()) << QStringLiteral("-y")
                     << QString::number(pixels.y()) << QStringLiteral("-W")
                     << QString::number(pixels.width()) << QStringLiteral("-H")
                     << QString::number(pixels.height()));
}

QImage PdfFile::imageFrom(const QStringList &options)
{
    const QByteArray pixels = output(QStringLiteral("pdftoppm"), QStringList(options) << fileName);
    QImage image;
    if (!pixels.isEmpty() && !image.loadFromData(pixels, "PPM")) {
        setError(QStringLiteral("pdftoppm: no picture in its output"));
    }
    return image;
}

QStringList PdfFile::lines(const QString &tool, const QStringList &options)
{
    const QString text = QString::fromUtf8(output(tool, QStringList(options) << fileName));
    return text.split(u'\n', Qt::SkipEmptyParts);
}

QByteArray PdfFile::output(const QString &tool, const QStringList &arguments)
{
    return run(tool, arguments).value_or(QByteArray());
}

std::optional<QByteArray> PdfFile::run(const QString &tool, const QStringList &arguments)
{
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty()) {
        setError(tool + QStringLiteral(" is not installed; it belongs to poppler-utils"));
        return std::nullopt;
    }
    QProcess process;
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(kToolMilliseconds)) {
        setError(tool + QStringLiteral(": ") + process.errorString());
        return std::nullopt;
    }
    const QString complaint = complaintOf(process);
    if (!complaint.isEmpty()) {
        setError(tool + QStringLiteral(": ") + complaint);
        return std::nullopt;
    }
    return process.readAllStandardOutput();
}

void PdfFile::setError(const QString &text)
{
    if (error.isEmpty()) {
        error = text;
    }
}
