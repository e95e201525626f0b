#pragma once

#include <QWidget>

class WaitWidget;

/// Lies over an area while something is being worked on, with the library's spinner in its middle.
///
/// The spinner's bars are black whatever the palette, so they turn on a light plate of their own.
/// The mouse goes through to the area. Costs nothing while no work is going on.
class WorkVeil final : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first. Follows the size of the area, which owns it.
    explicit WorkVeil(QWidget *area);

    /// Shows the spinner, this many pixels wide and high; at least 1. A second call replaces it.
    void begin(int spinnerPixels);

    /// Takes all away. No effect when nothing is shown.
    void end();

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void placeSpinner();

    WaitWidget *spinner = nullptr;
};
