#include "DialogDriver.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::kWidgets;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::newReleaseWith;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::shownWidgets;
using UpdateDialogTools::useNoService;

namespace {

constexpr Dialog::State kStates[] = {
    Dialog::Checking,    Dialog::UpToDate,       Dialog::UpdateAvailable, Dialog::DownloadStarting,
    Dialog::Downloading, Dialog::ReadyToInstall, Dialog::ServiceError};

const char *const kErrorText = "Impossible to connect to the Check for Updates service, please "
                               "check your Internet connection.";

/// A row of the table: one letter a widget of kWidgets, "s" for shown, "h" for hidden, "." for as
/// it was; then the page and whether the dialog is shown.
struct Look
{
    const char *widgets;
    const char *page;
    Dialog::State state;
    bool isShown;
};

const Look kLooks[] = {{".........", "CheckUpdatePage", Dialog::Checking, false},
                       {"..hhhhhsh", "UpdateFoundPage", Dialog::UpToDate, false},
                       {".sssshshh", "UpdateFoundPage", Dialog::UpdateAvailable, true},
                       {"...hhhhhs", "UpdateFoundPage", Dialog::DownloadStarting, false},
                       {"...hhhhhs", "UpdateFoundPage", Dialog::Downloading, true},
                       {"...hhsshh", "UpdateFoundPage", Dialog::ReadyToInstall, true},
                       {"h.hhhhhhh", "UpdateFoundPage", Dialog::ServiceError, false}};

QString nameOf(Dialog::State state)
{
    return QString::fromLatin1(QMetaEnum::fromType<Dialog::State>().valueToKey(state));
}

void setAllHidden(const Dialog &dialog, bool isHidden)
{
    for (const char *name : kWidgets) {
        part<QWidget>(dialog, name)->setHidden(isHidden);
    }
}

/// The row with what it leaves alone filled in.
QByteArray expectedWidgets(const char *row, bool wereHidden)
{
    return QByteArray(row).replace('.', wereHidden ? 'h' : 's');
}

/// Enters a state that starts a transfer only as far as the table goes: the transfer that the
/// transient state starts makes it the next one at once.
bool isTransient(Dialog::State state)
{
    return state == Dialog::DownloadStarting;
}

} // namespace

class TestTXCheckForUpdateWidgetStates : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
    }

private slots:
    void beginsInCheckingWithoutACheck();
    void everyCellOfTheTable_data();
    void everyCellOfTheTable();
    void theTransientStateShowsTheProgressBeforeItGoesOn();
    void offersNoDownloadWithoutAUrl();
    void signalComesBeforeTheFieldAndOnlyForAChange_data();
    void signalComesBeforeTheFieldAndOnlyForAChange();
    void sameStateActsAgainWithoutASignal();
    void valueOutsideTheEnumerationEndsInChecking_data();
    void valueOutsideTheEnumerationEndsInChecking();
    void stateEnteredInsideTheSignalIsOvertakenByTheOuterOne();
    void signalIsFoundByItsPlainName();
    void textsOfUpToDate();
    void textsOfUpdateAvailable();
    void releaseTitle_data();
    void releaseTitle();
    void errorTextStaysAndTheNameStaysHidden();
    void resultIsTakenInEveryState_data();
    void resultIsTakenInEveryState();
    void checkingForgetsTheWishToInstall();
};

void TestTXCheckForUpdateWidgetStates::beginsInCheckingWithoutACheck()
{
    Dialog dialog;
    QSignalSpy refreshed(&dialog, SIGNAL(updateRefreshed(QVariantHash)));
    QCOMPARE(dialog.state(), Dialog::Checking);
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.state(), Dialog::Checking);
    QCOMPARE(refreshed.size(), 0);
}

void TestTXCheckForUpdateWidgetStates::everyCellOfTheTable_data()
{
    QTest::addColumn<TXCheckForUpdateWidget::State>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("wereHidden");
    for (const Dialog::State before : kStates) {
        for (int row = 0; row < int(std::size(kLooks)); ++row) {
            for (const bool wereHidden : {false, true}) {
                if (isTransient(before) || isTransient(kLooks[row].state)) {
                    continue;
                }
                const QString name = QStringLiteral("%1 to %2, %3 before")
                                         .arg(nameOf(before), nameOf(kLooks[row].state),
                                              wereHidden ? QStringLiteral("all hidden")
                                                         : QStringLiteral("all shown"));
                QTest::newRow(qPrintable(name)) << before << row << wereHidden;
            }
        }
    }
}

void TestTXCheckForUpdateWidgetStates::everyCellOfTheTable()
{
    QFETCH(TXCheckForUpdateWidget::State, before);
    QFETCH(int, row);
    QFETCH(bool, wereHidden);
    const Look &look = kLooks[row];

    Dialog dialog(QStringLiteral("Patch Reader"), 7, false);
    dialog.updateState(before);
    dialog.hide();
    setAllHidden(dialog, wereHidden);
    if (look.state == Dialog::UpdateAvailable) {
        receive(dialog, newRelease());
    } else {
        dialog.updateState(look.state);
    }

    QCOMPARE(shownWidgets(dialog), expectedWidgets(look.widgets, wereHidden));
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentWidget()->objectName(),
             QLatin1String(look.page));
    QCOMPARE(dialog.isVisible(), look.isShown);
    QCOMPARE(dialog.state(), look.state);
}

