#pragma once

#include <QWidget>

/// A closed padlock in the colours of the palette, centred and as large as the widget allows.
class PadlockSign final : public QWidget
{
public:
    explicit PadlockSign(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
