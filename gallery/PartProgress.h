#pragma once

#include "ICompletionDelegate.h"

#include <QObject>
#include <QPointer>

class ObservedProgress;

/// Reports one part of a work as a share of the whole, and lets the program go on breathing: at
/// each report events are handled, so that the delegate's timer fires, windows are painted and the
/// work can be cancelled although it is done on the GUI thread.
///
/// What started the work has to be ready for anything a user can do meanwhile, closing the window
/// too. GUI thread.
class PartProgress final : public ICompletionDelegate
{
public:
    /// Part number `part`, from 0, of so many. The whole may be destroyed while the work goes on;
    /// nothing is reported then.
    PartProgress(ObservedProgress *whole, int part, int parts);

    /// The whole comes to 100 at the end of its last part only.
    void onProgressionUpdated(QList<QString> path, float progress) override;
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;
    void onLogAppended(QList<QString> path, const TXError &error) override;
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

private:
    QPointer<ObservedProgress> whole;
    int part;
    int parts;
};
