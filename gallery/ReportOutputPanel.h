#pragma once

#include "ChartReportOptions.h"
#include "GalleryPanel.h"

#include <functional>
#include <memory>

class ChartReport;
class ICompletionDelegate;
class QLabel;
class QProgressBar;
class QPushButton;
class TXError;
class TXReportDocument;

/// Takes the chart report to a PDF file or to a printer.
///
/// Both work on a report of their own, so that what is seen on the screen may change meanwhile. The
/// work ends early with the panel, or when its window is closed.
class ReportOutputPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ReportOutputPanel(QWidget *parent = nullptr);
    ~ReportOutputPanel() override;

    /// What the next file or print shows.
    void setOptions(const ChartReportOptions &newOptions) { options = newOptions; }

    /// Whether a report is being written or printed.
    [[nodiscard]] bool isBusy() const { return running != nullptr; }

    /// Writes the file, and comes back when it is done, has failed or was cancelled; a failure has
    /// then been shown. Events are handled meanwhile. Does nothing while busy.
    void writePdf(const QString &fileName);

signals:
    /// isBusy() has become another.
    void busyChanged(bool isBusy);

protected:
    void retranslate() override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void exportPdf();
    void print();
    void cancel();
    void openPdf();

private:
    /// What ended a work.
    enum class Outcome { None, Written, Printed, Cancelled, Failed };
    using Work = std::function<bool(TXReportDocument &, ICompletionDelegate *, TXError *)>;

    void run(const Work &work, Outcome whenDone);
    void setUpLayout();
    void showState();
    [[nodiscard]] QString outcomeText() const;

    ChartReportOptions options;
    std::shared_ptr<ChartReport> running;
    Outcome outcome = Outcome::None;
    QString writtenFile;
    int writtenPages = 0;

    QPushButton *exportButton;
    QPushButton *printButton;
    QProgressBar *progressBar;
    QPushButton *cancelButton;
    QLabel *outcomeLabel;
    QPushButton *openButton;
};
