#pragma once

#include "GalleryPage.h"
#include "PictureSet.h"
#include "PixelReadout.h"

#include <QPoint>
#include <QStringList>

class ImageViewBar;
class OverviewPanel;
class PictureWork;
class PicturesPanel;
class TXImageViewer;

/// Pictures that are compared side by side: a chart, its print and how they differ, or files of the
/// user's choice.
class ImagesPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ImagesPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override;
    /// Sees that the pictures may have moved.
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void retranslate() override;

private slots:
    void showChart();
    void openFiles(const QStringList &paths);
    void workEnded();
    void showChosen();
    void setOverlayShown(bool isShown);
    void setMarkerShown(bool isShown);
    void dropTroubles();
    void startAtMiddle();
    void lookAtMiddle();
    void hover(const QPointF &localPos, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers, bool isInside, int zoneIndex, QPoint pixmapCoord);

private:
    void setUpViewer();
    void setUpLayout();
    void begin();
    void showSet();
    void showExample();
    void lookAt(int picture, const QPoint &place);
    void lookAway();
    void showPixel();
    void showOverlay();
    void showMessage();
    [[nodiscard]] bool isBehindCorner(const QPointF &place, int zone) const;
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] QString placeName(int picture, const QPoint &place) const;
    [[nodiscard]] PixelReadout::Pixel pixelAt(int picture, const QPoint &place) const;
    [[nodiscard]] QString setText() const;
    [[nodiscard]] QString sizesText() const;
    [[nodiscard]] QString troublesText() const;

    PictureWork *work;
    ImageViewBar *bar;
    TXImageViewer *viewer;
    PixelReadout *readout;
    PicturesPanel *picturesPanel;
    OverviewPanel *overviewPanel;
    PictureSet set;
    /// The picture that is looked at, or -1, and where.
    int lookedAt = -1;
    QPoint lookedPlace;
    /// Whether that is to stay the middle of the first picture's zone.
    bool isMiddleLookedAt = false;
    /// How many files were chosen the last time that reading them succeeded.
    qsizetype chosenFiles = 0;
    qsizetype wantedFiles = 0;
    /// Whether the message is on files that could not be read.
    bool areTroublesTold = false;
    bool isOverlayShown = true;
    bool isExampleWanted = false;
};
