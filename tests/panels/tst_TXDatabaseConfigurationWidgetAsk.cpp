#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "DialogDriver.h"
#include "TestBase.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using DatabaseTest::child;
using DatabaseTest::RecordingDriver;
using DatabaseTest::Settings;
using DatabaseTest::settingsFor;

namespace {

const Settings kInternal = {{QStringLiteral("Driver"), QStringLiteral("QSQLITE")}};

QPushButton *buttonOf(const QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    return dialog.findChild<QDialogButtonBox *>()->button(button);
}

} // namespace

/// The modal question.
class TestTXDatabaseConfigurationWidgetAsk : public TestBase
{
    Q_OBJECT

private slots:
    void dialogHoldsPanelAndButtons();
    void dialogShowsTheSettings();
    void acceptedSettingsComeBack();
    void internalDatabaseComesBackWithoutATest();
    void unknownDriverShowsTheInternalDatabase();
    void acceptedSettingsThatFailCloseTheDialog();
    void otherEndsGiveNothing_data();
    void otherEndsGiveNothing();
    void testInTheDialogLeavesItOpen();
    void enterAcceptsAndDoesNotPressTest();
    void titleIsTakenAsItIs_data();
    void titleIsTakenAsItIs();
};

void TestTXDatabaseConfigurationWidgetAsk::dialogHoldsPanelAndButtons()
{
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        QVERIFY(!dialog.parentWidget());
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Where to keep the data"));
        auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        auto *panel = qobject_cast<TXDatabaseConfigurationWidget *>(layout->itemAt(0)->widget());
        QVERIFY(panel);
        QCOMPARE(panel->parentWidget(), &dialog);
        auto *box = qobject_cast<QDialogButtonBox *>(layout->itemAt(1)->widget());
        QVERIFY(box);
        QCOMPARE(box->orientation(), Qt::Horizontal);
        QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });

    QVERIFY(TXDatabaseConfigurationWidget::ask(QStringLiteral("Where to keep the data"), kInternal)
                .isEmpty());
}

void TestTXDatabaseConfigurationWidgetAsk::dialogShowsTheSettings()
{
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        QVERIFY(child<QRadioButton>(dialog, "mysqlDBRadio")->isChecked());
        QVERIFY(child<QWidget>(dialog, "mysqlWidget")->isEnabled());
        QCOMPARE(child<QLineEdit>(dialog, "userEdit")->text(), QStringLiteral("mia"));
        QCOMPARE(child<QLineEdit>(dialog, "passwordEdit")->text(), QString(25, u'|'));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });

    QVERIFY(TXDatabaseConfigurationWidget::ask({}, settingsFor(3307)).isEmpty());
}

void TestTXDatabaseConfigurationWidgetAsk::acceptedSettingsComeBack()
{
    const RecordingDriver driver;
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        child<QRadioButton>(dialog, "mysqlDBRadio")->click();
        QTest::keyClicks(child<QLineEdit>(dialog, "databaseNameEdit"), QStringLiteral("colours"));
        QTest::keyClicks(child<QLineEdit>(dialog, "passwordEdit"), QStringLiteral("word"));
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    const Settings settings = TXDatabaseConfigurationWidget::ask({}, kInternal);

    QCOMPARE(driver.openCount, 1);
    QCOMPARE(settings.size(), 3);
    QCOMPARE(settings.value("Driver"), QVariant("QMYSQL"));
    QCOMPARE(settings.value("Connection"), QVariant("colours"));
    QCOMPARE(DatabaseTest::passwordOf(settings), QStringLiteral("word"));
    QCOMPARE(DatabaseTest::parametersOf(settings).value("Options"), QVariant(QString()));
}

void TestTXDatabaseConfigurationWidgetAsk::internalDatabaseComesBackWithoutATest()
{
    const RecordingDriver driver;
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        child<QRadioButton>(dialog, "internalDBRadio")->click();
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    const Settings settings = TXDatabaseConfigurationWidget::ask({}, settingsFor(3307));

    QCOMPARE(driver.openCount, 0);
    QCOMPARE(settings.size(), 3);
    QCOMPARE(settings.value("Driver"), QVariant("QSQLITE"));
}

void TestTXDatabaseConfigurationWidgetAsk::unknownDriverShowsTheInternalDatabase()
{
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        QVERIFY(child<QRadioButton>(dialog, "internalDBRadio")->isChecked());
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    const Settings settings =
        TXDatabaseConfigurationWidget::ask({}, {{QStringLiteral("Driver"), 5}});

    QCOMPARE(settings.value("Driver"), QVariant("QSQLITE"));
}

void TestTXDatabaseConfigurationWidgetAsk::acceptedSettingsThatFailCloseTheDialog()
{
    RecordingDriver driver;
    driver.lets = false;
    DialogDriver answers;
    answers.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Ok); });

    QVERIFY(TXDatabaseConfigurationWidget::ask({}, settingsFor(3307)).isEmpty());

    QCOMPARE(driver.openCount, 1);
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestTXDatabaseConfigurationWidgetAsk::otherEndsGiveNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"cancel", "escape", "close"}) {
        QTest::newRow(way) << QString(way);
    }
}

void TestTXDatabaseConfigurationWidgetAsk::otherEndsGiveNothing()
{
    QFETCH(QString, way);
    const RecordingDriver driver;
    DialogDriver answers;
    answers.expect([way](QDialog &dialog) {
        if (way == QStringLiteral("cancel")) {
            DialogDriver::click(dialog, QDialogButtonBox::Cancel);
        } else if (way == QStringLiteral("escape")) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
        } else {
            dialog.close();
        }
    });

    QVERIFY(TXDatabaseConfigurationWidget::ask({}, settingsFor(3307)).isEmpty());

    QCOMPARE(driver.openCount, 0);
}

void TestTXDatabaseConfigurationWidgetAsk::testInTheDialogLeavesItOpen()
{
    RecordingDriver driver;
    driver.lets = false;
    DialogDriver answers;
    answers.expect([&driver](QDialog &dialog) {
        DialogDriver::click(child<QPushButton>(dialog, "testButton"));
        QCOMPARE(driver.openCount, 1);
        QVERIFY(dialog.isVisible());
        QVERIFY(!child<QLabel>(dialog, "validLabel")->pixmap().isNull());
        driver.lets = true;
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    QVERIFY(!TXDatabaseConfigurationWidget::ask({}, settingsFor(3307)).isEmpty());

    QCOMPARE(driver.openCount, 2);
}

void TestTXDatabaseConfigurationWidgetAsk::enterAcceptsAndDoesNotPressTest()
{
    const RecordingDriver driver;
    DialogDriver answers;
    answers.expect([](QDialog &dialog) {
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(buttonOf(dialog, QDialogButtonBox::Ok)->isDefault());
        auto *host = child<QLineEdit>(dialog, "hostEdit");
        host->setFocus();
        QTest::keyClick(host, Qt::Key_Return);
    });

    QVERIFY(!TXDatabaseConfigurationWidget::ask({}, settingsFor(3307)).isEmpty());

    QCOMPARE(driver.openCount, 1);
}

void TestTXDatabaseConfigurationWidgetAsk::titleIsTakenAsItIs_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("markup") << "<b>Data</b> & more";
    QTest::newRow("other scripts") << QString::fromUtf8("データ 😀");
}

void TestTXDatabaseConfigurationWidgetAsk::titleIsTakenAsItIs()
{
    QFETCH(QString, title);
    DialogDriver answers;
    answers.expect([title](QDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), title);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });

    QVERIFY(TXDatabaseConfigurationWidget::ask(title, {}).isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetAsk>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetAsk.moc"
