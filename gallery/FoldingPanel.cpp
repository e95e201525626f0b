#include "FoldingPanel.h"

#include "WheelGuard.h"

#include "TXUnfolderWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

enum Intent {
    Perceptual,
    RelativeColorimetric,
    Saturation,
    AbsoluteColorimetric,
};

} // namespace

FoldingPanel::FoldingPanel(QWidget *parent)
    : GalleryPanel(parent)
    , unfolder(new TXUnfolderWidget(this))
    , intentLabel(new QLabel(unfolder))
    , intentBox(new QComboBox(unfolder))
    , blackPointBox(new QCheckBox(unfolder))
    , paperBox(new QCheckBox(unfolder))
    , note(new QLabel(unfolder))
    , conversion(new QLabel(this))
    , keepHiddenBox(new QCheckBox(this))
{
    setUpSettings();
    setUpLayout();
    retranslate();
    connect(intentBox, SIGNAL(currentIndexChanged(int)), this, SLOT(showConversion()));
    connect(blackPointBox, SIGNAL(toggled(bool)), this, SLOT(showConversion()));
    connect(paperBox, SIGNAL(toggled(bool)), this, SLOT(showConversion()));
    connect(keepHiddenBox, SIGNAL(toggled(bool)), this, SLOT(hideOrShowNote()));
}

void FoldingPanel::retranslate()
{
    setTitle(tr("Folding group box"));
    unfolder->setTitle(tr("C&onversion"));
    intentLabel->setText(tr("Rendering intent:"));
    intentBox->setItemText(Perceptual, tr("Perceptual"));
    intentBox->setItemText(RelativeColorimetric, tr("Relative colorimetric"));
    intentBox->setItemText(Saturation, tr("Saturation"));
    intentBox->setItemText(AbsoluteColorimetric, tr("Absolute colorimetric"));
    blackPointBox->setText(tr("&Black point compensation"));
    paperBox->setText(tr("Simulate the paper"));
    note->setText(tr("The black point counts for relative colorimetric alone."));
    keepHiddenBox->setText(tr("&Keep the note hidden"));
    showConversion();
}

void FoldingPanel::showConversion()
{
    const bool isRelative = intentBox->currentIndex() == RelativeColorimetric;
    QStringList parts = {intentBox->currentText()};
    if (isRelative && blackPointBox->isChecked()) {
        parts.append(tr("black point compensated"));
    }
    if (paperBox->isChecked()) {
        parts.append(tr("paper simulated"));
    }
    conversion->setText(locale().createSeparatedList(parts));
}

/// What is hidden here stays hidden through folding and unfolding. Once it may be seen again it
/// comes back at once, or with the rest when that is unfolded.
void FoldingPanel::hideOrShowNote()
{
    if (keepHiddenBox->isChecked()) {
        note->hide();
    } else if (unfolder->isChecked()) {
        note->show();
    } else {
        note->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    }
}

void FoldingPanel::setUpSettings()
{
    intentLabel->setBuddy(intentBox);
    intentBox->addItems({{}, {}, {}, {}});
    intentBox->setCurrentIndex(RelativeColorimetric);
    WheelGuard::protect(intentBox);
    blackPointBox->setChecked(true);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    conversion->setWordWrap(true);
}

void FoldingPanel::setUpLayout()
{
    // Label above box: side by side they are too wide for a half of the page in some languages.
    auto *settings = new QVBoxLayout(unfolder);
    settings->addWidget(intentLabel);
    settings->addWidget(intentBox);
    settings->addWidget(blackPointBox);
    settings->addWidget(paperBox);
    settings->addWidget(note);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(unfolder);
    rows->addWidget(conversion);
    rows->addStretch();
    rows->addWidget(keepHiddenBox);
}
