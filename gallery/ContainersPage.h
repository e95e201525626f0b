#pragma once

#include "GalleryPage.h"

/// The containers and labels of the library: flow, square layout, splitter, folding and bold group
/// boxes, rotated labels.
class ContainersPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit ContainersPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override { }
};