void TestTXCheckForUpdateWidgetStates::theTransientStateShowsTheProgressBeforeItGoesOn()
{
    for (const bool wereHidden : {false, true}) {
        Dialog dialog;
        receive(dialog, newRelease());
        dialog.hide();
        setAllHidden(dialog, wereHidden);
        QByteArray seen;
        bool wasShown = true;
        connect(&dialog, &Dialog::stateChanged, &dialog, [&](Dialog::State next) {
            if (next == Dialog::Downloading) {
                seen = shownWidgets(dialog);
                wasShown = dialog.isVisible();
            }
        });
        dialog.updateState(Dialog::DownloadStarting);
        QCOMPARE(seen, expectedWidgets("...hhhhhs", wereHidden));
        QVERIFY(!wasShown);
        QCOMPARE(dialog.state(), Dialog::Downloading);
        QVERIFY(dialog.isVisible());
    }
}

void TestTXCheckForUpdateWidgetStates::offersNoDownloadWithoutAUrl()
{
    QVariantHash release = newRelease();
    release.remove(QStringLiteral("Filename"));
    for (const bool wereHidden : {false, true}) {
        Dialog dialog;
        setAllHidden(dialog, wereHidden);
        receive(dialog, release);
        QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
        QCOMPARE(shownWidgets(dialog), expectedWidgets(".sshhhshh", wereHidden));
        QVERIFY(dialog.isVisible());
    }
}

void TestTXCheckForUpdateWidgetStates::signalComesBeforeTheFieldAndOnlyForAChange_data()
{
    QTest::addColumn<TXCheckForUpdateWidget::State>("before");
    QTest::addColumn<TXCheckForUpdateWidget::State>("after");
    for (const Dialog::State before : kStates) {
        for (const Dialog::State after : kStates) {
            if (!isTransient(before) && !isTransient(after)) {
                QTest::newRow(qPrintable(nameOf(before) + QStringLiteral(" to ") + nameOf(after)))
                    << before << after;
            }
        }
    }
}

void TestTXCheckForUpdateWidgetStates::signalComesBeforeTheFieldAndOnlyForAChange()
{
    QFETCH(TXCheckForUpdateWidget::State, before);
    QFETCH(TXCheckForUpdateWidget::State, after);
    Dialog dialog;
    dialog.updateState(before);
    QList<QPair<Dialog::State, Dialog::State>> seen;
    connect(&dialog, &Dialog::stateChanged, &dialog, [&](Dialog::State next) {
        seen.append({dialog.state(), next});
    });
    dialog.updateState(after);
    QCOMPARE(dialog.state(), after);
    if (before == after) {
        QVERIFY(seen.isEmpty());
    } else {
        QCOMPARE(seen, (QList<QPair<Dialog::State, Dialog::State>>{{before, after}}));
    }
}

void TestTXCheckForUpdateWidgetStates::sameStateActsAgainWithoutASignal()
{
    Dialog dialog;
    dialog.updateState(Dialog::ServiceError);
    part<QLabel>(dialog, "shortDescLabel")->clear();
    part<QPushButton>(dialog, "okButton")->show();
    QSignalSpy changed(&dialog, &Dialog::stateChanged);
    dialog.updateState(Dialog::ServiceError);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(), QLatin1String(kErrorText));
    QVERIFY(part<QPushButton>(dialog, "okButton")->isHidden());
}

void TestTXCheckForUpdateWidgetStates::valueOutsideTheEnumerationEndsInChecking_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("one more") << int(Dialog::ServiceError) + 1;
    QTest::newRow("below") << -1;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("smallest") << INT_MIN;
}

void TestTXCheckForUpdateWidgetStates::valueOutsideTheEnumerationEndsInChecking()
{
    QFETCH(int, value);
    Dialog dialog;
    dialog.updateState(Dialog::UpToDate);
    const QByteArray shown = shownWidgets(dialog);
    QSignalSpy refreshed(&dialog, &Dialog::updateRefreshed);
    QList<int> seen;
    connect(&dialog, &Dialog::stateChanged, &dialog,
            [&](Dialog::State next) { seen << int(dialog.state()) << int(next); });
    dialog.updateState(static_cast<Dialog::State>(value));
    QCOMPARE(seen, (QList<int>{int(Dialog::UpToDate), value}));
    QCOMPARE(dialog.state(), Dialog::Checking);
    QCOMPARE(shownWidgets(dialog), shown);
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
    QVERIFY(!dialog.isVisible());
}

