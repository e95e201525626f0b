#pragma once

#include "AutoMountNetworkDrive.h"
#include "NetworkDriveConnectionState.h"
#include "TXGUICommonExport.h"

#include <QAbstractTableModel>

/// The network drives of TXAutoMountManager as a table, a row a drive.
///
/// Holds no data: every call goes through to the manager. So change the list through this model
/// while a view shows it, and through one model only; what is added to, replaced in or removed from
/// the manager by another way is not told to views. Only a new state, of which the manager itself
/// tells, is.
///
/// | Column | Header | Shows |
/// |---|---|---|
/// | 0 | "Status" | the state as a pixmap of 20 by 20 device-independent pixels |
/// | 1 | "Active" | a check box: whether the drive is to be kept connected |
/// | 2 | "Network Drive" | the mount point |
/// | 3 | "Host" | the host of the address |
/// | 4 | "Share" | the path of the address, slash included |
/// | 5 | "User" | the user of the address |
///
/// Texts are fully decoded. Columns 0 and 1 have no text; to reading aids (Qt::AccessibleTextRole)
/// they are the state in words, and "Active". The state in words is also the tool tip of every
/// column, and empty for a state that has no name.
///
/// The display role also answers in two columns that are not counted, and that no view shows: 8,
/// the user's domain, and 9, the protocol.
///
/// Saves nothing: call TXAutoMountManager::saveDriveList().
///
/// Thread: the GUI thread. A state of which the manager tells on another thread is queued.
class TXGUICOMMON_EXPORT AutoMountNetworkDriveModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A model over the drives that the manager has; follows their states from now on.
    explicit AutoMountNetworkDriveModel(QObject *parent = nullptr);

    /// The index of a cell, also in the columns 8 and 9; invalid for any other that is not there.
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;

    /// The number of drives; 0 below a drive.
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// 6; 0 below a drive.
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    /// The headers of the table above, translated, for the display role of the horizontal header.
    /// Invalid for anything else: rows have no numbers.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    /// Every cell, of every column, can be selected, edited and checked. Where there is none,
    /// Qt::ItemIsEnabled alone.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// What the table above shows. The edit role gives the whole AutoMountNetworkDrive, its
    /// password included, in any column. Invalid where there is no drive, and for other roles.
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    /// With the edit role the value is an AutoMountNetworkDrive that takes the row's place,
    /// whatever the column; dataChanged() tells of the whole row. With the check state role, in
    /// column 1, it switches the drive on when the value as an int (QVariant::toInt()) is 2, which
    /// is Qt::Checked, be it a text or a fraction, and off for any other value, a true bool too;
    /// dataChanged() tells of this cell. Both also when the new drive equals the old one.
    ///
    /// False, and nothing changed, for anything else; so a text that a view's own editor hands over
    /// does no harm.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// Adds so many empty drives. They come at the end, wherever the row points, but views are told
    /// that they come at the row (brought into 0 to rowCount()): pass rowCount(), else selections
    /// and persistent indexes below the row move on to other drives.
    ///
    /// False, and nothing changed, for less than one, and below a drive.
    bool insertRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Removes so many drives from the row on, by TXAutoMountManager::remove(), which disconnects
    /// them in the background. False, and nothing changed, for less than one, when not all the rows
    /// are there, and below a drive.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Does nothing and returns true: the columns are fixed.
    bool insertColumns(int column, int count, const QModelIndex &parent = {}) override;
    /// Does nothing and returns true: the columns are fixed.
    bool removeColumns(int column, int count, const QModelIndex &parent = {}) override;

public slots:
    /// Looks for the drive by AutoMountNetworkDrive::operator==, from the first row on. Tells views
    /// that the status cell of the first that equals it has changed, then emits
    /// statusNetworkDriveChanged(). Of several equal drives it is always the first. Nothing happens
    /// when there is none.
    ///
    /// The state that is shown is the one that the manager has; `newStatus` is passed on only.
    ///
    /// Costs at most one comparison a drive, which takes next to nothing for different drives.
    void statusNetworkDriveChangedSlot(NetworkDriveConnectionState newStatus,
                                       AutoMountNetworkDrive drive);

signals:
    /// The manager has told of a new state of a drive that is in the table; emitted after
    /// dataChanged(). Not emitted for a drive that is not, or no longer, in it, nor by setData().
    void statusNetworkDriveChanged(NetworkDriveConnectionState newStatus,
                                   AutoMountNetworkDrive drive);

private:
    [[nodiscard]] static QString statusText(NetworkDriveConnectionState status);
    [[nodiscard]] QVariant spokenText(const AutoMountNetworkDrive &drive, int column) const;
    bool setDrive(const QModelIndex &index, const QVariant &value);
    bool setActivated(const QModelIndex &index, const QVariant &value);
};
