#pragma once

#include "TXGUICommonExport.h"

#include <QObject>

/// Counts how often the fonts of the application have changed, for those who remember measures.
///
/// A font that is added or removed counts, and so does the end of the application. Several
/// applications may come and go in one process.
class TXGUICOMMON_PRIVATE_EXPORT FontChanges : public QObject
{
    Q_OBJECT

public:
    /// The number of changes since it was asked for first. Costs a few reads of memory, but at the
    /// first call for an application. Thread: any.
    [[nodiscard]] static int count();

private slots:
    void countChange();
    void leaveApplication();

private:
    void watch(QObject *application);
};
