#include "ReportExportPanel.h"

#include "ObservedProgress.h"
#include "ReportBatch.h"
#include "WheelGuard.h"

#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXProgressBar.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

ReportExportPanel::ReportExportPanel(QWidget *parent)
    : GalleryPanel(parent)
    , hint(new QLabel(this))
    , kindsLabel(new QLabel(this))
    , kindsBox(new QSpinBox(this))
    , exportButton(new QPushButton(this))
    , cancelButton(new QPushButton(this))
    , bar(new TXProgressBar(this))
    , endingLabel(new QLabel(this))
    , observed(std::make_unique<ObservedProgress>(bar))
{
    kindsBox->setRange(1, ReportBatch::kMostReports);
    kindsBox->setValue(ReportBatch::kMostReports);
    kindsLabel->setBuddy(kindsBox);
    WheelGuard::protect(kindsBox);
    cancelButton->setEnabled(false);
    endingLabel->setTextFormat(Qt::PlainText);
    endingLabel->setWordWrap(true);
    setUpLayout();
    retranslate();
    connect(exportButton, SIGNAL(clicked()), this, SLOT(start()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(cancel()));
}

ReportExportPanel::~ReportExportPanel()
{
    cancel();
}

void ReportExportPanel::setKinds(int kinds)
{
    kindsBox->setValue(kinds);
}

void ReportExportPanel::start()
{
    if (isRunning()) {
        return;
    }
    // Both held here: while the work goes on the panel may be destroyed.
    const QPointer<ReportExportPanel> self(this);
    const auto batch = std::make_shared<ReportBatch>(kindsBox->value());
    begin(batch);

    TXError error;
    const bool isDone = batch->run(observed.get(), &error);
    if (!self) {
        return;
    }
    const Ending otherwise = batch->isCancelled() ? Ending::Cancelled : Ending::Failed;
    end(isDone ? Ending::Done : otherwise);
    if (ending == Ending::Failed) {
        TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, this);
    }
}

void ReportExportPanel::cancel()
{
    if (running) {
        running->cancel();
    }
}

void ReportExportPanel::retranslate()
{
    setTitle(tr("Report export on the GUI thread"));
    hint->setText(tr("Writes the chart report as PDF, with other choices each time, into a "
                     "temporary folder."));
    kindsLabel->setText(tr("&Kinds:"));
    setButtonText(exportButton, tr("Export P&DFs"));
    setButtonText(cancelButton, tr("Ca&ncel"));
    bar->setAccessibleName(tr("Progress of the export"));
    showEnding();
}

/// Another page of the gallery in front does not end the work, the end of the window does.
void ReportExportPanel::hideEvent(QHideEvent *event)
{
    if (!window()->isVisible()) {
        cancel();
    }
    GalleryPanel::hideEvent(event);
}

/// Cancel is enabled before and takes the focus, so that it does not wander through the window.
void ReportExportPanel::begin(const std::shared_ptr<ReportBatch> &batch)
{
    running = batch;
    last = batch;
    ending = Ending::None;
    cancelButton->setEnabled(true);
    if (exportButton->hasFocus() || kindsBox->hasFocus()) {
        cancelButton->setFocus();
    }
    exportButton->setEnabled(false);
    kindsBox->setEnabled(false);
    showEnding();
    observed->startTask();
}

void ReportExportPanel::end(Ending newEnding)
{
    running.reset();
    ending = newEnding;
    observed->endTask();
    exportButton->setEnabled(true);
    if (cancelButton->hasFocus()) {
        exportButton->setFocus();
    }
    cancelButton->setEnabled(false);
    kindsBox->setEnabled(true);
    showEnding();
    emit ended();
}

void ReportExportPanel::showEnding()
{
    endingLabel->setText(endingText());
    endingLabel->setToolTip(last ? QDir::toNativeSeparators(last->folder()) : QString());
}

QString ReportExportPanel::endingText() const
{
    switch (ending) {
    case Ending::Done:
    case Ending::Cancelled: {
        const QString text = ending == Ending::Done ? tr("%1 files, %2 pages, %3")
                                                    : tr("Cancelled after %1 files, %2 pages, %3");
        return text.arg(locale().toString(last->files()), locale().toString(last->pages()),
                        locale().formattedDataSize(last->bytes()));
    }
    case Ending::Failed:
        return tr("The export has failed.");
    case Ending::None:
        break;
    }
    return {};
}

void ReportExportPanel::setUpLayout()
{
    hint->setWordWrap(true);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(kindsLabel);
    buttonRow->addWidget(kindsBox);
    buttonRow->addSpacing(kGap);
    buttonRow->addWidget(exportButton);
    buttonRow->addWidget(cancelButton);
    buttonRow->addStretch();

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(hint);
    rows->addLayout(buttonRow);
    rows->addWidget(bar);
    rows->addWidget(endingLabel);
    rows->addStretch();
}
