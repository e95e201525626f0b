#include "AutoMountNetworkDriveModel.h"

#include "TXAutoMountManager.h"
#include "TXResources.h"

#include <QPixmap>
#include <QUrl>

#include <limits>

namespace {

enum Column {
    StatusColumn,
    ActiveColumn,
    MountPointColumn,
    HostColumn,
    ShareColumn,
    UserColumn,
    kColumnCount,
    // Not counted, and not shown by a view.
    DomainColumn = 8,
    ProtocolColumn = 9,
};

constexpr int kIconSide = 20;

const QString kDomainKey = QStringLiteral("NetworkDriveDomain");

TXAutoMountManager *manager()
{
    return TXAutoMountManager::getInstance();
}

bool hasDrive(const QModelIndex &index)
{
    return index.isValid() && index.row() < manager()->count();
}

QPixmap statusBullet(NetworkDriveConnectionState status)
{
    switch (status) {
    case NetworkDriveConnected:
        return TXDisplayFixBulletStaticImage();
    case NetworkDriveReconnectionFailed:
    case NetworkDriveLetterTaken:
        return TXDisplayWarningBulletStaticImage();
    case NetworkDriveDisconnected:
        break;
    }
    return TXDisplayErrorBulletStaticImage();
}

/// The side is in device-independent pixels: a bullet made for a fine screen keeps its pixels.
QPixmap statusIcon(NetworkDriveConnectionState status)
{
    const QPixmap bullet = statusBullet(status);
    const int side = qRound(kIconSide * bullet.devicePixelRatio());
    return bullet.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QVariant displayed(const AutoMountNetworkDrive &drive, int column)
{
    switch (column) {
    case MountPointColumn:
        return drive.getMountPoint();
    case HostColumn:
        return drive.getUrl().host(QUrl::FullyDecoded);
    case ShareColumn:
        return drive.getUrl().path(QUrl::FullyDecoded);
    case UserColumn:
        return drive.getUrl().userName(QUrl::FullyDecoded);
    case DomainColumn:
        return drive.getExtParameters().value(kDomainKey).toString();
    case ProtocolColumn:
        return drive.getUrl().scheme();
    default:
        return {};
    }
}

} // namespace

AutoMountNetworkDriveModel::AutoMountNetworkDriveModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    connect(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)), this,
        SLOT(statusNetworkDriveChangedSlot(NetworkDriveConnectionState, AutoMountNetworkDrive)));
}

QModelIndex AutoMountNetworkDriveModel::index(int row, int column, const QModelIndex &parent) const
{
    if (column == DomainColumn || column == ProtocolColumn) {
        return hasIndex(row, 0, parent) ? createIndex(row, column) : QModelIndex();
    }
    return QAbstractTableModel::index(row, column, parent);
}

int AutoMountNetworkDriveModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : manager()->count();
}

int AutoMountNetworkDriveModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant AutoMountNetworkDriveModel::headerData(int section, Qt::Orientation orientation,
                                                int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case StatusColumn:
        return tr("Status");
    case ActiveColumn:
        return tr("Active");
    case MountPointColumn:
        return tr("Network Drive");
    case HostColumn:
        return tr("Host");
    case ShareColumn:
        return tr("Share");
    case UserColumn:
        return tr("User");
    default:
        return {};
    }
}

Qt::ItemFlags AutoMountNetworkDriveModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::ItemIsEnabled;
    }
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable | Qt::ItemIsUserCheckable;
}

QVariant AutoMountNetworkDriveModel::data(const QModelIndex &index, int role) const
{
    if (!hasDrive(index)) {
        return {};
    }
    const AutoMountNetworkDrive drive = manager()->getDrive(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return displayed(drive, index.column());
    case Qt::EditRole:
        return QVariant::fromValue(drive);
    case Qt::ToolTipRole:
        return statusText(drive.getStatus());
    case Qt::DecorationRole:
        return index.column() == StatusColumn ? statusIcon(drive.getStatus()) : QVariant();
    case Qt::CheckStateRole:
        return index.column() == ActiveColumn
            ? QVariant(drive.isActivated() ? Qt::Checked : Qt::Unchecked)
            : QVariant();
    case Qt::AccessibleTextRole:
        return spokenText(drive, index.column());
    default:
        return {};
    }
}

