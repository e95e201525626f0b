#include "ErrorsPage.h"

#include "ErrorBoxPanel.h"
#include "ErrorComposer.h"
#include "ManualPanel.h"

#include "TXDisplayErrorMessageBox.h"

#include <QVBoxLayout>

namespace {

const QString kManual = QStringLiteral("TXGallery.pdf");

} // namespace

ErrorsPage::ErrorsPage(QWidget *parent)
    : ErrorsPage(kManual, parent)
{ }

ErrorsPage::ErrorsPage(const QString &manual, QWidget *parent)
    : GalleryPage(parent)
    , composer(new ErrorComposer(this))
    , boxPanel(new ErrorBoxPanel(this))
    , manualPanel(new ManualPanel(manual, this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(composer, 1);
    rows->addWidget(boxPanel);
    rows->addWidget(manualPanel);
    connect(boxPanel, SIGNAL(boxWanted(int, bool)), this, SLOT(showBox(int, bool)));
}

QString ErrorsPage::description() const
{
    return tr("How a failure reaches the user: an error with the errors that led to it, the boxes "
              "that show it, and the manual.");
}

void ErrorsPage::showBox(int kind, bool withDetails)
{
    const auto type = static_cast<ErroMessageBoxType>(kind);
    if (withDetails) {
        TXDisplayCompletErrorMessageBox(composer->error(), type, this);
    } else {
        TXDisplayErrorMessageBox(composer->error(), type, this);
    }
}
