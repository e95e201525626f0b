#pragma once

#include "QSingleItemSquareLayout.h"

#include <QSpacerItem>
#include <QWidget>

// What the tests of the square layout share.

/// A widget filled with red, of no least size.
class RedWidget : public QWidget
{
public:
    explicit RedWidget(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setAutoFillBackground(true);
        setPalette(QPalette(Qt::red));
    }
};

/// An item with a least size of its own, which counts its lives.
class CountedItem : public QSpacerItem
{
public:
    CountedItem()
        : QSpacerItem(0, 0)
    {
        ++alive;
    }
    ~CountedItem() override { --alive; }
    CountedItem(const CountedItem &) = delete;
    CountedItem &operator=(const CountedItem &) = delete;

    [[nodiscard]] QSize minimumSize() const override { return {30, 20}; }
    [[nodiscard]] QSize sizeHint() const override { return {300, 200}; }

    static inline int alive = 0;
};
