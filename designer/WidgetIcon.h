#pragma once

#include <QIconEngine>

class IconPainter;

/// Paints the icon of a widget anew at every size and in the colours of the moment.
class WidgetIcon : public QIconEngine
{
public:
    /// The function paints the picture; it is not null.
    explicit WidgetIcon(void (*picture)(IconPainter &));

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;

private:
    void (*picture)(IconPainter &);
};
