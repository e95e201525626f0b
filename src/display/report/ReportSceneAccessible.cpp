#include "ReportSceneAccessible.h"

#include "AccessibleInterfaces.h"
#include "ReportTexts.h"
#include "TXGraphicsScene.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsView>

ReportSceneWatch::ReportSceneWatch(QGraphicsView *view)
    : view(view)
{
    view->viewport()->installEventFilter(this);
}

void ReportSceneWatch::follow(QGraphicsScene *newScene)
{
    if (scene == newScene) {
        return;
    }
    if (scene != nullptr) {
        scene->disconnect(this);
    }
    scene = newScene;
    if (scene != nullptr) {
        connect(scene, SIGNAL(changed(QList<QRectF>)), this, SLOT(announce()));
        connect(scene, SIGNAL(destroyed()), this, SLOT(announce()));
    }
}

bool ReportSceneWatch::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && view->scene() != scene) {
        announce();
    }
    return QObject::eventFilter(object, event);
}

void ReportSceneWatch::announce()
{
    follow(view->scene());
    TXReportAccessible::announceChange(view);
}

ReportSceneAccessible::ReportSceneAccessible(QGraphicsView *view)
    : TXReportAccessible(view)
{ }

void ReportSceneAccessible::install()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        AccessibleInterfaces::install<QGraphicsView, ReportSceneAccessible>();
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            auto *view = qobject_cast<QGraphicsView *>(widget);
            QAccessibleInterface *known =
                view == nullptr ? nullptr : QAccessible::queryAccessibleInterface(view);
            if (known != nullptr && known->role() == QAccessible::Client
                && dynamic_cast<TXReportAccessible *>(known) == nullptr) {
                QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
            }
        }
        return true;
    }();
}

int ReportSceneAccessible::pageCount() const
{
    return scene() == nullptr ? 0 : 1;
}

QList<TXReportText> ReportSceneAccessible::pageTexts(int /*page*/) const
{
    if (scene() == nullptr) {
        return {};
    }
    if (watch == nullptr) {
        watch = std::make_unique<ReportSceneWatch>(graphicsView());
    }
    watch->follow(scene());
    return ReportTexts::ofScene(*scene());
}

QRectF ReportSceneAccessible::pageRect(int /*page*/) const
{
    return scene() == nullptr ? QRectF() : graphicsView()->sceneRect();
}

QTransform ReportSceneAccessible::pageTransform(int /*page*/) const
{
    return graphicsView()->viewportTransform();
}

QGraphicsView *ReportSceneAccessible::graphicsView() const
{
    return static_cast<QGraphicsView *>(widget());
}

QGraphicsScene *ReportSceneAccessible::scene() const
{
    return qobject_cast<TXGraphicsScene *>(graphicsView()->scene());
}
