#include "AutoMountNetworkDriveModel.h"

#include "DriveModelHelpers.h"
#include "TestBase.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTranslator>

using DriveTest::addDrives;
using DriveTest::hosts;
using DriveTest::makeDrive;
using DriveTest::manager;
using DriveTest::OpenModel;

namespace {

constexpr int kColumns = 6;

/// Answers each text in capitals, by its context.
class ShoutingTranslator : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "AutoMountNetworkDriveModel") == 0
            ? QString::fromLatin1(source).toUpper()
            : QString();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
};

QString cells(const QSignalSpy &changes)
{
    QStringList found;
    for (const QList<QVariant> &change : changes) {
        const auto from = change.at(0).toModelIndex();
        const auto to = change.at(1).toModelIndex();
        found.append(QStringLiteral("%1,%2-%3,%4")
                         .arg(from.row())
                         .arg(from.column())
                         .arg(to.row())
                         .arg(to.column()));
    }
    return found.join(u' ');
}

} // namespace

class TestAutoMountNetworkDriveModel : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { DriveTest::removeAllDrives(); }

private slots:
    void sizeIsThatOfTheManager();
    void headersNameTheColumns();
    void headersAreForTheHorizontalDisplayRoleOnly();
    void columnsShowTheDrive_data();
    void columnsShowTheDrive();
    void columnsShowTheAddressDecoded();
    void uncountedColumnsHaveTheToolTipAndTheDriveToo();
    void theTwoUncountedColumnsCanBeAskedFor();
    void toolTipTellsTheStateInEveryColumn_data();
    void toolTipTellsTheStateInEveryColumn();
    void textsAreTranslatedInTheContextOfTheClass();
    void activeDriveIsCheckedInItsColumnOnly();
    void editRoleGivesTheWholeDriveInAnyColumn();
    void otherRolesAreEmpty();
    void indexesWithoutADriveAreEmpty();
    void flagsAreTheSameInEveryColumn();

    void editRoleReplacesTheDriveFromAnyColumn_data();
    void editRoleReplacesTheDriveFromAnyColumn();
    void equalDriveIsReplacedAndToldToo();
    void valueThatIsNoDriveIsRefused_data();
    void valueThatIsNoDriveIsRefused();
    void onlyTheCheckStateTwoSwitchesOn_data();
    void onlyTheCheckStateTwoSwitchesOn();
    void checkStateIsRefusedInOtherColumns();
    void otherRolesAreRefused();
    void rowsThatAreGoneAreRefused();
    void nothingIsStoredByTheModel();
    void damagedDrivesAreShownAndEdited();
    void allLettersAreShown();
};

void TestAutoMountNetworkDriveModel::sizeIsThatOfTheManager()
{
    const AutoMountNetworkDriveModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), kColumns);
    addDrives({"a", "b"});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
}

void TestAutoMountNetworkDriveModel::headersNameTheColumns()
{
    const AutoMountNetworkDriveModel model;
    QStringList headers;
    for (int column = 0; column < kColumns; ++column) {
        headers.append(model.headerData(column, Qt::Horizontal).toString());
    }
    QCOMPARE(headers, QStringList({"Status", "Active", "Network Drive", "Host", "Share", "User"}));
}

void TestAutoMountNetworkDriveModel::headersAreForTheHorizontalDisplayRoleOnly()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel model;
    for (const int section : {-1, 6, 8, 9, INT_MAX}) {
        QVERIFY(!model.headerData(section, Qt::Horizontal).isValid());
    }
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    for (const int role : {Qt::EditRole, Qt::ToolTipRole, Qt::DecorationRole, Qt::UserRole}) {
        QVERIFY(!model.headerData(0, Qt::Horizontal, role).isValid());
    }
}

void TestAutoMountNetworkDriveModel::columnsShowTheDrive_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("text");
    QTest::newRow("status") << 0 << QVariant();
    QTest::newRow("active") << 1 << QVariant();
    QTest::newRow("letter") << 2 << QVariant("Z:/");
    QTest::newRow("host") << 3 << QVariant("a");
    QTest::newRow("share, slash included") << 4 << QVariant("/share");
    QTest::newRow("user") << 5 << QVariant("mia");
    QTest::newRow("6 is empty") << 6 << QVariant();
    QTest::newRow("7 is empty") << 7 << QVariant();
    QTest::newRow("domain, not counted") << 8 << QVariant("office");
    QTest::newRow("protocol, not counted") << 9 << QVariant("smb");
    QTest::newRow("10 is empty") << 10 << QVariant();
}

void TestAutoMountNetworkDriveModel::columnsShowTheDrive()
{
    QFETCH(int, column);
    QFETCH(QVariant, text);
    addDrives({"a"});
    const OpenModel model;
    QCOMPARE(model.data(model.createIndex(0, column)), text);
}

