#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::installerPath;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;

class TestTXCheckForUpdateWidgetResults : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
    }

private slots:
    void resultLeadsTo_data();
    void resultLeadsTo();
    void onlyTheReceivedSecondArgumentTellsAFailure();
    void failedCheckRefreshesNothing();
    void refreshedTellsTheCompletedRecordAfterTheState();
    void aLaterResultReplacesTheRecord();
    void recordOfWrongTypesIsTaken_data();
    void recordOfWrongTypesIsTaken();
};

void TestTXCheckForUpdateWidgetResults::resultLeadsTo_data()
{
    QTest::addColumn<QVariantHash>("result");
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    const auto revision = [](const QVariant &value) {
        return QVariantHash{{QStringLiteral("Revision"), value}};
    };
    QTest::newRow("failure") << QVariantHash() << Dialog::ServiceError;
    QTest::newRow("nothing usable")
        << QVariantHash{{QStringLiteral("empty"), QStringLiteral("nodata")}} << Dialog::UpToDate;
    QTest::newRow("no revision") << QVariantHash{{QStringLiteral("a"), 1}} << Dialog::UpToDate;
    QTest::newRow("older") << revision(10451) << Dialog::UpToDate;
    QTest::newRow("equal") << revision(10452) << Dialog::UpToDate;
    QTest::newRow("newer") << revision(10453) << Dialog::UpdateAvailable;
    QTest::newRow("newer as text") << revision(QStringLiteral("10453")) << Dialog::UpdateAvailable;
    QTest::newRow("largest") << revision(INT_MAX) << Dialog::UpdateAvailable;
    QTest::newRow("negative") << revision(-20000) << Dialog::UpToDate;
    QTest::newRow("no number") << revision(QStringLiteral("newest")) << Dialog::UpToDate;
    QTest::newRow("a list") << revision(QVariantList{99999}) << Dialog::UpToDate;
}

void TestTXCheckForUpdateWidgetResults::resultLeadsTo()
{
    QFETCH(QVariantHash, result);
    QFETCH(TXCheckForUpdateWidget::State, state);
    Dialog dialog;
    receive(dialog, result);
    QCOMPARE(dialog.state(), state);
    QCOMPARE(dialog.isVisible(), state == Dialog::UpdateAvailable);
}

void TestTXCheckForUpdateWidgetResults::onlyTheReceivedSecondArgumentTellsAFailure()
{
    Dialog dialog;
    dialog.updateInfoReceived(newRelease(), {});
    QCOMPARE(dialog.state(), Dialog::ServiceError);
    dialog.updateInfoReceived({}, newRelease());
    QCOMPARE(dialog.state(), Dialog::UpToDate);
}

void TestTXCheckForUpdateWidgetResults::failedCheckRefreshesNothing()
{
    Dialog dialog;
    QSignalSpy refreshed(&dialog, &Dialog::updateRefreshed);
    receive(dialog, {});
    QCOMPARE(refreshed.size(), 0);
}

void TestTXCheckForUpdateWidgetResults::refreshedTellsTheCompletedRecordAfterTheState()
{
    Dialog dialog;
    QVariantHash told;
    Dialog::State stateThen = Dialog::Checking;
    connect(&dialog, &Dialog::updateRefreshed, &dialog, [&](const QVariantHash &info) {
        told = info;
        stateThen = dialog.state();
    });
    receive(dialog, newRelease());
    QCOMPARE(stateThen, Dialog::UpdateAvailable);
    QCOMPARE(told.value(QStringLiteral("Path")).toString(), installerPath());
    QVERIFY(told.value(QStringLiteral("Url")).toString().startsWith(u"https://127.0.0.1:1/dow"));
    receive(dialog, {{QStringLiteral("empty"), QStringLiteral("nodata")}});
    QCOMPARE(told, QVariantHash());
    QCOMPARE(stateThen, Dialog::UpToDate);
}

void TestTXCheckForUpdateWidgetResults::aLaterResultReplacesTheRecord()
{
    Dialog dialog;
    receive(dialog, newRelease());
    receive(dialog, {{QStringLiteral("Revision"), 10500}});
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), QString());
    QCOMPARE(part<QLabel>(dialog, "descriptionLabel")->text(), QString());
    QVERIFY(part<QPushButton>(dialog, "downloadButton")->isHidden());
}

void TestTXCheckForUpdateWidgetResults::recordOfWrongTypesIsTaken_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << QVariant(1e300);
    QTest::newRow("list") << QVariant(QVariantList{1, 2});
    QTest::newRow("hash") << QVariant(QVariantHash{{QStringLiteral("a"), 1}});
    QTest::newRow("null") << QVariant();
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\0", 3));
    QTest::newRow("flag") << QVariant(true);
    QTest::newRow("control characters") << QVariant(QString(QChar(0)) + QStringLiteral("\n\r\t"));
}

void TestTXCheckForUpdateWidgetResults::recordOfWrongTypesIsTaken()
{
    QFETCH(QVariant, value);
    QVariantHash release;
    const QVariantHash whole = newRelease();
    for (auto entry = whole.begin(); entry != whole.end(); ++entry) {
        release.insert(entry.key(), value);
    }
    release.insert(QStringLiteral("Revision"), 20000);
    Dialog dialog;
    receive(dialog, release);
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(dialog.width() <= dialog.screen()->availableGeometry().width());
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetResults>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetResults.moc"
