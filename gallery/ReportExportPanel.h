#pragma once

#include "GalleryPanel.h"

#include <memory>

class ObservedProgress;
class QLabel;
class QPushButton;
class QSpinBox;
class ReportBatch;
class TXProgressBar;

/// Exports many reports on the GUI thread, with the progress on a TXProgressBar through a
/// ProgressBarCompletionDelegate.
///
/// The work ends early with the panel, or when its window is closed.
class ReportExportPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ReportExportPanel(QWidget *parent = nullptr);
    ~ReportExportPanel() override;

    /// Where the export reports to. Lives as long as the panel.
    [[nodiscard]] ObservedProgress *progress() const { return observed.get(); }

    /// How many kinds of the report the next export writes, 1 to ReportBatch::kMostReports.
    void setKinds(int kinds);

    [[nodiscard]] bool isRunning() const { return running != nullptr; }

public slots:
    /// Exports, and comes back when that is done, has failed or was cancelled; a failure has then
    /// been shown. Events are handled meanwhile, in which the panel may be destroyed. No effect
    /// during an export.
    void start();

    /// Lets a running export end at its next page.
    void cancel();

signals:
    /// An export has ended, and what came of it is shown.
    void ended();

protected:
    void retranslate() override;
    void hideEvent(QHideEvent *event) override;

private:
    /// How the last export has ended, if it has.
    enum class Ending { None, Done, Cancelled, Failed };

    void begin(const std::shared_ptr<ReportBatch> &batch);
    void end(Ending newEnding);
    void showEnding();
    [[nodiscard]] QString endingText() const;
    void setUpLayout();

    std::shared_ptr<ReportBatch> running;
    /// Holds the files until the next export.
    std::shared_ptr<ReportBatch> last;
    Ending ending = Ending::None;

    QLabel *hint;
    QLabel *kindsLabel;
    QSpinBox *kindsBox;
    QPushButton *exportButton;
    QPushButton *cancelButton;
    TXProgressBar *bar;
    QLabel *endingLabel;
    /// Before the bar, a child, in going.
    std::unique_ptr<ObservedProgress> observed;
};
