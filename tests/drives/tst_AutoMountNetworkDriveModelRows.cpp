#include "DriveModelHelpers.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QSignalSpy>

using DriveTest::addDrives;
using DriveTest::hosts;
using DriveTest::makeDrive;
using DriveTest::manager;

namespace {

using Mode = QAbstractItemModelTester::FailureReportingMode;

/// Keeps what is printed from the test's own eyes, to be looked at one by one.
class MessageCollector
{
public:
    MessageCollector() { previous = qInstallMessageHandler(collect); }
    ~MessageCollector()
    {
        qInstallMessageHandler(previous);
        collected.clear();
    }
    Q_DISABLE_COPY_MOVE(MessageCollector)

    [[nodiscard]] static QStringList failures()
    {
        return collected.filter(QStringLiteral("FAIL!"));
    }

private:
    static void collect(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        collected.append(message);
    }

    static inline QStringList collected;
    QtMessageHandler previous = nullptr;
};

/// The model with no flags where there is no drive.
class WithoutFlagsOfNothing : public QIdentityProxyModel
{
public:
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? QIdentityProxyModel::flags(index) : Qt::ItemFlags();
    }
};

/// The same, with the host as the text of the first column, where the tester looks for the rows.
class HostFirst : public WithoutFlagsOfNothing
{
public:
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        const bool isFirst = index.column() == 0 && role == Qt::DisplayRole;
        return QIdentityProxyModel::data(isFirst ? index.siblingAtColumn(3) : index, role);
    }
};

QVariant drive(const QString &host)
{
    return QVariant::fromValue(makeDrive(host));
}

/// Every way in which the model changes, rows coming in at the end.
void changeInEveryWay(QAbstractItemModel &model)
{
    model.insertRows(model.rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        model.setData(model.index(row, row), drive(QString(QChar('a' + row))));
    }
    model.setData(model.index(1, 1), Qt::Checked, Qt::CheckStateRole);
    manager().setDriveStatus(2, NetworkDriveConnected);
    model.insertRows(model.rowCount(), 2);
    model.removeRows(1, 2);
    model.insertColumns(2, 1);
    model.removeColumns(0, 2);
    model.removeRows(0, model.rowCount());
    model.insertRows(0, 1);
}

/// Where rows are said to come or go, as "first-last".
QString places(const QSignalSpy &signal)
{
    QStringList found;
    for (const QList<QVariant> &call : signal) {
        found.append(QStringLiteral("%1-%2").arg(call.at(1).toInt()).arg(call.at(2).toInt()));
    }
    return found.join(u' ');
}

} // namespace

class TestAutoMountNetworkDriveModelRows : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { DriveTest::removeAllDrives(); }

private slots:
    void drivesComeAtTheEndWhereverTheRowPoints_data();
    void drivesComeAtTheEndWhereverTheRowPoints();
    void insertedDrivesAreEmpty();
    void insertionIsAnnouncedAroundTheChange();
    void insertionThatCannotBeIsRefused_data();
    void insertionThatCannotBeIsRefused();
    void persistentIndexesMoveOnWhenTheRowIsNotTheEnd();

    void rowsAreRemoved_data();
    void rowsAreRemoved();
    void removalIsAnnouncedAroundTheChange();
    void removalThatCannotBeIsRefused_data();
    void removalThatCannotBeIsRefused();
    void columnsStayAsTheyAreAndThatIsFine();

    void testerComplainsOfTheFlagsOfNothingOnly();
    void everyOtherRuleOfTheTesterIsKept();
    void testerComplainsOfThePlaceOfInsertedRows();
};

