#include "DriveFormHelpers.h"
#include "DriveModelHelpers.h"
#include "PixelProbe.h"
#include "TXResources.h"
#include "TestBase.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QProcess>
#include <QTreeView>

#include <cstdio>

using DriveFormTest::darkPalette;
using DriveTest::addDrives;
using DriveTest::hosts;
using DriveTest::makeDrive;
using DriveTest::manager;

namespace {

constexpr QSize kIcon(20, 20);
constexpr QRgb kSuccess = 0xff2e9e4f;
constexpr QRgb kFailure = 0xffd13438;
constexpr QRgb kWarning = 0xffc97800;
constexpr char kDescribeIcon[] = "--describe-icon";

/// A list as a window shows it.
struct DriveView
{
    DriveView()
    {
        view.setModel(&model);
        view.setRootIsDecorated(false);
        view.setUniformRowHeights(true);
        view.resize(604, 240);
    }

    [[nodiscard]] QRect cell(int row, int column) const
    {
        return view.visualRect(model.index(row, column))
            .translated(view.viewport()->mapTo(&view, QPoint()));
    }

    AutoMountNetworkDriveModel model;
    QTreeView view;
};

void addDrive(const QString &host, int state)
{
    AutoMountNetworkDrive drive = makeDrive(host);
    drive.setStatus(NetworkDriveConnectionState(state));
    manager().add(drive);
}

qsizetype countNear(const PixelProbe &probe, const QRect &area, const QColor &colour)
{
    qsizetype count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += probe.isNear({x, y}, colour, 6) ? 1 : 0;
        }
    }
    return count;
}

/// The whole of the process that a scaled application is; see iconOfAScaledApplicationIsFiner.
int describeIcon(int argc, char **argv)
{
    const QApplication application(argc, argv);
    addDrive("a", NetworkDriveConnected);
    const AutoMountNetworkDriveModel model;
    const auto icon = model.index(0, 0).data(Qt::DecorationRole).value<QPixmap>();
    std::printf("%dx%d@%g", icon.width(), icon.height(), icon.devicePixelRatio());
    return 0;
}

QByteArray iconAtScale(const QString &scale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", scale);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {kDescribeIcon});
    if (!process.waitForFinished()) {
        return process.errorString().toUtf8();
    }
    return process.readAllStandardError() + process.readAllStandardOutput();
}

} // namespace

class TestAutoMountNetworkDriveModelView : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { DriveTest::removeAllDrives(); }

private slots:
    void iconTellsTheState_data();
    void iconTellsTheState();
    void iconOfAScaledApplicationIsFiner();
    void iconAndTextsArePainted_data();
    void iconAndTextsArePainted();
    void newStateIsPainted();
    void stateAndActivationAreReadAloud();
    void clickOnTheBoxSwitchesTheDrive();
    void editorOfTheViewLeavesTheDriveAlone();
};

void TestAutoMountNetworkDriveModelView::iconTellsTheState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QPixmap>("bullet");
    QTest::newRow("connected") << 0 << TXDisplayFixBulletStaticImage();
    QTest::newRow("disconnected") << 1 << TXDisplayErrorBulletStaticImage();
    QTest::newRow("reconnection failed") << 2 << TXDisplayWarningBulletStaticImage();
    QTest::newRow("letter taken") << 3 << TXDisplayWarningBulletStaticImage();
    QTest::newRow("4, unknown") << 4 << TXDisplayErrorBulletStaticImage();
    QTest::newRow("-1, unknown") << -1 << TXDisplayErrorBulletStaticImage();
}

void TestAutoMountNetworkDriveModelView::iconTellsTheState()
{
    QFETCH(int, state);
    QFETCH(QPixmap, bullet);
    addDrive("a", state);
    const AutoMountNetworkDriveModel model;
    const QVariant icon = model.index(0, 0).data(Qt::DecorationRole);
    QCOMPARE(icon.typeId(), int(QMetaType::QPixmap));
    QCOMPARE(icon.value<QPixmap>().size(), kIcon);
    QCOMPARE(icon.value<QPixmap>().toImage(),
             bullet.scaled(kIcon, Qt::KeepAspectRatio, Qt::SmoothTransformation).toImage());
    for (int column = 1; column < model.columnCount(); ++column) {
        QVERIFY(!model.index(0, column).data(Qt::DecorationRole).isValid());
    }
}

