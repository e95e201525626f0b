#pragma once

#include "TXReportAccessible.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QGraphicsScene;
class QGraphicsView;

/// Tells the interface of a view when what it shows has changed.
class ReportSceneWatch : public QObject
{
    Q_OBJECT

public:
    /// For a view, without a scene yet.
    explicit ReportSceneWatch(QGraphicsView *view);

    /// The scene that is watched from now on; null for none.
    void follow(QGraphicsScene *scene);
    /// Sees that the view shows another scene, of which it has no signal: it is painted then.
    bool eventFilter(QObject *object, QEvent *event) override;

private slots:
    void announce();

private:
    QGraphicsView *view;
    QPointer<QGraphicsScene> scene;
};

/// What screen readers learn of a QGraphicsView: the TXGraphicsScene that it shows as a page with
/// texts; with any other scene, or none, what Qt tells of a widget.
class ReportSceneAccessible final : public TXReportAccessible
{
public:
    /// For this view, which outlives it.
    explicit ReportSceneAccessible(QGraphicsView *view);

    /// Tells Qt of this interface for all views, once for the life of the process. Views that were
    /// asked for theirs before get this one instead.
    static void install();

    [[nodiscard]] int pageCount() const override;
    [[nodiscard]] QList<TXReportText> pageTexts(int page) const override;
    [[nodiscard]] QRectF pageRect(int page) const override;
    [[nodiscard]] QTransform pageTransform(int page) const override;

private:
    [[nodiscard]] QGraphicsView *graphicsView() const;
    [[nodiscard]] QGraphicsScene *scene() const;

    /// Made when the first text is asked for: a scene that is watched works harder.
    mutable std::unique_ptr<ReportSceneWatch> watch;
};
