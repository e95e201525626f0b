#pragma once

#include "GalleryPage.h"

class AboutPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