void TestAutoMountNetworkDriveModelView::iconOfAScaledApplicationIsFiner()
{
    QCOMPARE(iconAtScale("1"), "20x20@1");
    QCOMPARE(iconAtScale("1.5"), "30x30@1.5");
    QCOMPARE(iconAtScale("2"), "40x40@2");
}

void TestAutoMountNetworkDriveModelView::iconAndTextsArePainted_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<double>("ratio");
    QTest::newRow("light") << false << 1.0;
    QTest::newRow("light, fine screen") << false << 2.0;
    QTest::newRow("dark") << true << 1.0;
    QTest::newRow("dark, fine screen") << true << 2.0;
}

void TestAutoMountNetworkDriveModelView::iconAndTextsArePainted()
{
    QFETCH(bool, isDark);
    QFETCH(double, ratio);
    const QRgb colours[] = {kSuccess, kFailure, kWarning, kWarning, kFailure};
    for (int state = 0; state < int(std::size(colours)); ++state) {
        addDrive("server", state);
    }
    DriveView shown;
    if (isDark) {
        shown.view.setPalette(darkPalette());
    }
    const PixelProbe probe(shown.view, ratio);
    for (int state = 0; state < int(std::size(colours)); ++state) {
        const QRect icon = shown.cell(state, 0);
        QVERIFY(icon.height() >= kIcon.height());
        QVERIFY(countNear(probe, icon, QColor(colours[state])) > 90);
        QVERIFY(probe.countColours(shown.cell(state, 1)) > 2);
        QVERIFY(probe.countColours(shown.cell(state, 3)) > 2);
        QVERIFY(probe.isNear(shown.cell(state, 3).bottomRight() - QPoint(3, 3),
                             shown.view.palette().color(QPalette::Base)));
    }
}

void TestAutoMountNetworkDriveModelView::newStateIsPainted()
{
    addDrive("server", NetworkDriveDisconnected);
    DriveView shown;
    shown.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.view));
    manager().setDriveStatus(0, NetworkDriveConnected);
    const PixelProbe probe(shown.view.grab().toImage());
    QVERIFY(countNear(probe, shown.cell(0, 0), QColor(kSuccess)) > 90);
    QCOMPARE(countNear(probe, shown.cell(0, 0), QColor(kFailure)), 0);
}

void TestAutoMountNetworkDriveModelView::stateAndActivationAreReadAloud()
{
    AutoMountNetworkDrive drive = makeDrive("server");
    drive.setStatus(NetworkDriveConnected);
    drive.setActivated(true);
    manager().add(drive);
    DriveView shown;
    shown.view.show();
    auto *table = QAccessible::queryAccessibleInterface(&shown.view)->tableInterface();
    QVERIFY(table);

    QCOMPARE(table->cellAt(0, 0)->text(QAccessible::Name), "This Network Drive is connected");
    QCOMPARE(table->cellAt(0, 1)->text(QAccessible::Name), "Active");
    QVERIFY(table->cellAt(0, 1)->state().checked);
    QCOMPARE(table->cellAt(0, 2)->text(QAccessible::Name), "Z:/");
    manager().setDriveStatus(0, NetworkDriveConnectionState(7));
    QCOMPARE(table->cellAt(0, 0)->text(QAccessible::Name), QString());
}

void TestAutoMountNetworkDriveModelView::clickOnTheBoxSwitchesTheDrive()
{
    addDrives({"a", "b"});
    DriveView shown;
    shown.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.view));
    const QRect cell = shown.view.visualRect(shown.model.index(1, 1));
    const QPoint box(cell.left() + 10, cell.center().y());
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, {}, box);
    QVERIFY(manager().getDrive(1).isActivated());
    QVERIFY(!manager().getDrive(0).isActivated());
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, {}, box);
    QVERIFY(!manager().getDrive(1).isActivated());
}

void TestAutoMountNetworkDriveModelView::editorOfTheViewLeavesTheDriveAlone()
{
    addDrives({"a"});
    DriveView shown;
    shown.view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.view));
    const QModelIndex host = shown.model.index(0, 3);
    shown.view.setCurrentIndex(host);
    shown.view.edit(host);
    const QPointer<QLineEdit> editor = shown.view.findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, "other");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!editor);
    QCOMPARE(manager().getDrive(0), makeDrive("a"));
    QCOMPARE(hosts(), "a");
}

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], kDescribeIcon) == 0) {
        return describeIcon(argc, argv);
    }
    return runTest<TestAutoMountNetworkDriveModelView>(argc, argv);
}

#include "tst_AutoMountNetworkDriveModelView.moc"