void TestTXCheckForUpdateWidgetStates::stateEnteredInsideTheSignalIsOvertakenByTheOuterOne()
{
    Dialog dialog;
    QList<Dialog::State> announced;
    connect(&dialog, &Dialog::stateChanged, &dialog, [&](Dialog::State next) {
        announced.append(next);
        if (next == Dialog::UpToDate) {
            dialog.updateState(Dialog::ServiceError);
        }
    });
    dialog.updateState(Dialog::UpToDate);
    QCOMPARE(announced, (QList<Dialog::State>{Dialog::UpToDate, Dialog::ServiceError}));
    QCOMPARE(dialog.state(), Dialog::UpToDate);
    QVERIFY(!part<QPushButton>(dialog, "okButton")->isHidden());
    // Trace of the inner one.
    QVERIFY(part<QLabel>(dialog, "updateNameLabel")->isHidden());
}

void TestTXCheckForUpdateWidgetStates::signalIsFoundByItsPlainName()
{
    Dialog dialog;
    QSignalSpy changed(&dialog, SIGNAL(stateChanged(State)));
    QVERIFY(changed.isValid());
    dialog.updateState(Dialog::UpToDate);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).value<Dialog::State>(), Dialog::UpToDate);
}

void TestTXCheckForUpdateWidgetStates::textsOfUpToDate()
{
    Dialog dialog(QStringLiteral("Patch %1 Reader"), 7, false);
    part<QLabel>(dialog, "shortDescLabel")->setText(QStringLiteral("before"));
    dialog.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), "Patch %1 Reader is up to date.");
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(), "before");
}

void TestTXCheckForUpdateWidgetStates::textsOfUpdateAvailable()
{
    Dialog dialog;
    const QString notes = QStringLiteral("<p>New: <a href=\"https://a.example\">more</a></p>");
    receive(dialog, newReleaseWith("Description", notes));
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), "Patch Reader");
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(),
             "Patch Reader 3.1 Beta 2 (rev 10453) is available.");
    QCOMPARE(part<QLabel>(dialog, "descriptionLabel")->text(), notes);
}

void TestTXCheckForUpdateWidgetStates::releaseTitle_data()
{
    QTest::addColumn<QVariant>("status");
    QTest::addColumn<QVariant>("revision");
    QTest::addColumn<QString>("title");
    const QVariant revision(10453);
    QTest::newRow("status") << QVariant("Beta") << revision << "Patch Reader 3.1 Beta (rev 10453)";
    QTest::newRow("final") << QVariant("Finale") << revision << "Patch Reader 3.1 (rev 10453)";
    QTest::newRow("other case") << QVariant("finale") << revision
                                << "Patch Reader 3.1 finale (rev 10453)";
    QTest::newRow("no status") << QVariant() << revision << "Patch Reader 3.1 (rev 10453)";
    QTest::newRow("text revision")
        << QVariant("Finale") << QVariant("10460") << "Patch Reader 3.1 (rev 10460)";
}

void TestTXCheckForUpdateWidgetStates::releaseTitle()
{
    QFETCH(QVariant, status);
    QFETCH(QVariant, revision);
    QFETCH(QString, title);
    QVariantHash release = newReleaseWith("Status", status);
    release.insert(QStringLiteral("Revision"), revision);
    Dialog dialog;
    receive(dialog, release);
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(),
             QString(title + QStringLiteral(" is available.")));
}

void TestTXCheckForUpdateWidgetStates::errorTextStaysAndTheNameStaysHidden()
{
    Dialog dialog;
    dialog.updateState(Dialog::ServiceError);
    dialog.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(dialog, "shortDescLabel")->text(), QLatin1String(kErrorText));
    for (const Look &look : kLooks) {
        dialog.updateState(look.state);
        QVERIFY(part<QLabel>(dialog, "updateNameLabel")->isHidden());
    }
}

void TestTXCheckForUpdateWidgetStates::resultIsTakenInEveryState_data()
{
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    for (const Dialog::State state : kStates) {
        QTest::newRow(qPrintable(nameOf(state))) << state;
    }
}

void TestTXCheckForUpdateWidgetStates::resultIsTakenInEveryState()
{
    QFETCH(TXCheckForUpdateWidget::State, state);
    Dialog dialog;
    receive(dialog, newRelease());
    dialog.updateState(state);
    receive(dialog, newReleaseWith("Version", QStringLiteral("3.2")));
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(part<QLabel>(dialog, "shortDescLabel")->text().startsWith(u"Patch Reader 3.2"));
}

void TestTXCheckForUpdateWidgetStates::checkingForgetsTheWishToInstall()
{
    Dialog dialog;
    receive(dialog, newRelease());
    {
        DialogDriver driver;
        driver.expectMessageBox(
            [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Yes)); });
        part<QPushButton>(dialog, "downloadAndInstallButton")->click();
    }
    QCOMPARE(dialog.state(), Dialog::Downloading);
    dialog.updateState(Dialog::Checking);
    const DialogDriver nothingIsAsked;
    dialog.updateState(Dialog::ReadyToInstall);
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetStates>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetStates.moc"
