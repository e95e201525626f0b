#pragma once

#include "PixelProbe.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPalette>

/// What the tests of the windows about network drives need to look at them.
namespace DriveFormTest {

/// Darker than this, in grey, are letters on light colours only, and not frames.
constexpr int kLetterGrey = 90;

/// Where the windows look for their icon.
inline QString iconFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/Images/remote_folder.png"));
}

/// The colours of a dark desktop.
inline QPalette darkPalette()
{
    const QColor text(0xe3, 0xe6, 0xeb);
    QPalette palette(QColor(0x2f, 0x34, 0x3d), QColor(0x22, 0x25, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x1a, 0x1d, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x1f, 0x22, 0x28));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    return palette;
}

/// The part of the picture in which there are letters, in its pixels.
inline QRect inkIn(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < kLetterGrey) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace DriveFormTest
