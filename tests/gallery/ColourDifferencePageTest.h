#pragma once

#include "ColourDifferencePage.h"
#include "GalleryAppearance.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "SpectrumPlot.h"
#include "TestBase.h"

#include "DoubleSpinBoxWithSliderWidget.h"
#include "TXDeltaGradientWidget.h"

#include <QAccessible>
#include <QComboBox>
#include <QLocale>
#include <QSpinBox>

#include <memory>

/// Base of the tests of the page of colour differences, which each find it in the gallery's window,
/// shown and active.
class ColourDifferencePageTest : public TestBase
{
protected:
    void prepare() override
    {
        GallerySettings settings;
        settings.page = "difference";
        languages = std::make_unique<GalleryLanguages>(QString());
        window = std::make_unique<GalleryWindow>(*languages, settings);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QVERIFY(qobject_cast<ColourDifferencePage *>(window->currentPage()));
    }

    void finish() override
    {
        window.reset();
        languages.reset();
        applyGalleryColours(GalleryColours::System);
        QLocale::setDefault(QLocale::system());
    }

    [[nodiscard]] GalleryPage &page() const { return *window->currentPage(); }
    [[nodiscard]] QComboBox &formula() const { return *controlOf<QComboBox>(page(), "Formula"); }
    [[nodiscard]] QComboBox &pairs() const { return *controlOf<QComboBox>(page(), "Pairs"); }
    [[nodiscard]] QSpinBox &box(const QString &name) const
    {
        return *controlOf<QSpinBox>(page(), name);
    }
    [[nodiscard]] DoubleSpinBoxWithSliderWidget &limit() const
    {
        return *page().findChild<DoubleSpinBoxWithSliderWidget *>();
    }
    [[nodiscard]] SpectrumPlot &plot() const { return *page().findChild<SpectrumPlot *>(); }
    [[nodiscard]] QString valueOfBar() const
    {
        auto *bar = page().findChild<TXDeltaGradientWidget *>();
        return QAccessible::queryAccessibleInterface(bar)->text(QAccessible::Value);
    }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};
