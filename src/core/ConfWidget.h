#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

/// Base of a configuration page that a plug-in brings, see IWidgetPlugin.
///
/// A page shows settings that the host hands it and gives back what the user made of them; where
/// they are kept is the host's business. The library calls none of this.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT ConfWidget : public QWidget
{
    Q_OBJECT

public:
    /// A page in the parent, which owns it. Without a parent it is a window of its own.
    explicit ConfWidget(QWidget *parent = nullptr);

    /// Shows these settings. A page takes its own default for a key that is missing or holds what
    /// it cannot use, and leaves keys that it does not know alone. Does not emit
    /// confWidgetChanged().
    virtual void load(const QHash<QString, QVariant> &settings) = 0;

    /// The settings as the page shows them, under the keys that load() reads.
    virtual QHash<QString, QVariant> save() = 0;

signals:
    /// For pages to emit when the user has changed something, so that the host can offer to save.
    /// The base never does.
    void confWidgetChanged();
};
