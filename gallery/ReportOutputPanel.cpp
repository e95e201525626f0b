#include "ReportOutputPanel.h"

#include "ChartReport.h"
#include "ReportProgress.h"

#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXProgressBar.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int kWholePercent = 100;
/// The text below the buttons must not push the panel wider.
constexpr int kEndingWidthPixels = 160;

QString suggestedFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).filePath(QStringLiteral("colour-comparison.pdf"));
}

} // namespace

ReportOutputPanel::ReportOutputPanel(QWidget *parent)
    : GalleryPanel(parent)
    , exportButton(new QPushButton(this))
    , printButton(new QPushButton(this))
    , progressBar(new TXProgressBar(this))
    , cancelButton(new QPushButton(this))
    , endingLabel(new QLabel(this))
    , openButton(new QPushButton(this))
{
    progressBar->setRange(0, kWholePercent);
    endingLabel->setWordWrap(true);
    endingLabel->setMinimumWidth(kEndingWidthPixels);
    cancelButton->setEnabled(false);
    setUpLayout();
    retranslate();
    connect(exportButton, SIGNAL(clicked()), this, SLOT(exportPdf()));
    connect(printButton, SIGNAL(clicked()), this, SLOT(print()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(cancel()));
    connect(openButton, SIGNAL(clicked()), this, SLOT(openPdf()));
}

ReportOutputPanel::~ReportOutputPanel()
{
    cancel();
}

void ReportOutputPanel::writePdf(const QString &fileName)
{
    if (isBusy()) {
        return;
    }
    const QString file = QFileInfo(fileName).absoluteFilePath();
    writtenFile = file;
    run(Target::File,
        [file](TXReportDocument &report, ICompletionDelegate *progress, TXError *error) {
            return report.writePdf(file, progress, error);
        });
}

/// While the work goes on the panel may be destroyed.
void ReportOutputPanel::run(Target newTarget, const Work &work)
{
    const QPointer<ReportOutputPanel> self(this);
    const auto report = std::make_shared<ChartReport>(options);
    target = newTarget;
    begin(report);

    ReportProgress progress(progressBar);
    TXError error;
    const bool isDone = work(report->document(), &progress, &error);
    if (!self) {
        return;
    }
    writtenPages = report->document().pageCount();
    const Ending otherwise = report->document().isCancelled() ? Ending::Cancelled : Ending::Failed;
    end(isDone ? Ending::Done : otherwise);
    if (ending == Ending::Failed) {
        TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, this);
    }
}

/// Cancel takes the keyboard's focus from what is disabled. It is enabled before, so that the focus
/// does not wander through the window.
void ReportOutputPanel::begin(const std::shared_ptr<ChartReport> &report)
{
    focusGiver = window()->focusWidget();
    running = report;
    ending = Ending::None;
    cancelButton->setEnabled(true);
    showState();
    emit busyChanged(true);
    if (focusGiver && !focusGiver->isEnabled()) {
        cancelButton->setFocus();
    }
}

/// The other way round.
void ReportOutputPanel::end(Ending newEnding)
{
    running.reset();
    ending = newEnding;
    showState();
    emit busyChanged(false);
    if (window()->focusWidget() == cancelButton) {
        (focusGiver ? focusGiver.data() : exportButton)->setFocus();
    }
    cancelButton->setEnabled(false);
}

void ReportOutputPanel::exportPdf()
{
    const QString file = askForFile();
    if (!file.isEmpty()) {
        writePdf(file);
    }
}

/// Empty when nothing is to be written, or when the panel, and the dialog with it, was destroyed.
QString ReportOutputPanel::askForFile()
{
    const QPointer<QFileDialog> dialog(
        new QFileDialog(this, tr("Export PDF"), suggestedFile(), tr("PDF documents (*.pdf)")));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    // With it the dialog asks before a file is replaced, also when the suffix was left out.
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const QString file = isAccepted ? dialog->selectedFiles().constFirst() : QString();
    delete dialog;
    return file;
}

void ReportOutputPanel::print()
{
    QPrinter printer(QPrinter::HighResolution);
    if (askForPrinter(&printer)) {
        run(Target::Printer,
            [&printer](TXReportDocument &report, ICompletionDelegate *progress, TXError *error) {
                return report.print(&printer, progress, error);
            });
    }
}

/// As askForFile().
bool ReportOutputPanel::askForPrinter(QPrinter *printer)
{
    const QPointer<QPrintDialog> dialog(new QPrintDialog(printer, this));
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    delete dialog;
    return isAccepted;
}

void ReportOutputPanel::cancel()
{
    if (running) {
        running->document().cancel();
    }
}

void ReportOutputPanel::openPdf()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(writtenFile))) {
        TXError error;
        error.domain = tr("Report");
        error.setDescription(TXStringI18n("ReportOutputPanel",
                                          QT_TR_NOOP("No program opens the file \"%1\"."), nullptr,
                                          -1)
                                 .arg(QDir::toNativeSeparators(writtenFile)));
        TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, this);
    }
}

void ReportOutputPanel::retranslate()
{
    setTitle(tr("Output"));
    setButtonText(exportButton, tr("&Export PDF..."));
    setButtonText(printButton, tr("Pri&nt..."));
    setButtonText(cancelButton, tr("&Cancel"));
    setButtonText(openButton, tr("&Open PDF"));
    showState();
}

/// Another page of the gallery in front does not end the work, the end of the window does.
void ReportOutputPanel::hideEvent(QHideEvent *event)
{
    if (!window()->isVisible()) {
        cancel();
    }
    GalleryPanel::hideEvent(event);
}

void ReportOutputPanel::showState()
{
    // In this order the focus of either goes straight to Cancel.
    printButton->setEnabled(!isBusy());
    exportButton->setEnabled(!isBusy());
    openButton->setEnabled(isFileWritten());
    if (ending != Ending::Done) {
        progressBar->setValue(0);
    }
    endingLabel->setText(endingText());
    endingLabel->setToolTip(isFileWritten() ? QDir::toNativeSeparators(writtenFile) : QString());
}

bool ReportOutputPanel::isFileWritten() const
{
    return target == Target::File && ending == Ending::Done;
}

QString ReportOutputPanel::endingText() const
{
    return target == Target::File ? fileText() : printText();
}

QString ReportOutputPanel::fileText() const
{
    switch (ending) {
    case Ending::Done:
        return tr("%n page(s) in \"%1\"", nullptr, writtenPages)
            .arg(QFileInfo(writtenFile).fileName());
    case Ending::Cancelled:
        return tr("Cancelled, nothing was written.");
    case Ending::Failed:
        return tr("Nothing was written.");
    case Ending::None:
        break;
    }
    return {};
}

/// What a printer has begun it may keep.
QString ReportOutputPanel::printText() const
{
    switch (ending) {
    case Ending::Done:
        return tr("Printed.");
    case Ending::Cancelled:
        return tr("Cancelled, some pages may be printed.");
    case Ending::Failed:
        return tr("Printing has failed.");
    case Ending::None:
        break;
    }
    return {};
}

void ReportOutputPanel::setUpLayout()
{
    auto *workRow = new QHBoxLayout;
    workRow->addWidget(progressBar, 1);
    workRow->addWidget(cancelButton);

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(exportButton);
    rows->addWidget(printButton);
    rows->addLayout(workRow);
    rows->addWidget(endingLabel);
    rows->addWidget(openButton);
}
