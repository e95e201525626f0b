#pragma once

#include "TXDeltaGradientWidget.h"

#include <QFontMetrics>
#include <QPalette>
#include <QWidget>

#include <memory>

/// A bar in a parent, and where its rows stand.
struct DeltaBar
{
    static constexpr int kWidth = 401;

    explicit DeltaBar(int width = kWidth)
        : widget(new TXDeltaGradientWidget(&parent))
    {
        parent.setPalette(QPalette(Qt::white));
        widget->resize(width, widget->sizeHint().height());
    }

    /// In the font that the rows are made for.
    [[nodiscard]] int textHeight() const { return QFontMetrics(parent.font()).height(); }
    [[nodiscard]] int valueTop() const { return textHeight() + 4; }
    [[nodiscard]] int markTop() const { return 2 * textHeight() + 8; }
    [[nodiscard]] int gradientTop() const { return markTop() + 8; }
    /// A row of pixels within the bar that no text touches.
    [[nodiscard]] int plainBarRow() const { return gradientTop() + 1; }

    QWidget parent;
    /// A child of the parent.
    TXDeltaGradientWidget *widget;
};
