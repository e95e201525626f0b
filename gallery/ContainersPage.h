#pragma once

#include "GalleryPage.h"

class ContainersPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ContainersPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
