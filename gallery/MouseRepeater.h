#pragma once

#include <QList>
#include <QObject>
#include <QPointF>
#include <QSize>

#include <optional>

class QMouseEvent;
class TXImageViewer;

/// Lets the mouse move once more, where it is, after pictures of a TXImageViewer have moved under
/// it: by the wheel, a key, another size or a function. So TXImageViewer::hover() tells the pixel
/// that is under the mouse now. It does that after painting, which holds the position to its
/// limits, and only while the mouse is over the viewer.
class MouseRepeater final : public QObject
{
    Q_OBJECT

public:
    /// A child of the viewer, which it looks after.
    explicit MouseRepeater(TXImageViewer *viewer);

    bool eventFilter(QObject *object, QEvent *event) override;

private slots:
    void repeatIfMoved();

private:
    /// All that decides what is under the mouse.
    struct State
    {
        double scale = 0;
        QPointF position;
        QSize viewerSize;
        QList<qint64> pictures;

        [[nodiscard]] bool operator==(const State &other) const;
    };

    [[nodiscard]] State state() const;
    void remember(const QMouseEvent &event);
    void repeat();

    TXImageViewer *viewer;
    /// In viewer pixels. Nothing while the mouse is elsewhere.
    std::optional<QPointF> place;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    /// At the last move.
    State seen;
    bool isRepeating = false;
};
