#pragma once

#include "ICompletionDelegate.h"
#include "ProgressBarCompletionDelegate.h"

#include <QObject>

#include <atomic>

class QProgressBar;
class TXProgressBar;

/// A ProgressBarCompletionDelegate over a TXProgressBar, with counts of what goes in and what comes
/// out: reports of workers, and paintings of the bar.
///
/// Workers report to this object, which passes all on. It has to outlive its workers and must be
/// destroyed before its bar. Made on the GUI thread; the operations of ICompletionDelegate may be
/// called from any.
class ObservedProgress final : public QObject, public ICompletionDelegate
{
    Q_OBJECT

public:
    /// The bar stays the caller's.
    explicit ObservedProgress(TXProgressBar *bar, QObject *parent = nullptr);

    /// Both counts begin again with 0.
    void startCounting();

    /// Reports of progress and messages. Any thread.
    [[nodiscard]] qint64 reports() const { return reportCount; }
    /// How often the bar was painted.
    [[nodiscard]] qint64 paintings() const { return paintingCount; }

    void onProgressionUpdated(QList<QString> path, float progress) override;
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;
    void onLogAppended(QList<QString> path, const TXError &error) override;
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    ProgressBarCompletionDelegate delegate;
    QProgressBar *paintedBar;
    std::atomic<qint64> reportCount = 0;
    qint64 paintingCount = 0;
};