void TestAutoMountNetworkDriveModel::columnsShowTheAddressDecoded()
{
    QUrl url;
    url.setScheme("smb");
    url.setHost(QString::fromUtf8("büro.de"), QUrl::DecodedMode);
    url.setUserName("mia@home %41", QUrl::DecodedMode);
    url.setPath(QString::fromUtf8("//größe/%41 100%"), QUrl::DecodedMode);
    AutoMountNetworkDrive drive;
    drive.setUrl(url);
    manager().add(drive);
    const AutoMountNetworkDriveModel model;
    QCOMPARE(model.index(0, 3).data().toString(), QString::fromUtf8("büro.de"));
    QCOMPARE(model.index(0, 4).data().toString(), QString::fromUtf8("//größe/%41 100%"));
    QCOMPARE(model.index(0, 5).data().toString(), "mia@home %41");
}

void TestAutoMountNetworkDriveModel::uncountedColumnsHaveTheToolTipAndTheDriveToo()
{
    addDrives({"a"});
    const OpenModel model;
    for (const int column : {6, 7, 8, 9, 10}) {
        const QModelIndex index = model.createIndex(0, column);
        QCOMPARE(index.data(Qt::ToolTipRole).toString(), "This nNetwork Drive is disconnected");
        QCOMPARE(index.data(Qt::EditRole).value<AutoMountNetworkDrive>(), makeDrive("a"));
        QVERIFY(!index.data(Qt::DecorationRole).isValid());
        QVERIFY(!index.data(Qt::CheckStateRole).isValid());
    }
}

void TestAutoMountNetworkDriveModel::theTwoUncountedColumnsCanBeAskedFor()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel model;
    QCOMPARE(model.index(0, 8).data(), QVariant("office"));
    QCOMPARE(model.index(0, 9).data(), QVariant("smb"));
    for (const QModelIndex &none :
         {model.index(0, 6), model.index(0, 7), model.index(0, 10), model.index(1, 8),
          model.index(-1, 9), model.index(0, 8, model.index(0, 0))}) {
        QVERIFY(!none.isValid());
    }
}

void TestAutoMountNetworkDriveModel::toolTipTellsTheStateInEveryColumn_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "This Network Drive is connected";
    QTest::newRow("1, with a stray letter") << 1 << "This nNetwork Drive is disconnected";
    QTest::newRow("2") << 2
                       << "Impossible to reconnect the Network Drive, please check the address, "
                          "the password and the user name";
    QTest::newRow("3") << 3
                       << "This Network Drive letter is already used, please choose another "
                          "letter to connect the Network Drive";
    QTest::newRow("4") << 4 << "";
    QTest::newRow("-1") << -1 << "";
    QTest::newRow("1000") << 1000 << "";
}

void TestAutoMountNetworkDriveModel::toolTipTellsTheStateInEveryColumn()
{
    QFETCH(int, state);
    QFETCH(QString, text);
    AutoMountNetworkDrive drive = makeDrive("a");
    drive.setStatus(NetworkDriveConnectionState(state));
    manager().add(drive);
    const AutoMountNetworkDriveModel model;
    for (int column = 0; column < kColumns; ++column) {
        const QVariant toolTip = model.index(0, column).data(Qt::ToolTipRole);
        QCOMPARE(toolTip.typeId(), int(QMetaType::QString));
        QCOMPARE(toolTip.toString(), text);
    }
}

void TestAutoMountNetworkDriveModel::textsAreTranslatedInTheContextOfTheClass()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel model;
    ShoutingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), "NETWORK DRIVE");
    QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole).toString(),
             "THIS NNETWORK DRIVE IS DISCONNECTED");
}

void TestAutoMountNetworkDriveModel::activeDriveIsCheckedInItsColumnOnly()
{
    addDrives({"a", "b"});
    AutoMountNetworkDrive drive = makeDrive("b");
    drive.setActivated(true);
    manager().replace(1, drive);
    const AutoMountNetworkDriveModel model;
    QCOMPARE(model.index(0, 1).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    QCOMPARE(model.index(1, 1).data(Qt::CheckStateRole), QVariant(Qt::Checked));
    for (const int column : {0, 2, 3, 4, 5}) {
        QVERIFY(!model.index(1, column).data(Qt::CheckStateRole).isValid());
    }
}

void TestAutoMountNetworkDriveModel::editRoleGivesTheWholeDriveInAnyColumn()
{
    AutoMountNetworkDrive drive = makeDrive("a");
    drive.setActivated(true);
    drive.setStatus(NetworkDriveLetterTaken);
    manager().add(drive);
    const AutoMountNetworkDriveModel model;
    for (int column = 0; column < kColumns; ++column) {
        const QVariant value = model.index(0, column).data(Qt::EditRole);
        QCOMPARE(value.metaType(), QMetaType::fromType<AutoMountNetworkDrive>());
        const auto found = value.value<AutoMountNetworkDrive>();
        QCOMPARE(found, drive);
        QCOMPARE(found.getUrl().password(), "s3cret");
        QVERIFY(found.isActivated());
        QCOMPARE(found.getStatus(), NetworkDriveLetterTaken);
    }
}

void TestAutoMountNetworkDriveModel::otherRolesAreEmpty()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel model;
    for (int column = 0; column < kColumns; ++column) {
        for (const int role : {int(Qt::StatusTipRole), int(Qt::FontRole), int(Qt::UserRole), -1}) {
            QVERIFY(!model.index(0, column).data(role).isValid());
        }
    }
}

