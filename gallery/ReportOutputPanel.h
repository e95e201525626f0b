#pragma once

#include "ChartReportOptions.h"
#include "GalleryPanel.h"

#include <QPointer>

#include <functional>
#include <memory>

class ChartReport;
class ICompletionDelegate;
class QLabel;
class QPrinter;
class QPushButton;
class TXError;
class TXProgressBar;
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
    /// then been shown. Events are handled meanwhile. Does nothing while busy: what is told of the
    /// running work stays.
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
    /// Where the last work was to bring the report.
    enum class Target { File, Printer };
    /// How the last work has ended, if it has.
    enum class Ending { None, Done, Cancelled, Failed };
    using Work = std::function<bool(TXReportDocument &, ICompletionDelegate *, TXError *)>;

    [[nodiscard]] QString askForFile();
    [[nodiscard]] bool askForPrinter(QPrinter *printer);
    void run(Target newTarget, const Work &work);
    void begin(const std::shared_ptr<ChartReport> &report);
    void end(Ending newEnding);
    void setUpLayout();
    void showState();
    [[nodiscard]] bool isFileWritten() const;
    [[nodiscard]] QString endingText() const;
    [[nodiscard]] QString fileText() const;
    [[nodiscard]] QString printText() const;

    ChartReportOptions options;
    std::shared_ptr<ChartReport> running;
    Target target = Target::File;
    Ending ending = Ending::None;
    QString writtenFile;
    int writtenPages = 0;
    /// Had the keyboard's focus before the work disabled it.
    QPointer<QWidget> focusGiver;

    QPushButton *exportButton;
    QPushButton *printButton;
    TXProgressBar *progressBar;
    QPushButton *cancelButton;
    QLabel *endingLabel;
    QPushButton *openButton;
};
