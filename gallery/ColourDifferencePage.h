#pragma once

#include "GalleryPage.h"

/// The widgets that show how far colours are apart.
class ColourDifferencePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ColourDifferencePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