void TestAutoMountNetworkDriveModel::indexesWithoutADriveAreEmpty()
{
    addDrives({"a"});
    const OpenModel model;
    const int roles[] = {Qt::DisplayRole,    Qt::EditRole,       Qt::ToolTipRole,
                         Qt::DecorationRole, Qt::CheckStateRole, Qt::AccessibleTextRole};
    for (const int role : roles) {
        QVERIFY(!model.data(QModelIndex(), role).isValid());
        QVERIFY(!model.data(model.createIndex(1, 1), role).isValid());
        QVERIFY(!model.data(model.createIndex(INT_MAX, 0), role).isValid());
    }
}

void TestAutoMountNetworkDriveModel::flagsAreTheSameInEveryColumn()
{
    addDrives({"a"});
    const OpenModel model;
    const Qt::ItemFlags expected = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable
        | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
    for (int column = 0; column <= 9; ++column) {
        QCOMPARE(model.flags(model.createIndex(0, column)), expected);
    }
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsEnabled));
}

void TestAutoMountNetworkDriveModel::editRoleReplacesTheDriveFromAnyColumn_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column <= 9; ++column) {
        QTest::addRow("%d", column) << column;
    }
}

void TestAutoMountNetworkDriveModel::editRoleReplacesTheDriveFromAnyColumn()
{
    QFETCH(int, column);
    addDrives({"a", "b", "c"});
    OpenModel model;
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    AutoMountNetworkDrive drive = makeDrive("x", "Y");
    drive.setActivated(true);
    drive.setStatus(NetworkDriveConnected);
    QVERIFY(model.setData(model.createIndex(1, column), QVariant::fromValue(drive)));
    QCOMPARE(hosts(), "a x c");
    QCOMPARE(manager().getDrive(1), drive);
    QVERIFY(manager().getDrive(1).isActivated());
    QCOMPARE(manager().getDrive(1).getStatus(), NetworkDriveConnected);
    QCOMPARE(cells(changes), "1,0-1,5");
}

void TestAutoMountNetworkDriveModel::equalDriveIsReplacedAndToldToo()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(0, 3), QVariant::fromValue(makeDrive("a"))));
    QVERIFY(model.setData(model.index(0, 1), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(cells(changes), "0,0-0,5 0,1-0,1");
}

void TestAutoMountNetworkDriveModel::valueThatIsNoDriveIsRefused_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("text of an editor") << QVariant("smb://x/share");
    QTest::newRow("number") << QVariant(2);
    QTest::newRow("address") << QVariant(QUrl("smb://x/share"));
    QTest::newRow("dictionary") << QVariant(makeDrive("x").toVariantHash());
}

void TestAutoMountNetworkDriveModel::valueThatIsNoDriveIsRefused()
{
    QFETCH(QVariant, value);
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    for (int column = 0; column < kColumns; ++column) {
        QVERIFY(!model.setData(model.index(0, column), value));
    }
    QCOMPARE(manager().getDrive(0), makeDrive("a"));
    QCOMPARE(changes.count(), 0);
}

void TestAutoMountNetworkDriveModel::onlyTheCheckStateTwoSwitchesOn_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("checked") << QVariant::fromValue(Qt::Checked) << true;
    QTest::newRow("2") << QVariant(2) << true;
    QTest::newRow("2 as a text") << QVariant("2") << true;
    QTest::newRow("2.4") << QVariant(2.4) << true;
    QTest::newRow("2.6") << QVariant(2.6) << false;
    QTest::newRow("partially checked") << QVariant::fromValue(Qt::PartiallyChecked) << false;
    QTest::newRow("unchecked") << QVariant::fromValue(Qt::Unchecked) << false;
    QTest::newRow("true") << QVariant(true) << false;
    QTest::newRow("3") << QVariant(3) << false;
    QTest::newRow("-2") << QVariant(-2) << false;
    QTest::newRow("text") << QVariant("on") << false;
    QTest::newRow("nothing") << QVariant() << false;
}

