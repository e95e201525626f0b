#include "PictureFile.h"

#include "RegularFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QPainter>
#include <QPixelFormat>

#include <algorithm>

namespace {

constexpr int kBitsPerByte = 8;
constexpr qint64 kBytesPerMegabyte = qint64(1024) * 1024;
/// What a picture takes that is shown.
constexpr int kShownBits = 32;
constexpr int kLongName = 40;

/// In megabytes, begun ones counted as whole.
qint64 megabytesOf(const QSize &size, QImage::Format format)
{
    const int bits = format == QImage::Format_Invalid
        ? kShownBits
        : std::max(kShownBits, int(QImage::toPixelFormat(format).bitsPerPixel()));
    const qint64 bytes = qint64(size.width()) * size.height() * bits / kBitsPerByte;
    return (bytes + kBytesPerMegabyte - 1) / kBytesPerMegabyte;
}

/// The reader itself would remark on it on the console.
bool isTooLarge(const QImageReader &reader, const QSize &size)
{
    const int limit = QImageReader::allocationLimit();
    return limit > 0 && size.isValid() && megabytesOf(size, reader.imageFormat()) > limit;
}

QImage withoutAlpha(const QImage &image)
{
    if (!image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter painter(&flat);
    painter.drawImage(flat.rect(), image, image.rect());
    return flat;
}

} // namespace

PictureFile PictureFile::read(const QString &path)
{
    PictureFile file;
    file.path = path;
    if (isNoRegularFile(path)) {
        file.problem = Problem::NoFile;
        return file;
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    // A file may have a suffix that is not its own.
    reader.setDecideFormatFromContent(true);
    file.size = reader.size();
    if (isTooLarge(reader, file.size)) {
        file.problem = Problem::TooLarge;
        return file;
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        file.problem = Problem::Unreadable;
        file.reason = reader.errorString();
        return file;
    }
    file.image = withoutAlpha(image);
    file.size = image.size();
    return file;
}

QString PictureFile::dialogFilter()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats) {
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    }
    return tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' '))) + QStringLiteral(";;")
        + tr("All files (*)");
}

QString PictureFile::shortName() const
{
    const QString name = QFileInfo(path).fileName();
    if (name.size() <= kLongName) {
        return name;
    }
    return name.left(kLongName / 2) + QStringLiteral("…") + name.right(kLongName / 2 - 1);
}

QString PictureFile::problemText() const
{
    const QLocale locale;
    switch (problem) {
    case Problem::NoFile:
        return tr("\"%1\" is no file.").arg(shortName());
    case Problem::Unreadable:
        return tr("\"%1\" cannot be read: %2.").arg(shortName(), reason);
    case Problem::TooLarge:
        return tr("\"%1\" is too large: %2 × %3 pixels, which take more than %4 MB of memory.")
            .arg(shortName(), locale.toString(size.width()), locale.toString(size.height()),
                 locale.toString(QImageReader::allocationLimit()));
    case Problem::None:
        break;
    }
    return {};
}
