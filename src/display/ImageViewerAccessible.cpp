#include "ImageViewerAccessible.h"

#include "AccessibleDescription.h"
#include "ColourName.h"
#include "ImageView.h"

#include <QColor>
#include <QImage>
#include <QKeySequence>
#include <QLocale>
#include <QPixmap>

#include <optional>
#include <utility>

namespace {

constexpr int kDigitsOfPercentage = 4;

QString fitAction()
{
    return QStringLiteral("Fit");
}

QString keyText(Qt::Key key)
{
    return QKeySequence(key).toString(QKeySequence::NativeText);
}

/// Copies the one pixel, whatever the size of the picture.
QString colourAt(const QPixmap &pixmap, const QPoint &pixel)
{
    if (!pixmap.rect().contains(pixel)) {
        return TXImageViewer::tr("none");
    }
    const QImage copy = pixmap.copy(QRect(pixel, QSize(1, 1))).toImage();
    return ColourName::of(copy.pixelColor(0, 0));
}

} // namespace

ImageViewerAccessible::ImageViewerAccessible(TXImageViewer *viewer)
    : QAccessibleWidget(viewer, QAccessible::Graphic)
{ }

void ImageViewerAccessible::tellOfScale(TXImageViewer &viewer)
{
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(&viewer, viewer.scale());
        QAccessible::updateAccessibility(&event);
    }
    tellOfText(viewer);
}

void ImageViewerAccessible::tellOfText(TXImageViewer &viewer)
{
    AccessibleDescription::tellOfChange(viewer);
}

QString ImageViewerAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        return valueText();
    }
    if (kind == QAccessible::Description) {
        return AccessibleDescription::withValue(*viewer(), valueText());
    }
    const QString text = QAccessibleWidget::text(kind);
    const bool isNameless = kind == QAccessible::Name && text.isEmpty();
    return isNameless ? TXImageViewer::tr("Image viewer") : text;
}

void *ImageViewerAccessible::interface_cast(QAccessible::InterfaceType kind)
{
    if (kind == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(kind);
}

QVariant ImageViewerAccessible::currentValue() const
{
    return viewer()->scale();
}

void ImageViewerAccessible::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    if (isNumber && canZoom()) {
        viewer()->scale(wanted, TXImageViewer::Absolute);
    }
}

QVariant ImageViewerAccessible::minimumValue() const
{
    return viewer()->view->minScale;
}

QVariant ImageViewerAccessible::maximumValue() const
{
    return viewer()->view->maxScale;
}

QVariant ImageViewerAccessible::minimumStepSize() const
{
    return 0.0;
}

QStringList ImageViewerAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (canZoom()) {
        names << increaseAction() << decreaseAction() << fitAction();
    }
    return names;
}

QString ImageViewerAccessible::localizedActionName(const QString &name) const
{
    if (name == increaseAction()) {
        return TXImageViewer::tr("Zoom in");
    }
    if (name == decreaseAction()) {
        return TXImageViewer::tr("Zoom out");
    }
    if (name == fitAction()) {
        return TXImageViewer::tr("Fit");
    }
    return QAccessibleWidget::localizedActionName(name);
}

void ImageViewerAccessible::doAction(const QString &name)
{
    if (!actionNames().contains(name)) {
        return;
    }
    if (name == increaseAction()) {
        viewer()->zoomBy(TXImageViewer::View::kZoomStep);
    } else if (name == decreaseAction()) {
        viewer()->zoomBy(1.0 / TXImageViewer::View::kZoomStep);
    } else if (name == fitAction()) {
        viewer()->scale(TXImageViewer::ScaleFit);
    } else {
        QAccessibleWidget::doAction(name);
    }
}

QStringList ImageViewerAccessible::keyBindingsForAction(const QString &name) const
{
    if (name == increaseAction()) {
        return {keyText(Qt::Key_Plus)};
    }
    if (name == decreaseAction()) {
        return {keyText(Qt::Key_Minus)};
    }
    if (name == fitAction()) {
        return {keyText(Qt::Key_Home), keyText(Qt::Key_0)};
    }
    return QAccessibleWidget::keyBindingsForAction(name);
}

TXImageViewer *ImageViewerAccessible::viewer() const
{
    return static_cast<TXImageViewer *>(widget());
}

bool ImageViewerAccessible::canZoom() const
{
    return viewer()->isEnabled() && viewer()->isZoomedByUser();
}

QString ImageViewerAccessible::valueText() const
{
    const TXImageViewer::View &view = *viewer()->view;
    if (view.pixmaps.isEmpty() || view.imageRect.isEmpty()) {
        return TXImageViewer::tr("No picture");
    }
    const QString number = QLocale().toString(view.scale * 100.0, 'g', kDigitsOfPercentage);
    const QString percentage = TXImageViewer::tr("%1 %").arg(number);
    const std::optional<QPoint> pixel = view.pixelUnderMouse(viewer()->size());
    if (!pixel) {
        return percentage;
    }
    return TXImageViewer::tr("%1, pixel %2, %3: %4")
        .arg(percentage, QString::number(pixel->x()), QString::number(pixel->y()),
             coloursAt(*pixel));
}

QString ImageViewerAccessible::coloursAt(const QPoint &pixel) const
{
    QStringList colours;
    for (const QPixmap &pixmap : std::as_const(viewer()->view->pixmaps)) {
        colours.append(colourAt(pixmap, pixel));
    }
    return colours.join(QStringLiteral(", "));
}