void TestAutoMountNetworkDriveModelRows::drivesComeAtTheEndWhereverTheRowPoints_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("announced");
    QTest::addColumn<QString>("result");
    QTest::newRow("first row") << 0 << 1 << "0-0"
                               << "a b -";
    QTest::newRow("between") << 1 << 2 << "1-2"
                             << "a b - -";
    QTest::newRow("end") << 2 << 1 << "2-2"
                         << "a b -";
    QTest::newRow("before the first") << -1 << 1 << "0-0"
                                      << "a b -";
    QTest::newRow("far before") << INT_MIN << 2 << "0-1"
                                << "a b - -";
    QTest::newRow("behind the end") << 3 << 1 << "2-2"
                                    << "a b -";
    QTest::newRow("far behind") << INT_MAX << 2 << "2-3"
                                << "a b - -";
}

void TestAutoMountNetworkDriveModelRows::drivesComeAtTheEndWhereverTheRowPoints()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, announced);
    QFETCH(QString, result);
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    const QSignalSpy after(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(model.insertRows(row, count));
    QCOMPARE(hosts(), result);
    QCOMPARE(places(before), announced);
    QCOMPARE(places(after), announced);
}

void TestAutoMountNetworkDriveModelRows::insertedDrivesAreEmpty()
{
    AutoMountNetworkDriveModel model;
    QVERIFY(model.insertRows(0, 2));
    QCOMPARE(manager().count(), 2);
    for (int row = 0; row < 2; ++row) {
        QVERIFY(manager().getDrive(row).getUrl().isEmpty());
        QVERIFY(manager().getDrive(row).getExtParameters().isEmpty());
        QVERIFY(!manager().getDrive(row).isActivated());
    }
}

void TestAutoMountNetworkDriveModelRows::insertionIsAnnouncedAroundTheChange()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    QList<int> counts;
    const auto note = [&] {
        counts.append(model.rowCount());
    };
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this, note);
    connect(&model, &QAbstractItemModel::rowsInserted, this, note);
    QVERIFY(model.insertRows(1, 3));
    QCOMPARE(counts, QList<int>({1, 4}));
}

void TestAutoMountNetworkDriveModelRows::insertionThatCannotBeIsRefused_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isBelowADrive");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("less than none") << -1 << false;
    QTest::newRow("far less") << INT_MIN << false;
    QTest::newRow("more than rows can be") << INT_MAX << false;
    QTest::newRow("below a drive") << 1 << true;
}

void TestAutoMountNetworkDriveModelRows::insertionThatCannotBeIsRefused()
{
    QFETCH(int, count);
    QFETCH(bool, isBelowADrive);
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QVERIFY(!model.insertRows(0, count, isBelowADrive ? model.index(0, 0) : QModelIndex()));
    QCOMPARE(hosts(), "a");
    QCOMPARE(before.count(), 0);
}

void TestAutoMountNetworkDriveModelRows::persistentIndexesMoveOnWhenTheRowIsNotTheEnd()
{
    addDrives({"a", "b", "c"});
    AutoMountNetworkDriveModel model;
    const QPersistentModelIndex b = model.index(1, 3);
    QVERIFY(model.insertRows(model.rowCount(), 1));
    QCOMPARE(b.data().toString(), "b");
    QVERIFY(model.insertRows(0, 1));
    QCOMPARE(b.row(), 2);
    QCOMPARE(b.data().toString(), "c");
}

void TestAutoMountNetworkDriveModelRows::rowsAreRemoved_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("announced");
    QTest::addColumn<QString>("result");
    QTest::newRow("first") << 0 << 1 << "0-0"
                           << "b c d";
    QTest::newRow("in the middle") << 1 << 2 << "1-2"
                                   << "a d";
    QTest::newRow("last") << 3 << 1 << "3-3"
                          << "a b c";
    QTest::newRow("all") << 0 << 4 << "0-3"
                         << "";
}

void TestAutoMountNetworkDriveModelRows::rowsAreRemoved()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, announced);
    QFETCH(QString, result);
    addDrives({"a", "b", "c", "d"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    const QSignalSpy after(&model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(model.removeRows(row, count));
    QCOMPARE(hosts(), result);
    QCOMPARE(places(before), announced);
    QCOMPARE(places(after), announced);
}

void TestAutoMountNetworkDriveModelRows::removalIsAnnouncedAroundTheChange()
{
    addDrives({"a", "b", "c"});
    AutoMountNetworkDriveModel model;
    QList<int> counts;
    const auto note = [&] {
        counts.append(model.rowCount());
    };
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, note);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, note);
    QVERIFY(model.removeRows(1, 2));
    QCOMPARE(counts, QList<int>({3, 1}));
}

