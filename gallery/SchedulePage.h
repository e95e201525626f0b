#pragma once

#include "GalleryPage.h"

class SchedulePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit SchedulePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
