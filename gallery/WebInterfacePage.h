#pragma once

#include "GalleryPage.h"

class WebInterfacePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit WebInterfacePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
