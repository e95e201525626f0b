#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Frames the list, text, picture or scrolled area of a window that has the focus, as many styles
/// draw nothing around these and an empty or read-only one would not show it.
///
/// Like the focus frames of buttons it is seen once the keyboard has moved the focus.
class FocusOutline : public QObject
{
    Q_OBJECT

public:
    /// For the widgets of this window, which owns it.
    explicit FocusOutline(QWidget *window);

    /// Keeps the frame as large as the widget.
    bool eventFilter(QObject *object, QEvent *event) override;

private slots:
    void follow(QWidget *before, QWidget *now);

private:
    [[nodiscard]] bool isWantedAround(const QWidget *widget) const;

    QWidget *window;
    QPointer<QWidget> framed;
    QPointer<QWidget> frame;
};
