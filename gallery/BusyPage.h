#pragma once

#include "GalleryPage.h"

class BusyPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit BusyPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