void TestAutoMountNetworkDriveModel::onlyTheCheckStateTwoSwitchesOn()
{
    QFETCH(QVariant, value);
    QFETCH(bool, on);
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    for (const bool before : {false, true}) {
        AutoMountNetworkDrive drive = makeDrive("b");
        drive.setActivated(before);
        drive.setStatus(NetworkDriveLetterTaken);
        manager().replace(1, drive);
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(model.setData(model.index(1, 1), value, Qt::CheckStateRole));
        QCOMPARE(manager().getDrive(1).isActivated(), on);
        QCOMPARE(manager().getDrive(1), drive);
        QCOMPARE(manager().getDrive(1).getStatus(), NetworkDriveLetterTaken);
        QVERIFY(!manager().getDrive(0).isActivated());
        QCOMPARE(cells(changes), "1,1-1,1");
    }
}

void TestAutoMountNetworkDriveModel::checkStateIsRefusedInOtherColumns()
{
    addDrives({"a"});
    OpenModel model;
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    for (const int column : {0, 2, 3, 4, 5, 8, 9}) {
        QVERIFY(!model.setData(model.createIndex(0, column), Qt::Checked, Qt::CheckStateRole));
    }
    QVERIFY(!manager().getDrive(0).isActivated());
    QCOMPARE(changes.count(), 0);
}

void TestAutoMountNetworkDriveModel::otherRolesAreRefused()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Qt::UserRole)}) {
        QVERIFY(!model.setData(model.index(0, 1), QVariant::fromValue(makeDrive("x")), role));
    }
    QCOMPARE(hosts(), "a");
}

void TestAutoMountNetworkDriveModel::rowsThatAreGoneAreRefused()
{
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    const QModelIndex gone = model.index(1, 1);
    manager().remove(1);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(gone, QVariant::fromValue(makeDrive("x"))));
    QVERIFY(!model.setData(gone, Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model.setData(QModelIndex(), QVariant::fromValue(makeDrive("x"))));
    QVERIFY(!model.setData(QModelIndex(), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!gone.data(Qt::EditRole).isValid());
    QCOMPARE(hosts(), "a");
    QCOMPARE(changes.count(), 0);
}

void TestAutoMountNetworkDriveModel::nothingIsStoredByTheModel()
{
    AutoMountNetworkDriveModel model;
    QVERIFY(model.insertRows(0, 2));
    QVERIFY(model.setData(model.index(0, 0), QVariant::fromValue(makeDrive("a"))));
    QVERIFY(model.setData(model.index(0, 1), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(model.removeRows(1, 1));
    QVERIFY(QSettings().allKeys().isEmpty());
}

void TestAutoMountNetworkDriveModel::damagedDrivesAreShownAndEdited()
{
    manager().add(AutoMountNetworkDrive({{"NetworkDriveHost", "two words"},
                                         {"NetworkDriveScheme", "no scheme"},
                                         {"NetworkDrivePath", "//%zz%00\nline"},
                                         {"NetworkDriveMountPoint", QVariantList{1, 2}},
                                         {"NetworkDriveDomain", 17},
                                         {"NetworkDrivePassword", "damaged"}}));
    OpenModel model;
    QVERIFY(model.index(0, 2).data().toString().isEmpty());
    QVERIFY(model.index(0, 3).data().toString().isEmpty());
    QVERIFY(model.index(0, 4).data().toString().contains("line"));
    QCOMPARE(model.data(model.createIndex(0, 8)), QVariant("17"));
    QCOMPARE(model.data(model.createIndex(0, 9)), QVariant(""));
    const QVariant drive = model.index(0, 0).data(Qt::EditRole);
    QVERIFY(model.setData(model.index(0, 1), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(model.setData(model.index(0, 0), drive));
    QCOMPARE(manager().getDrive(0), drive.value<AutoMountNetworkDrive>());
    QCOMPARE(manager().getDrive(0).toVariantHash().value("NetworkDrivePassword").toString(),
             "damaged");
}

void TestAutoMountNetworkDriveModel::allLettersAreShown()
{
    QString letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        manager().add(makeDrive("server", QString(QLatin1Char(letter))));
    }
    const AutoMountNetworkDriveModel model;
    for (int row = 0; row < model.rowCount(); ++row) {
        letters.append(model.index(row, 2).data().toString());
    }
    QCOMPARE(letters,
             "A:/B:/C:/D:/E:/F:/G:/H:/I:/J:/K:/L:/M:/N:/O:/P:/Q:/R:/S:/T:/U:/V:/W:/X:/Y:/Z:/");
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveModel>(argc, argv);
}

#include "tst_AutoMountNetworkDriveModel.moc"
