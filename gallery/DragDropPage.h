#pragma once

#include "GalleryPage.h"

class DragDropPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit DragDropPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
