#pragma once

#include <QWidget>

/// What the colours of a difference picture mean: a bar of them with numbers below.
class DifferenceLegend final : public QWidget
{
    Q_OBJECT

public:
    explicit DifferenceLegend(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void retranslate();
    [[nodiscard]] QRect barRect() const;
};
