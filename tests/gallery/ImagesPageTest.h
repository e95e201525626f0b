#pragma once

#include "DialogDriver.h"
#include "ImagesPage.h"
#include "PageChecks.h"
#include "TestBase.h"

#include "TXImageViewer.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>

#include <cmath>
#include <memory>

/// Base of the tests of the page that compares pictures, which each find it open.
class ImagesPageTest : public TestBase
{
protected:
    static constexpr int kPatienceMilliseconds = 30'000;

    void prepare() override
    {
        page = std::make_unique<ImagesPage>();
        viewer = page->findChild<TXImageViewer *>();
        page->resize(847, 580);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
        QVERIFY(isReadyInTime());
    }

    void finish() override { page.reset(); }

    /// Waits until nothing is being made or read.
    [[nodiscard]] bool isReadyInTime() const
    {
        QSignalSpy ready(page.get(), SIGNAL(becameReady()));
        return page->isReady() || ready.wait(kPatienceMilliseconds);
    }

    [[nodiscard]] QImage picture(int zone) const
    {
        return viewer->pixmaps().at(zone).toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// Tells the page what the viewer would, with the mouse over this pixel.
    void hover(int zone, const QPoint &pixel) const
    {
        emit viewer->hover(placeOf(zone, pixel), Qt::NoButton, Qt::NoButton, Qt::NoModifier, true,
                           zone, pixel);
    }

    /// The middle of a pixel of the picture, in the viewer.
    [[nodiscard]] QPointF placeOf(int zone, const QPoint &pixel) const
    {
        const double zoneWidth = double(viewer->width()) / double(viewer->pixmaps().size());
        const QPointF centre(zoneWidth * (zone + 0.5), viewer->height() / 2.0);
        const QSize size = viewer->pixmaps().constFirst().size();
        const QPointF middle(size.width() / 2.0, size.height() / 2.0);
        return centre
            + (QPointF(pixel) + QPointF(0.5, 0.5) - middle + viewer->position()) * viewer->scale();
    }

    /// The pixel of the picture that stands at a place in the viewer.
    [[nodiscard]] QPoint pixelAt(int zone, const QPointF &place) const
    {
        const QPointF fromFirst = (place - placeOf(zone, QPoint())) / viewer->scale();
        return {int(std::floor(fromFirst.x() + 0.5)), int(std::floor(fromFirst.y() + 0.5))};
    }

    void moveMouse(const QPointF &place) const
    {
        QMouseEvent event(QEvent::MouseMove, place, viewer->mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewer, &event);
    }

    /// A notch away from the user.
    void turnWheel(const QPointF &place) const
    {
        QWheelEvent event(place, viewer->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewer, &event);
    }

    void leave() const
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(viewer, &event);
    }

    void click(const QString &button) const { DialogDriver::click(buttonOf(*page, button)); }

    std::unique_ptr<ImagesPage> page;
    TXImageViewer *viewer = nullptr;
};
