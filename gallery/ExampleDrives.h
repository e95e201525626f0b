#pragma once

#include <QAbstractItemModel>
#include <QPointer>
#include <QString>

class AutoMountNetworkDrive;
class QUrl;

/// The drives that the gallery itself puts into the user's list of network drives, among those of
/// the user, and takes out again.
///
/// Such a drive carries a mark, by which it is known in the next run too, should the program end
/// before it took the drive away. One that the user has edited has lost the mark: from then on it
/// is the user's.
///
/// Thread: the GUI thread.
class ExampleDrives
{
public:
    /// Where the library makes the links of connected drives, on systems without drive letters.
    [[nodiscard]] static QString linkFolder();

    /// Changes the list through this model of it, an AutoMountNetworkDriveModel, which is not
    /// owned. Nothing happens once the model is gone.
    explicit ExampleDrives(QAbstractItemModel *model);

    /// Adds a drive, switched on or off, at the first free letter from N on. The letter as a mount
    /// point ("N:/"), or an empty text, and nothing added, when no letter is free.
    QString add(const QUrl &address, bool isActivated = true);

    /// The same at this mount point, whether it is free or not.
    void addAt(const QString &mountPoint, const QUrl &address, bool isActivated = true);

    /// Disconnects all marked drives and takes them out of the list. The list is saved then.
    void removeAll();

    /// The same, and blocks until the shares of those that were connected are gone, for two seconds
    /// at most: what is asked for at the end of the program would not be done else. While the
    /// manager runs it waits before that, as long again, for drives that are on their way, and lets
    /// events in, but none of the user.
    void removeAllAndWait();

    /// The same for the drives of an earlier run that was killed, with the links that it has left;
    /// its shares are disconnected beside this program.
    void removeLeftovers();

    /// Whether the drive was added here, and has not been edited since.
    [[nodiscard]] static bool isMarked(const AutoMountNetworkDrive &drive);

    /// How many marked drives are in the list.
    [[nodiscard]] static int count();

    /// How many marked drives are to be connected and have not told yet whether they are.
    [[nodiscard]] static int undecidedCount();

private:
    QPointer<QAbstractItemModel> model;
};
