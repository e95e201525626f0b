#include "PagesPage.h"

#include "EmbeddingPanel.h"
#include "LabColourDialog.h"
#include "PluginPanel.h"

#include <QVBoxLayout>

namespace {

QString &usualPluginFolder()
{
    static QString folder;
    return folder;
}

} // namespace

PagesPage::PagesPage(QWidget *parent)
    : PagesPage(usualPluginFolder(), parent)
{ }

PagesPage::PagesPage(const QString &pluginFolder, QWidget *parent)
    : GalleryPage(parent)
    , pluginPanel(new PluginPanel(pluginFolder, this))
    , embeddingPanel(new EmbeddingPanel(this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(pluginPanel);
    rows->addWidget(embeddingPanel);
    rows->addStretch(1);
}

void PagesPage::setUsualPluginFolder(const QString &folder)
{
    usualPluginFolder() = folder;
}

QString PagesPage::description() const
{
    return tr("Configuration pages that plug-ins bring, with the settings that they give back, and "
              "a dialog that stands in a page as well as in a window.");
}

QList<GalleryFurtherWindow> PagesPage::furtherWindows()
{
    embeddingPanel->openWindow();
    return {{QStringLiteral("dialog"), embeddingPanel->dialogWindow()}};
}
