#pragma once

#include "GalleryPage.h"

class AboutWindowPanel;
class LogoPanel;

/// The splash with the chain of its logos, and the About window with the legal notices.
class AboutPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    [[nodiscard]] QList<GalleryFurtherWindow> furtherWindows() override;

protected:
    void retranslate() override { }

private:
    void setUpLayout();

    LogoPanel *logoPanel;
    AboutWindowPanel *aboutPanel;
};
