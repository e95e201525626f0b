#pragma once

#include "GalleryPage.h"

class EmbeddingPanel;
class PluginPanel;

/// Pages and dialogs that find their place at run time: configuration pages from plug-ins, and a
/// dialog that stands in a page and as a window.
class PagesPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit PagesPage(QWidget *parent = nullptr);
    /// With the plug-ins of another folder, named from the program's folder.
    PagesPage(const QString &pluginFolder, QWidget *parent);

    /// Where pages that are made without a folder look from now on, named from the program's
    /// folder; empty, as at the start, stands for ConfWidgets. For programs that do not stand
    /// beside the gallery's plug-ins.
    static void setUsualPluginFolder(const QString &folder);

    [[nodiscard]] QString description() const override;
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private:
    PluginPanel *pluginPanel;
    EmbeddingPanel *embeddingPanel;
};
