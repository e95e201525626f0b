#pragma once

#include <QColor>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QString>

/// @file
/// Files for tests of what reads pictures. Each function returns whether the file was written.

/// A picture of one colour.
inline bool writePicture(const QString &path, const QSize &size, const QColor &colour)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(colour);
    return picture.save(path, "PNG");
}

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A bitmap that says it has this size, and ends with its header.
inline bool writeHeader(const QString &path, qint32 width, qint32 height)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    constexpr quint32 kHeaderBytes = 54;
    stream.writeRawData("BM", 2);
    stream << kHeaderBytes << quint32(0) << kHeaderBytes;
    stream << quint32(40) << width << height << quint16(1) << quint16(24);
    stream << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint32(0);
    return writeBytes(path, bytes);
}
