#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Frames the list, text, picture or scrolled area that has the focus, in whichever window of the
/// application, as many styles draw nothing around these and an empty or read-only one would not
/// show it.
///
/// Like the focus frames of buttons it is seen once the keyboard has moved the focus in the window.
class FocusOutline : public QObject
{
    Q_OBJECT

public:
    /// At work as long as it lives.
    explicit FocusOutline(QObject *parent);

    /// Keeps the frame as large as the widget.
    bool eventFilter(QObject *object, QEvent *event) override;

private slots:
    void follow(QWidget *before, QWidget *now);

private:
    QPointer<QWidget> framed;
    QPointer<QWidget> frame;
};
