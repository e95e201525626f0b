#pragma once

#include "TXGUICommonExport.h"

#include <QObject>

class QTimer;

/// Makes the program deaf to the user while a blocking operation runs in a loop that excludes user
/// input, as long as it lives. Such a loop holds back, besides keys and clicks, that the user
/// closes a window; this lets the windows be closed.
///
/// What begins an input, as a press of a key or a button does, is dropped in all windows. What ends
/// one, and what input methods compose, is delivered, and so is what the program itself does.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT IgnoredInput : public QObject
{
    Q_OBJECT

public:
    IgnoredInput();

    /// Drops what begins an input.
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void takeIn();

private:
    QTimer *turns;
};
