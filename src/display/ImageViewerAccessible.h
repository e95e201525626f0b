#pragma once

#include "TXImageViewer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPoint>
#include <QStringList>
#include <QVariant>

/// What assistive tools see of an image viewer: a graphic whose value is the scale.
///
/// The text of the value tells the scale in percent, and when the mouse is in a picture the colour
/// of that pixel in each: "50 %, pixel 120, 80: #a0b0c0, #a0b1c0". It is part of the description as
/// well, since not all platforms hand on the text of a value. It is made when it is asked for; its
/// cost grows with the number of pictures, not with their sizes.
///
/// Thread: the GUI thread.
class ImageViewerAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// Made by Qt for a viewer, which outlives it.
    explicit ImageViewerAccessible(TXImageViewer *viewer);

    /// Tells assistive tools, if any listen, that the scale is another, and with it the text.
    static void tellOfScale(TXImageViewer &viewer);
    /// Tells assistive tools, if any listen, that the text is another at the same scale.
    static void tellOfText(TXImageViewer &viewer);

    /// The name is the viewer's accessibleName() or, without one, general. The value is "No
    /// picture" as long as none can be seen. The description is the value, on a line after the
    /// viewer's accessibleDescription() if it has one, and before its tool tip else.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    /// Adds the value to the interfaces of a widget.
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType kind) override;

    /// The scale, a double.
    [[nodiscard]] QVariant currentValue() const override;
    /// As TXImageViewer::scale(value, Absolute). Does nothing for what is not a number, in a
    /// disabled viewer, and where the user must not zoom.
    void setCurrentValue(const QVariant &value) override;
    /// The limits of the scale; the lower one is negative when the user must not zoom.
    [[nodiscard]] QVariant minimumValue() const override;
    /// As minimumValue().
    [[nodiscard]] QVariant maximumValue() const override;
    /// 0: there is no smallest step.
    [[nodiscard]] QVariant minimumStepSize() const override;

    /// To zoom in, to zoom out and to fit, unless the viewer is disabled or zooming is turned off;
    /// and what any widget can.
    [[nodiscard]] QStringList actionNames() const override;
    /// What the user reads for an action.
    [[nodiscard]] QString localizedActionName(const QString &name) const override;
    /// Does what the keys do; names that actionNames() does not hold do nothing.
    void doAction(const QString &name) override;
    /// The keys of an action.
    [[nodiscard]] QStringList keyBindingsForAction(const QString &name) const override;

private:
    [[nodiscard]] TXImageViewer *viewer() const;
    [[nodiscard]] bool canZoom() const;
    [[nodiscard]] QString valueText() const;
    [[nodiscard]] QString coloursAt(const QPoint &pixel) const;
};
