#include "ReportOutputPanel.h"

#include "ChartReport.h"
#include "ReportProgress.h"

#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int kWholePercent = 100;
/// The text below the buttons must not push the panel wider.
constexpr int kOutcomeWidthPixels = 160;

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
    , progressBar(new QProgressBar(this))
    , cancelButton(new QPushButton(this))
    , outcomeLabel(new QLabel(this))
    , openButton(new QPushButton(this))
{
    progressBar->setRange(0, kWholePercent);
    outcomeLabel->setWordWrap(true);
    outcomeLabel->setMinimumWidth(kOutcomeWidthPixels);
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
    const QString file = QFileInfo(fileName).absoluteFilePath();
    const auto write = [file](TXReportDocument &report, ICompletionDelegate *progress,
                              TXError *error) {
        return report.writePdf(file, progress, error);
    };
    writtenFile = file;
    run(write, Outcome::Written);
}

/// Between start and end of the work the panel may be destroyed.
void ReportOutputPanel::run(const Work &work, Outcome whenDone)
{
    if (isBusy()) {
        return;
    }
    const QPointer<ReportOutputPanel> self(this);
    const auto report = std::make_shared<ChartReport>(options);
    running = report;
    outcome = Outcome::None;
    showState();
    emit busyChanged(true);

    ReportProgress progress(progressBar);
    TXError error;
    const bool isDone = work(report->document(), &progress, &error);
    if (!self) {
        return;
    }
    running.reset();
    writtenPages = report->document().pageCount();
    const Outcome otherwise =
        report->document().isCancelled() ? Outcome::Cancelled : Outcome::Failed;
    outcome = isDone ? whenDone : otherwise;
    showState();
    emit busyChanged(false);
    if (outcome == Outcome::Failed) {
        TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, this);
    }
}

void ReportOutputPanel::exportPdf()
{
    const QPointer<ReportOutputPanel> self(this);
    QFileDialog dialog(this, tr("Export PDF"), suggestedFile(), tr("PDF documents (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // With it the dialog asks before a file is replaced, also when the suffix was left out.
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    if (dialog.exec() == QDialog::Accepted && self) {
        writePdf(dialog.selectedFiles().constFirst());
    }
}

void ReportOutputPanel::print()
{
    QPrinter printer(QPrinter::HighResolution);
    const QPointer<ReportOutputPanel> self(this);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted || !self) {
        return;
    }
    run([&printer](TXReportDocument &report, ICompletionDelegate *progress,
                   TXError *error) { return report.print(&printer, progress, error); },
        Outcome::Printed);
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
    progressBar->setAccessibleName(tr("Progress"));
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
    exportButton->setEnabled(!isBusy());
    printButton->setEnabled(!isBusy());
    cancelButton->setEnabled(isBusy());
    openButton->setEnabled(outcome == Outcome::Written);
    if (outcome != Outcome::Written && outcome != Outcome::Printed) {
        progressBar->setValue(0);
    }
    outcomeLabel->setText(outcomeText());
    outcomeLabel->setToolTip(outcome == Outcome::Written ? QDir::toNativeSeparators(writtenFile)
                                                         : QString());
}

QString ReportOutputPanel::outcomeText() const
{
    switch (outcome) {
    case Outcome::Written:
        return tr("%n page(s) in \"%1\"", nullptr, writtenPages)
            .arg(QFileInfo(writtenFile).fileName());
    case Outcome::Printed:
        return tr("Printed.");
    case Outcome::Cancelled:
        return tr("Cancelled, nothing was written.");
    case Outcome::Failed:
        return tr("Nothing was written.");
    case Outcome::None:
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
    rows->addWidget(outcomeLabel);
    rows->addWidget(openButton);
}