void TestAutoMountNetworkDriveModelRows::removalThatCannotBeIsRefused_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isBelowADrive");
    QTest::newRow("before the first") << -1 << 1 << false;
    QTest::newRow("far before") << INT_MIN << 1 << false;
    QTest::newRow("behind the last") << 2 << 1 << false;
    QTest::newRow("far behind") << INT_MAX << INT_MAX << false;
    QTest::newRow("one too many") << 1 << 2 << false;
    QTest::newRow("far too many") << 1 << INT_MAX << false;
    QTest::newRow("none") << 0 << 0 << false;
    QTest::newRow("less than none") << 1 << -1 << false;
    QTest::newRow("below a drive") << 0 << 1 << true;
}

void TestAutoMountNetworkDriveModelRows::removalThatCannotBeIsRefused()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(bool, isBelowADrive);
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    QVERIFY(!model.removeRows(row, count, isBelowADrive ? model.index(0, 0) : QModelIndex()));
    QCOMPARE(hosts(), "a b");
    QCOMPARE(before.count(), 0);
}

void TestAutoMountNetworkDriveModelRows::columnsStayAsTheyAreAndThatIsFine()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy inserted(&model, &QAbstractItemModel::columnsAboutToBeInserted);
    const QSignalSpy removed(&model, &QAbstractItemModel::columnsAboutToBeRemoved);
    for (const int column : {-1, 0, 6, INT_MAX}) {
        QVERIFY(model.insertColumns(column, 1));
        QVERIFY(model.removeColumns(column, 1, model.index(0, 0)));
    }
    QCOMPARE(model.columnCount(), 6);
    QCOMPARE(inserted.count() + removed.count(), 0);
}

// The tester wants no flags where there is no item, but for drops; the model says "enabled" there.
void TestAutoMountNetworkDriveModelRows::testerComplainsOfTheFlagsOfNothingOnly()
{
    const MessageCollector complaints;
    AutoMountNetworkDriveModel model;
    const QAbstractItemModelTester tester(&model, Mode::Warning);
    changeInEveryWay(model);
    QVERIFY(!MessageCollector::failures().isEmpty());
    for (const QString &failure : MessageCollector::failures()) {
        QVERIFY2(failure.contains("flags == Qt::ItemIsDropEnabled || flags == 0"),
                 qPrintable(failure));
    }
}

void TestAutoMountNetworkDriveModelRows::everyOtherRuleOfTheTesterIsKept()
{
    AutoMountNetworkDriveModel model;
    WithoutFlagsOfNothing shown;
    shown.setSourceModel(&model);
    const QAbstractItemModelTester tester(&shown, Mode::Fatal);
    changeInEveryWay(shown);
    changeInEveryWay(model);
    QCOMPARE(hosts(), "-");
}

// Rows that are announced at a place have to come there: the tester compares the texts of the first
// column around them. The model has none there, so that it sees nothing without some help.
void TestAutoMountNetworkDriveModelRows::testerComplainsOfThePlaceOfInsertedRows()
{
    const MessageCollector complaints;
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    HostFirst shown;
    shown.setSourceModel(&model);
    const QAbstractItemModelTester tester(&shown, Mode::Warning);
    model.insertRows(model.rowCount(), 1);
    QCOMPARE(MessageCollector::failures(), QStringList());
    model.insertRows(1, 1);
    QVERIFY(!MessageCollector::failures().isEmpty());
    for (const QString &failure : MessageCollector::failures()) {
        QVERIFY2(failure.contains("c.next"), qPrintable(failure));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveModelRows>(argc, argv);
}

#include "tst_AutoMountNetworkDriveModelRows.moc"
