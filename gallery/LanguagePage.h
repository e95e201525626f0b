#pragma once

#include "GalleryPage.h"

class FontsPanel;
class LanguagePanel;
class StyleSamplePanel;
class StyleSheetPanel;

/// How a program takes its language, its style sheet and its fonts from the files beside it.
///
/// What is chosen here holds for the whole gallery, as what is chosen in the strip at the top, and
/// stays when another page is shown.
class LanguagePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit LanguagePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;

protected:
    void retranslate() override { }

private:
    void setUpLayout();

    LanguagePanel *languagePanel;
    StyleSheetPanel *sheetPanel;
    StyleSamplePanel *samplePanel;
    FontsPanel *fontsPanel;
};
