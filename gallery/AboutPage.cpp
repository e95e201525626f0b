#include "AboutPage.h"

#include "AboutWindowPanel.h"
#include "GalleryAboutWindow.h"
#include "GalleryPanel.h"
#include "LogoPanel.h"

#include <QVBoxLayout>

AboutPage::AboutPage(QWidget *parent)
    : GalleryPage(parent)
    , logoPanel(new LogoPanel(this))
    , aboutPanel(new AboutWindowPanel(this))
{
    setUpLayout();
}

QString AboutPage::description() const
{
    return tr("The picture that a program shows while it starts, which a partner can replace by a "
              "logo, and the window that tells what the program is.");
}

QList<GalleryFurtherWindow> AboutPage::furtherWindows()
{
    aboutPanel->aboutWindow()->show();
    return {{QStringLiteral("window"), aboutPanel->aboutWindow()}};
}

void AboutPage::setUpLayout()
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(logoPanel);
    rows->addWidget(aboutPanel);
    rows->addStretch();
}
