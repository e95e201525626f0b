#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QWidget>

#include <functional>
#include <memory>

class ImageViewerAccessible;

/// Compares pictures of one size side by side: each has a zone of its own, from left to right, and
/// all show the same part at the same scale.
///
///     viewer->setPixmaps({original, print});
///     viewer->setMouseMarker(crosshair, QPoint(-1, -1));
///     connect(viewer, &TXImageViewer::hover, this, &Window::showColourUnderMouse);
///
/// Dragging with any button moves the pictures, until a button is released or the viewer is hidden
/// or disabled. The wheel zooms by two: in when it is turned away from the user, else out. With the
/// focus (Tab or a click; Qt::StrongFocus) the keys are:
/// - arrows show what lies a tenth of a zone further that way, with Control a viewer pixel; they
///   stop at the edges of the pictures;
/// - + and = zoom in by two, - zooms out by two, as the wheel does;
/// - 0 and Home fit, as scale(ScaleFit); 1 is scale(ScaleNatural).
///
/// Other keys, and these with Alt or Meta, or but for the arrows with Control, go on to the parent.
/// So do the arrows while there are no pictures, and what zooms when the wheel is turned off.
///
/// Assistive tools see a graphic whose value is the scale, which they may set; its text tells the
/// scale in percent and the colours of the pixel under the mouse in each picture. Its name is
/// accessibleName(), or a general one.
///
/// Sizes and places are device-independent pixels. "Picture pixels" count from the top left of the
/// first picture, by whose size all are laid out; pictures of other sizes start at the same place
/// and may be cut off. They are the pixels that a pixmap has, whatever its device pixel ratio: at
/// the scale 1 a pixmap for screens of twice the pixels is shown at twice its usual size.
///
/// To show one picture in a form, a QLabel or TXAspectRatioPixmapLabel will do; for scenes of many
/// things take a QGraphicsView.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXImageViewer : public QWidget
{
    Q_OBJECT

public:
    /// Scales that follow from the sizes of the viewer and the first picture. Any other number
    /// means ScaleNatural.
    enum Scaling : int {
        /// The whole first picture fits into its zone.
        ScaleFit,
        /// The part of the viewer's width that a zone has: 0.5 with two pictures.
        ScaleShare,
        /// 1.0.
        ScaleNatural,
    };
    Q_ENUM(Scaling)

    /// What a factor is to be. Any other number means Relative.
    enum Relation : int {
        /// The new scale itself.
        Absolute,
        /// Multiplied with the present scale.
        Relative,
    };
    Q_ENUM(Relation)

    /// What a host paints over each zone: painter, number of the zone, whether the painter stands
    /// in picture pixels (true) or in the viewer's (false), the place of the picture's top left
    /// corner in the viewer, and the scale. Called twice a zone at each paint, clipped to the zone.
    /// Each zone begins with a fresh painter: what the first call sets, such as a pen, holds for
    /// the second in the same zone, but for the transform, and not for the next zone. The painter
    /// may be left in any state, but each save() needs its restore() and no restore() may come
    /// without one; in graphics scenes and where a host renders the viewer all zones share the
    /// host's painter. An overlay must not end the painter nor delete the viewer. It may change the
    /// viewer; this paint still shows what was there before.
    using Overlay = std::function<void(QPainter *, int, bool, QPointF, double)>;

    /// A viewer without pictures.
    explicit TXImageViewer(QWidget *parent = nullptr);
    ~TXImageViewer() override;

    /// The pictures, one a zone; empty at first.
    [[nodiscard]] QList<QPixmap> pixmaps() const;
    /// Shows one picture; see setPixmaps().
    void setPixmap(const QPixmap &pixmap);
    /// Shows pictures in their order. When the last scaling was ScaleFit or ScaleShare, it is done
    /// again; so the wheel's scale is lost. Otherwise they keep the scale, and are fitted if there
    /// is none yet or an infinite one. The position stays. An empty list shows nothing; on a new
    /// viewer, it makes the scale and its upper limit infinite.
    void setPixmaps(const QList<QPixmap> &pixmaps);

    /// Viewer pixels by picture pixel; -1 before the first picture. May be infinite, never
    /// not-a-number.
    [[nodiscard]] double scale() const;
    /// Sets the scale to the factor (Absolute) or the scale times the factor (Relative), held to
    /// the limits. Emits scaleChanged(), also when it stays the same. Does nothing at all when the
    /// factor or the product is not a number.
    void scale(double factor, Relation relation);
    /// Sets the scale of scaleHint(), for which the limits give way. ScaleFit and ScaleShare hold
    /// when the size or the pictures change, until another scale is set by a function; the wheel
    /// does not end them. Emits scaleChanged(). A hint that is not a number leaves the scale as it
    /// is, until the next change of size or pictures.
    void scale(Scaling scaling);
    /// The scale that this scaling comes to now. Without a first picture that has a size, ScaleFit
    /// is infinite. Not a number where two lengths of 0 are divided: ScaleShare in a viewer without
    /// width, and ScaleFit of a null picture in one without either length.
    [[nodiscard]] double scaleHint(Scaling scaling);
    /// The limits, in any order; 1/128 and 16 at first. A scale outside moves to the nearer limit,
    /// with scaleChanged(); the -1 before the first picture as well, which is then not fitted by
    /// itself. A negative limit turns zooming by the wheel and keys off. Limits may be 0 or
    /// infinite; one that is not a number leaves both as they are.
    void setScaleLimits(double a, double b);

    /// How far the picture's centre stands from that of its zone, in picture pixels.
    [[nodiscard]] QPointF position() const;
    /// Moves the pictures. A position that would leave a gap beside a picture, or move one that is
    /// smaller than its zone, is brought back when the viewer paints. A coordinate that is not a
    /// number stays as it was.
    void setPosition(QPointF position);

    /// A small picture that is drawn in all zones at once where the mouse is in one of them, with
    /// its hot spot there. A negative coordinate of the hot spot means half the marker's length,
    /// rounded down. A null pixmap takes the marker away. Lengths are device-independent pixels: a
    /// marker with a device pixel ratio is drawn as large as a label shows it.
    void setMouseMarker(QPixmap marker, QPoint hotSpot);

    /// Sets what is painted over the zones; an empty function takes it away.
    void setOverlay(Overlay overlay);

signals:
    /// The mouse was moved, pressed or released over the viewer, or has left it. `localPos` is in
    /// viewer pixels with their fractions; the rest is worked out for the nearest whole one.
    /// `zoneIndex` is -1 outside of all zones, on a border that of the left one; `pixmapCoord` in
    /// picture pixels, (0, 0) outside of all zones, and at most what an int holds. `isInside` tells
    /// whether it lies in the first picture, of which the last row and column count as outside.
    /// On leaving: (0, 0), no buttons, no modifiers, not inside, zone -1, pixel (0, 0).
    /// The viewer may be deleted by a slot of it.
    void hover(const QPointF &localPos, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers, bool isInside, int zoneIndex, QPoint pixmapCoord);

    /// The scale was set, by a function, the wheel, a key or a change of size; not always to
    /// another one.
    void scaleChanged(float scale);

protected:
    /// Zooms, if the scale is free to the user.
    void wheelEvent(QWheelEvent *event) override;
    /// Emits hover() for a mouse that has left.
    void leaveEvent(QEvent *event) override;
    /// Begins to drag the pictures; emits hover().
    void mousePressEvent(QMouseEvent *event) override;
    /// Drags the pictures; emits hover().
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Ends the drag; emits hover().
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Fits the pictures in again where the scale is one that follows the size.
    void resizeEvent(QResizeEvent *event) override;
    /// Paints the pictures, zone by zone, and a frame for the focus by keyboard.
    void paintEvent(QPaintEvent *event) override;
    /// Ends a drag, and gives back what was kept for painting.
    void hideEvent(QHideEvent *event) override;
    /// Ends a drag when the viewer is disabled.
    void changeEvent(QEvent *event) override;
    /// Moves the pictures and zooms, by the keys named above.
    void keyPressEvent(QKeyEvent *event) override;

    /// What a viewer knows; of no use outside of the library.
    struct View;

private:
    friend class ImageViewerAccessible;
    class Painting;

    [[nodiscard]] bool isZoomedByUser() const;
    void showChange();
    void showAtScale(double scale);
    void zoomBy(double factor);
    void repeatScaling();
    [[nodiscard]] bool panByKey(const QKeyEvent &event);
    [[nodiscard]] bool zoomByKey(const QKeyEvent &event);
    void updateMarker();
    void endDrag();
    void endLostDrag();
    void emitHover(const QMouseEvent &event);
    void tellOfPixel();

    std::unique_ptr<View> view;
};
