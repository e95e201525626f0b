#pragma once

#include "GalleryPage.h"

class DifferenceBarPanel;
class PatchSwatchesPanel;

/// The widgets that show how far colours are apart, with the two sets of colours of a chart.
class ColourDifferencePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColourDifferencePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;

private slots:
    void showDifferences();

private:
    DifferenceBarPanel *barPanel;
    PatchSwatchesPanel *swatchesPanel;
};
