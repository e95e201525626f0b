#pragma once

#include "GalleryPage.h"

class ValueSliderPanel;

/// The value controls with quantities of colour work, enabled and disabled.
class ControlsPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ControlsPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;

protected:
    void retranslate() override { }

private:
    ValueSliderPanel *sliders;
};
