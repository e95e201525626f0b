#pragma once

#include <QSharedPointer>
#include <QTreeView>

class QTimer;
class TXLogManager;

/// A tree of the log as it is written: the newest entry stays in sight until the user scrolls away
/// from the end, and again once the user has come back to it.
class LogPreview : public QTreeView
{
    Q_OBJECT

public:
    /// Shows what is logged from now on. The log is shared.
    explicit LogPreview(const QSharedPointer<TXLogManager> &log, QWidget *parent = nullptr);

    QSize sizeHint() const override;

public slots:
    /// Unfolds the newest entry and scrolls to its last line.
    void showNewest();

protected:
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private slots:
    void noteScrolling(int value);

private:
    QTimer *followTimer;
    bool isFollowing = true;
};
