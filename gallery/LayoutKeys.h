#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

/// Keys for what is otherwise dragged with the mouse: Ctrl and Shift with the arrows to the left
/// and right make the current column of a list narrower and wider, with the arrows up and down they
/// sort it by that column, ascending and descending, where a click on its head does; Ctrl and Alt
/// with an arrow moves the border of a splitter.
///
/// The border is one of the innermost splitter around the focus that lies across the arrow: that
/// behind the part with the focus, or before the last part. Where the focus is in none of them, it
/// is one of a splitter that shares the outermost one with the focus.
class LayoutKeys : public QObject
{
    Q_OBJECT

public:
    /// How far one press goes.
    static constexpr int kStepPixels = 12;

    /// For all windows of the application as long as it lives.
    explicit LayoutKeys(QObject *parent);

    /// Takes the keys from the widget with the focus.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    [[nodiscard]] static bool isTaken(const QKeyEvent &event, QWidget &focused);
    [[nodiscard]] static bool changeColumn(QWidget &focused, int key);
    [[nodiscard]] static bool moveBorder(const QWidget &focused, int key);
};
