#pragma once

#include "TXGUICommonExport.h"

#include <QLineEdit>
#include <QList>
#include <QUrl>

/// A line edit that takes dropped files and tells its host which they are.
///
/// A drag may be dropped here when the first of its URLs is a file of this machine. The drop does
/// not change the text: a host that wants the path to stand in the field sets it in its slot. Text
/// cannot be dropped here; for that take a QLineEdit.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT LineEditDrapAndDrop : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty line edit that accepts drops.
    explicit LineEditDrapAndDrop(QWidget *parent = nullptr);

signals:
    /// The user has dropped these URLs, all of them and in their order. Only the first has been
    /// looked at when the drag came, so a later one may be remote or lead nowhere. The line edit
    /// may be deleted in a slot, if that is connected directly.
    void urlFileListHaveBeenDropped(QList<QUrl> urls);

protected:
    /// Accepts the proposed action when the first URL is a local file; otherwise leaves the event
    /// as it came, which is ignored. Costs the number of URLs, once a drag.
    void dragEnterEvent(QDragEnterEvent *event) override;

    /// Emits urlFileListHaveBeenDropped() and accepts the proposed action when the data have URLs;
    /// otherwise does nothing.
    void dropEvent(QDropEvent *event) override;
};
