#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QSize>
#include <QString>

/// A picture file, read whole, or what was wrong with it. Files of every format that Qt has a
/// plug-in for.
struct PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    enum class Problem {
        None,
        NoFile, ///< something else, such as a folder, a pipe or a device; it is not opened
        Unreadable, ///< no such file, no right to read it, no picture, a broken one
        /// Would take more memory than QImageReader::allocationLimit() lets a picture. A file
        /// that does not tell its size before is Unreadable then.
        TooLarge,
    };

    /// Its path as it was given.
    QString path;
    /// Without alpha: what is transparent lies on white. Turned as the camera was held. Null with a
    /// problem.
    QImage image;
    Problem problem = Problem::None;
    /// In pixels, as far as the file told.
    QSize size;
    /// What Qt said. Only with Unreadable.
    QString reason;

    /// Reads a file. One that tells its size and is too large is not read at all. Any thread; a
    /// large file takes seconds, and what is no file does not block.
    [[nodiscard]] static PictureFile read(const QString &path);

    /// What a file dialog offers: "Pictures (*.png *.jpg ...)" with all formats that can be read,
    /// and all files.
    [[nodiscard]] static QString dialogFilter();

    /// The name without the folder, its middle left out when it is long.
    [[nodiscard]] QString shortName() const;

    /// The problem as a sentence in the language of the moment. Empty without one.
    [[nodiscard]] QString problemText() const;
};
