#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// A picture of the page, in sRGB and without alpha.
struct ComparedPicture
{
    /// The file's name; empty for pictures of the chart, whose names follow the language.
    QString name;
    QImage image;
};

/// What is compared on the page.
struct PictureSet
{
    /// The chart, its print and their difference, in this order; else files.
    bool isChart = false;
    /// At most kLargestCount.
    QList<ComparedPicture> pictures;
    /// The first picture, made smaller.
    QImage overview;

    static constexpr int kLargestCount = 3;
};
