#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QPainter;

/// What the page paints over the pictures of a viewer, a function for TXImageViewer::setOverlay():
/// in each zone a caption, and on those of the chart outlines and numbers of the patches.
class PictureOverlay
{
public:
    /// Without a caption for a zone it gets none.
    PictureOverlay(const QWidget *viewer, QStringList captions, bool isChart);

    void operator()(QPainter *painter, int zone, bool isInPicture, QPointF origin,
                    double scale) const;

private:
    void paintPatches(QPainter *painter) const;
    void paintCaption(QPainter *painter, int zone) const;

    void makeNumbers();

    QPointer<const QWidget> viewer;
    QStringList captions;
    bool isChart;
    /// In pixels of the picture: the numbers, and a border around them.
    QPainterPath numbers;
    QPainterPath border;
};
