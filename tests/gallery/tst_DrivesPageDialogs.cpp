#include "DrivesPageTest.h"

#include "CredentialDialog.h"
#include "ShareBrowser.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalSpy>

/// The dialogs that the page opens, with its server where one is asked.
class TestDrivesPageDialogs : public DrivesPageTest
{
    Q_OBJECT

private slots:
    void browserListsTheSharesOfTheServer();
    void nothingFoundIsToldWithTheReason();
    void filledListWithoutAChoiceIsTold();
    void networkIsBrowsedWithoutAServer();
    void credentialsAreHeardAsTheHostHearsThem_data();
    void credentialsAreHeardAsTheHostHearsThem();
    void cancelledCredentialsAreTold();
    void pictureShowsDrivesAndDialogs();
    void pictureComesWithoutAServerToo();
    void pageMayGoDuringASearch();

private:
    void browse();
};

/// Opens the browser of the server and waits for the end of the search.
void TestDrivesPageDialogs::browse()
{
    DialogDriver::click(buttonOf(*page, "Browse This Server..."));
    QTRY_VERIFY_WITH_TIMEOUT(!search->isSearching(), kPatienceMilliseconds);
}

void TestDrivesPageDialogs::browserListsTheSharesOfTheServer()
{
    switchOn();
    browse();
    auto *list = search->browser()->findChild<QListWidget *>("listWidget");
    QStringList rows;
    for (int row = 0; row < list->count(); ++row) {
        rows.append(list->item(row)->text());
    }
    rows.sort();
    QCOMPARE(rows, QStringList({"127.0.0.1 - /pictures", "127.0.0.1 - /proofs"}));

    const auto found = list->findItems("proofs", Qt::MatchContains);
    list->setCurrentItem(found.first());
    DialogDriver::click(*search->browser(), QDialogButtonBox::Ok);

    QVERIFY2(allTexts(*search).contains("Chosen: smb://127.0.0.1"), qPrintable(allTexts(*search)));
    QVERIFY(!allTexts(*page).contains("s3cret"));
    QCOMPARE(shareBox().currentText(), "proofs");
    add();
    QCOMPARE(lastDrive().getUrl().path(), "/proofs");
}

void TestDrivesPageDialogs::nothingFoundIsToldWithTheReason()
{
    switchOn();
    server->setTrouble(Trouble::WrongPassword);

    browse();

    QCOMPARE(search->browser()->findChild<QListWidget *>("listWidget")->count(), 0);
    // While the browser is open, and after that.
    QTRY_VERIFY2(allTexts(*search).contains(QRegularExpression("Nothing was found. .*127.0.0.1")),
                 qPrintable(allTexts(*search)));
    QVERIFY(lines("Log of the drives:").contains(allTexts(*search).section("found. ", 1)));
    DialogDriver::click(*search->browser(), QDialogButtonBox::Ok);
    QVERIFY(allTexts(*search).contains("Nothing was found. "));
    QVERIFY(!allTexts(*search).contains("forgotten"));
    QCOMPARE(shareBox().currentText(), "pictures");

    // The next search begins anew.
    server->setTrouble(Trouble::None);
    browse();
    QVERIFY(!allTexts(*search).contains("Nothing was found."));
}

void TestDrivesPageDialogs::filledListWithoutAChoiceIsTold()
{
    switchOn();
    browse();

    DialogDriver::click(*search->browser(), QDialogButtonBox::Cancel);

    QVERIFY(isRead(*page, "Nothing was chosen."));
}

void TestDrivesPageDialogs::networkIsBrowsedWithoutAServer()
{
    DialogDriver::click(buttonOf(*page, "Browse the Network..."));
    QVERIFY(search->browser()->isVisible());

    DialogDriver::click(*search->browser(), QDialogButtonBox::Cancel);

    QVERIFY(isRead(*page, "Nothing was chosen."));
}

void TestDrivesPageDialogs::credentialsAreHeardAsTheHostHearsThem_data()
{
    QTest::addColumn<bool>("isOffered");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("heard");
    QTest::newRow("remembered") << true << true << "s3cret!"
                                << "User: anna. Characters of the password: 7. "
                                   "The callback was called. \"Remember\" is checked.";
    QTest::newRow("not remembered") << true << false << "s3cret!"
                                    << "User: anna. Characters of the password: 7. "
                                       "The callback was called. \"Remember\" is not checked.";
    QTest::newRow("no password") << true << true << QString()
                                 << "User: anna. Characters of the password: 0. "
                                    "The callback was not called. \"Remember\" is checked.";
    QTest::newRow("not offered") << false << false << "s3cret!"
                                 << "User: anna. Characters of the password: 7. "
                                    "The callback was not called. \"Remember\" is not checked.";
}

void TestDrivesPageDialogs::credentialsAreHeardAsTheHostHearsThem()
{
    QFETCH(bool, isOffered);
    QFETCH(bool, isChecked);
    QFETCH(QString, password);
    QFETCH(QString, heard);
    QVERIFY(isRead(*page, "Not asked yet."));
    buttonOf<QCheckBox>(*page, "Offer to remember")->setChecked(isOffered);
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        auto *box = dialog.findChild<QCheckBox *>("rememberCheckBox");
        QCOMPARE(box->isVisible(), isOffered);
        dialog.findChild<QLineEdit *>("userEdit")->setText("anna");
        dialog.findChild<QLineEdit *>("passwordEdit")->setText(password);
        box->setChecked(isChecked);
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    DialogDriver::click(buttonOf(*page, "Ask for Credentials..."));

    QTRY_VERIFY2(isRead(*page, heard), qPrintable(allTexts(*page)));
    QVERIFY(!page->findChild<CredentialDialog *>());
}

void TestDrivesPageDialogs::cancelledCredentialsAreTold()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });

    DialogDriver::click(buttonOf(*page, "Ask for Credentials..."));

    QTRY_VERIFY(isRead(*page, "Cancelled."));
}

void TestDrivesPageDialogs::pictureShowsDrivesAndDialogs()
{
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(ready.count() == 1 || ready.wait(kPatienceMilliseconds));
    QVERIFY(page->isReady());
    QCOMPARE(manager->count(), 4);
    QVERIFY(!manager->getDrive(3).isActivated());
    QStringList names;
    const auto windows = page->furtherWindows();
    for (const GalleryFurtherWindow &window : windows) {
        names.append(window.name);
        QVERIFY(window.window);
        QVERIFY(!allTexts(*window.window).contains("s3cret"));
    }
    QCOMPARE(names, QStringList({"credentials", "browser", "editor"}));
    QCOMPARE(search->browser()->findChild<QListWidget *>("listWidget")->count(), 2);
    QVERIFY(!allTexts(*page).contains("s3cret"));
    QVERIFY(!lines("Log of the drives:").contains("s3cret"));
    QVERIFY(!lines("Log of the drives:").contains("mia"));

    page.reset();

    QVERIFY(!manager->isRunning());
    QCOMPARE(manager->count(), 0);
}

void TestDrivesPageDialogs::pictureComesWithoutAServerToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(page->isReady());
    QVERIFY(!server->error().isEmpty());
    QCOMPARE(page->furtherWindows().size(), 1);
    QVERIFY(!manager->isRunning());
}

void TestDrivesPageDialogs::pageMayGoDuringASearch()
{
    switchOn();
    server->setTrouble(Trouble::Silent);
    DialogDriver::click(buttonOf(*page, "Browse This Server..."));
    QVERIFY(search->isSearching());

    page.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestDrivesPageDialogs>(argc, argv);
}

#include "tst_DrivesPageDialogs.moc"
