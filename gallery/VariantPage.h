#pragma once

#include "GalleryPage.h"

/// A value as one line of text that folds open.
class VariantPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit VariantPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override;
};
