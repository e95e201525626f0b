#pragma once

#include "GalleryPage.h"

/// The library's panels for a trigger event and for the default encoding of text files, each with
/// the settings that a host keeps of it and with what the host does by them.
class SchedulePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit SchedulePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;

protected:
    void retranslate() override { }
};
