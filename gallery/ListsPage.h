#pragma once

#include "GalleryPage.h"

/// What the library draws into lists, tables and trees, and its combo boxes.
class ListsPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ListsPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override { }
};
