#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>
#include <QMargins>
#include <QSize>

/// A label for a picture that keeps its proportions at any size of the label: the margins around
/// the contents take up what is too wide or too high.
///
/// Call setScaledContents(true) for a picture that grows and shrinks with the label; it is off at
/// first, as in QLabel. To zoom and compare pictures take TXImageViewer.
///
/// The margins take no part in the hints for layouts, so that a label which was made larger can be
/// made smaller again.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXAspectRatioPixmapLabel : public QLabel
{
    Q_OBJECT
    /// That of QLabel, but written by setPixmap() of this class.
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)

public:
    /// A label without a picture.
    explicit TXAspectRatioPixmapLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// Shows the picture; a null pixmap clears the label and keeps the margins. Hides the function
    /// of QLabel, which is not virtual: called through that one, the margins follow the picture
    /// before.
    void setPixmap(const QPixmap &pixmap);

    /// Sets the margins for the present size: equal ones on the two sides where there is too much
    /// room, rounded down and at most the 32767 that a QWidget can keep, none on the others. Does
    /// nothing without a picture or in a label without width or height.
    void updateMargins();

    /// That of QLabel, without the margins that updateMargins() has set; so the size of the
    /// picture in device-independent pixels.
    [[nodiscard]] QSize sizeHint() const override;
    /// That of QLabel, as sizeHint().
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// Calls updateMargins().
    void resizeEvent(QResizeEvent *event) override;

private:
    void setFillingMargins(int horizontal, int vertical);
    [[nodiscard]] QSize withoutFilling(const QSize &hint) const;

    int pixmapWidth = 0;
    int pixmapHeight = 0;
    /// The margins that updateMargins() has set last.
    QMargins fillingMargins;
};
