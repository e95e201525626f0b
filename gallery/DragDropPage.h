#pragma once

#include "GalleryPage.h"

class FileDropPanel;

/// A field that takes dropped files, and folders that are sorted by dragging in two trees.
class DragDropPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit DragDropPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;

protected:
    void retranslate() override { }

private:
    FileDropPanel *files;
};
