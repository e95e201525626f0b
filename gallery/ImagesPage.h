#pragma once

#include "GalleryPage.h"

/// Pictures that are compared side by side.
class ImagesPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ImagesPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
