#pragma once

#include "TXGUICommonExport.h"

#include <QSharedPointer>
#include <QWidget>

/// The result of a comparison of two pictures as a bar: how the colour differences (∆E) of their
/// pixels are spread.
///
/// The bar's axis is the share of the pixels, from 0 % at the left, where ∆E is 0, to 100 % at the
/// right, where it is largest. The part below the ∆E limit runs from white to green, the part above
/// it from orange to dark red; marks stand at both ends, at the mean and at the limit.
///
///     bar->setLimit(3.0, 97.4);  // 97.4 % of the pixels are below the limit of 3
///     bar->setAverage(1.2, 61.0);
///     bar->setMax(8.8);
///
/// It computes nothing and checks nothing: percentages outside 0 to 100 put marks outside the bar.
/// Numbers are written with a decimal point and one digit.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDeltaGradientWidget : public QWidget
{
    Q_OBJECT

public:
    /// A bar whose values are all 0. Its height follows the font that the parent has now; without a
    /// parent, the application's.
    explicit TXDeltaGradientWidget(QWidget *parent);
    ~TXDeltaGradientWidget() override;

    /// The mean ∆E, and where it stands on the bar in percent.
    void setAverage(double delta, double percent);
    /// The ∆E limit, and the percentage of the pixels below it, which is its place on the bar.
    void setLimit(double delta, double percent);
    /// The largest ∆E; its place is always the right end.
    void setMax(double delta);

    /// 32 wide, and as high as three lines of text with their marks.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Bar;

    QSharedPointer<Bar> bar;
};
