#pragma once

#include "TXGUICommonExport.h"

#include <QSharedPointer>
#include <QString>
#include <QWidget>

class QPainter;

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
/// It computes nothing and checks nothing. A percentage outside 0 to 100 puts its mark outside the
/// widget, and one that is not a number is painted at 0. The limit's value keeps within the bar,
/// the mean's goes where its mark goes. Numbers are written with a decimal point and one digit,
/// whatever they are: "-0.0", "inf", "nan".
///
/// Captions and values have the palette's text colour, and the values stand on a light ground in
/// every palette: give the bar a light palette of its own where the others is dark. Nothing is
/// painted behind the captions.
///
/// The Tab key comes to the bar, for those who have it read to them: its accessible value says the
/// numbers in words, and so does the description of a bar that has no accessible description. The
/// name of the accessible interface is the accessible name, or a general one.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXDeltaGradientWidget : public QWidget
{
    Q_OBJECT

public:
    /// A bar whose values are all 0. Its rows are made for the font that the parent has now;
    /// without a parent, for the application's.
    explicit TXDeltaGradientWidget(QWidget *parent);
    ~TXDeltaGradientWidget() override;

    /// The mean ∆E, and where it stands on the bar in percent.
    void setAverage(double delta, double percent);
    /// The ∆E limit, and the percentage of the pixels below it, which is its place on the bar. The
    /// column of pixels at that place belongs to the part below, also at 0 %.
    void setLimit(double delta, double percent);
    /// The largest ∆E; its place is always the right end.
    void setMax(double delta);

    /// 32 wide, and as high as three lines of text with their marks.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// Paints captions, values, marks and bar.
    void paintEvent(QPaintEvent *event) override;

private:
    friend class DeltaGradientAccessible;
    struct Bar;

    [[nodiscard]] QString valuesInWords() const;
    void valuesChanged();
    void paintCaptions(QPainter &painter, const QRect &row) const;
    void paintValues(QPainter &painter, const QRect &row) const;
    void paintMarks(QPainter &painter, const QRect &row) const;
    void paintGradients(QPainter &painter, const QRect &row) const;
    void paintAverage(QPainter &painter, const QRect &row) const;

    QSharedPointer<Bar> bar;
};