QVariant AutoMountNetworkDriveModel::spokenText(const AutoMountNetworkDrive &drive,
                                                int column) const
{
    switch (column) {
    case StatusColumn:
        return statusText(drive.getStatus());
    case ActiveColumn:
        return headerData(ActiveColumn, Qt::Horizontal);
    default:
        return {};
    }
}

QString AutoMountNetworkDriveModel::statusText(NetworkDriveConnectionState status)
{
    switch (status) {
    case NetworkDriveConnected:
        return tr("This Network Drive is connected");
    case NetworkDriveDisconnected:
        // Translations know the text with its stray letter.
        return tr("This nNetwork Drive is disconnected");
    case NetworkDriveReconnectionFailed:
        return tr("Impossible to reconnect the Network Drive, please check the address, the "
                  "password and the user name");
    case NetworkDriveLetterTaken:
        return tr("This Network Drive letter is already used, please choose another letter to "
                  "connect the Network Drive");
    }
    return {};
}

bool AutoMountNetworkDriveModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!hasDrive(index)) {
        return false;
    }
    if (role == Qt::EditRole) {
        return setDrive(index, value);
    }
    if (role == Qt::CheckStateRole && index.column() == ActiveColumn) {
        return setActivated(index, value);
    }
    return false;
}

bool AutoMountNetworkDriveModel::setDrive(const QModelIndex &index, const QVariant &value)
{
    // A view's own editor hands over text, which would put an empty drive in this one's place.
    if (!value.canConvert<AutoMountNetworkDrive>()) {
        return false;
    }
    manager()->replace(index.row(), value.value<AutoMountNetworkDrive>());
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), kColumnCount - 1));
    return true;
}

bool AutoMountNetworkDriveModel::setActivated(const QModelIndex &index, const QVariant &value)
{
    AutoMountNetworkDrive drive = manager()->getDrive(index.row());
    drive.setActivated(value.toInt() == Qt::Checked);
    manager()->replace(index.row(), drive);
    emit dataChanged(index, index);
    return true;
}

bool AutoMountNetworkDriveModel::insertRows(int row, int count, const QModelIndex &parent)
{
    const int rows = manager()->count();
    if (parent.isValid() || count < 1 || count > std::numeric_limits<int>::max() - rows) {
        return false;
    }
    const int first = qBound(0, row, rows);
    beginInsertRows(parent, first, first + count - 1);
    for (int i = 0; i < count; ++i) {
        manager()->add(AutoMountNetworkDrive(QHash<QString, QVariant>()));
    }
    endInsertRows();
    return true;
}

bool AutoMountNetworkDriveModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1 || count > manager()->count() - row) {
        return false;
    }
    beginRemoveRows(parent, row, row + count - 1);
    for (int i = 0; i < count; ++i) {
        manager()->remove(row);
    }
    endRemoveRows();
    return true;
}

bool AutoMountNetworkDriveModel::insertColumns(int, int, const QModelIndex &)
{
    return true;
}

bool AutoMountNetworkDriveModel::removeColumns(int, int, const QModelIndex &)
{
    return true;
}

// One comparison a row up to the drive; the manager's copies share their data.
void AutoMountNetworkDriveModel::statusNetworkDriveChangedSlot(
    NetworkDriveConnectionState newStatus, AutoMountNetworkDrive drive)
{
    const int rows = manager()->count();
    for (int row = 0; row < rows; ++row) {
        if (manager()->getDrive(row) == drive) {
            const QModelIndex changed = index(row, StatusColumn);
            emit dataChanged(changed, changed);
            emit statusNetworkDriveChanged(newStatus, drive);
            return;
        }
    }
}
