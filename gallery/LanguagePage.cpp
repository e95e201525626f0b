#include "LanguagePage.h"

#include "FontsPanel.h"
#include "LanguagePanel.h"
#include "StyleSamplePanel.h"
#include "StyleSheetPanel.h"
#include "StyleSheets.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

LanguagePage::LanguagePage(QWidget *parent)
    : GalleryPage(parent)
    , languagePanel(new LanguagePanel(this))
    , sheetPanel(new StyleSheetPanel(this))
    , samplePanel(new StyleSamplePanel(this))
    , fontsPanel(new FontsPanel(StyleSheets::fontsFolder(), this))
{
    setUpLayout();
}

QString LanguagePage::description() const
{
    return tr("How a program takes its language, its style sheet and its fonts from the files "
              "beside it.");
}

void LanguagePage::fillForPicture()
{
    sheetPanel->applyShipped();
}

void LanguagePage::setUpLayout()
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(sheetPanel, 3);
    columns->addWidget(samplePanel, 2);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(languagePanel);
    rows->addLayout(columns, 1);
    rows->addWidget(fontsPanel);
}
