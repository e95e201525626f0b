#pragma once

#include "ICompletionDelegate.h"

#include <QPointer>

class TXProgressBar;

/// Shows the progress of work on the GUI thread in a bar, and lets the program go on breathing: at
/// each report events are handled, so that the work can be cancelled and windows are painted. What
/// started the work has to be ready for anything a user can do meanwhile, closing the window too.
class ReportProgress : public ICompletionDelegate
{
public:
    /// The bar stays the caller's and may be destroyed while the work goes on.
    explicit ReportProgress(TXProgressBar *bar);

    void onProgressionUpdated(QList<QString> path, float progress) override;
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;
    void onLogAppended(QList<QString> path, const TXError &error) override;
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

private:
    QPointer<TXProgressBar> bar;
};
