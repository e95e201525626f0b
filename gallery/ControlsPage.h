#pragma once

#include "GalleryPage.h"

class ValueSliderPanel;
class WidgetStatePanel;

/// The value controls with quantities of colour work, enabled and disabled, and the state of a
/// window of widgets.
class ControlsPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ControlsPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private:
    ValueSliderPanel *sliders;
    WidgetStatePanel *statePanel;
};
