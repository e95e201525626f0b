#pragma once

#include <QColor>
#include <QList>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <optional>

class QLabel;
class TXColorSquareWidget;

/// The line below the pictures: which pixel is looked at, its colour in each picture, and how far
/// the first two are apart.
class PixelReadout final : public QWidget
{
    Q_OBJECT

public:
    /// A pixel as all pictures have it.
    struct Pixel
    {
        /// What is there, in the user's words: the picture under the mouse.
        QString where;
        /// In pixels of the picture, from its top left.
        QPoint place;
        /// One for each picture; an invalid one where a picture ends before.
        QList<QColor> colours;
        /// Between the first two, when both have the pixel.
        std::optional<double> delta;
    };

    explicit PixelReadout(QWidget *parent = nullptr);

    /// Sets how the pictures are called, at most PictureSet::kLargestCount of them, and forgets the
    /// pixel.
    void setNames(const QStringList &names);

    void showPixel(const Pixel &pixel);

    /// Shows that there is no pixel to look at.
    void clear();

protected:
    void changeEvent(QEvent *event) override;

private:
    /// A swatch with the name of the picture over the colour in letters.
    struct Cell
    {
        TXColorSquareWidget *swatch;
        QLabel *name;
        QLabel *colour;
        QWidget *whole;
    };

    [[nodiscard]] Cell makeCell();
    void setUpLayout();
    void showState();
    [[nodiscard]] QString placeText(const QPoint &place) const;
    void showColour(const Cell &cell, const QColor &colour) const;

    std::optional<Pixel> pixel;
    QLabel *whereLabel;
    QLabel *placeLabel;
    QList<Cell> cells;
    QLabel *deltaNameLabel;
    QLabel *deltaLabel;
};
