#include "DialogDriver.h"
#include "MailPage.h"
#include "MailServerPanel.h"
#include "PageHelpers.h"
#include "TestBase.h"

#include "EMailSenderWidget.h"
#include "TXMailSender.h"
#include "TXSwitchSlider.h"
#include "TXTransferSettings.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTreeWidget>

#include <memory>

using Security = LocalMailServer::Security;
using Trouble = MailServerPanel::Trouble;

Q_DECLARE_METATYPE(Security)
Q_DECLARE_METATYPE(Trouble)

namespace { } // namespace

class TestMailPage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void startOfTheServerFillsThePanel();
    void panelIsFilledInAgainOnDemand();
    void testMailArrives_data();
    void testMailArrives();
    void changedOptionsRestartTheServer();
    void troubleIsTold_data();
    void troubleIsTold();
    void timeOutsAreShortOnlyForASilentServer();
    void certificateIsTrustedWhileTheServerRuns();
    void serverStopsWithTheSwitch();
    void serverStopsWithThePage();
    void settingsAreShownWithTheCipher();
    void pictureShowsAMail();
    void pictureComesWithoutAServerToo();
    void mnemonicsAreDistinct();
    void textsFollowTheLanguage();
    void pageIsNotTooWide();

private:
    void sendAndExpect(QMessageBox::Icon icon);
    [[nodiscard]] QTreeWidget &mails() const;
    [[nodiscard]] QTreeWidget &settings() const;
    static void sendInVain(const QHash<QString, QVariant> &settings);

    std::unique_ptr<MailPage> page;
    MailServerPanel *server = nullptr;
    EMailSenderWidget *sender = nullptr;
    QString toldText;
};

void TestMailPage::prepare()
{
    page = std::make_unique<MailPage>();
    server = page->findChild<MailServerPanel *>();
    sender = page->findChild<EMailSenderWidget *>();
    page->resize(845, 700);
    page->show();
}

void TestMailPage::finish()
{
    page.reset();
}

/// Clicks "Send Test Mail" and waits for the box with the outcome.
void TestMailPage::sendAndExpect(QMessageBox::Icon icon)
{
    bool isTold = false;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        toldText = box.text();
        isTold = true;
        QCOMPARE(box.icon(), icon);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    DialogDriver::click(PageTest::button(*sender, "Send Test Mail"));
    QTRY_VERIFY_WITH_TIMEOUT(isTold, 20000);
}

QTreeWidget &TestMailPage::mails() const
{
    return *page->findChildren<QTreeWidget *>().last();
}

QTreeWidget &TestMailPage::settings() const
{
    return *page->findChildren<QTreeWidget *>().first();
}

void TestMailPage::sendInVain(const QHash<QString, QVariant> &settings)
{
    TXMailSender *mail = TXMailSender::createTXMailSender(settings, "body", "subject", {}, {});
    QSignalSpy failed(mail, SIGNAL(mailSendingFailed(QString)));
    mail->sendMessage();
    QVERIFY(failed.wait());
}

void TestMailPage::startOfTheServerFillsThePanel()
{
    QTest::keyClick(page->findChild<TXSwitchSlider *>(), Qt::Key_Right);

    QVERIFY2(server->isRunning(), qPrintable(server->error()));
    QCOMPARE(sender->smtpServerName(), "127.0.0.1");
    QCOMPARE(sender->portNumber(), int(server->port()));
    QCOMPARE(sender->encryption(), "TLS");
    QCOMPARE(sender->loginName(), "mia");
    QCOMPARE(sender->password(), "s3cret");
    QString error;
    QVERIFY2(sender->checkConfigurationField(error), qPrintable(error));
}

void TestMailPage::panelIsFilledInAgainOnDemand()
{
    server->setRunning(true);
    sender->setSMTPServerName("elsewhere");

    DialogDriver::click(PageTest::button(*page, "Fill In the Panel"));

    QCOMPARE(sender->smtpServerName(), "127.0.0.1");
}

void TestMailPage::testMailArrives_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<bool>("isLoginNeeded");
    QTest::addColumn<QString>("tls");
    QTest::newRow("plain") << Security::Plain << false << "no";
    QTest::newRow("plain, login") << Security::Plain << true << "no";
    QTest::newRow("STARTTLS, login") << Security::StartTls << true << "yes";
    QTest::newRow("TLS, login") << Security::ImplicitTls << true << "yes";
    QTest::newRow("TLS") << Security::ImplicitTls << false << "yes";
}

void TestMailPage::testMailArrives()
{
    QFETCH(Security, security);
    QFETCH(bool, isLoginNeeded);
    server->setSecurity(security);
    PageTest::button(*page, "Login needed")->setChecked(isLoginNeeded);
    server->setRunning(true);

    sendAndExpect(QMessageBox::Information);

    QTRY_COMPARE(mails().topLevelItemCount(), 1);
    const QTreeWidgetItem *mail = mails().topLevelItem(0);
    QCOMPARE(mail->text(0), "ada@example.org");
    QCOMPARE(mail->text(1), "mia@example.org, leo@example.org");
    QTEST(mail->text(3), "tls");
    QCOMPARE(mail->text(4), isLoginNeeded ? "mia" : "");
}

void TestMailPage::changedOptionsRestartTheServer()
{
    server->setRunning(true);
    QSignalSpy started(server, SIGNAL(started()));

    server->setSecurity(Security::ImplicitTls);

    QCOMPARE(started.count(), 1);
    QCOMPARE(sender->portNumber(), int(server->port()));
    QCOMPARE(sender->encryption(), "SSL");
    sendAndExpect(QMessageBox::Information);
}

void TestMailPage::troubleIsTold_data()
{
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<QString>("part");
    QTest::newRow("password") << Trouble::WrongPassword << "535";
    QTest::newRow("receiver") << Trouble::ReceiverRefused << "550";
    QTest::newRow("silent") << Trouble::Silent << QString();
    QTest::newRow("nobody") << Trouble::NobodyThere << QString();
}

void TestMailPage::troubleIsTold()
{
    QFETCH(Trouble, trouble);
    QFETCH(QString, part);
    server->setRunning(true);
    server->setTrouble(trouble);

    sendAndExpect(QMessageBox::Warning);

    QVERIFY2(toldText.contains(part), qPrintable(toldText));
    QCOMPARE(mails().topLevelItemCount(), 0);

    server->setTrouble(Trouble::None);
    sendAndExpect(QMessageBox::Information);
}

void TestMailPage::timeOutsAreShortOnlyForASilentServer()
{
    const int standard = TXTransferSettings::kDefaultConnectTimeoutMilliseconds;
    server->setTrouble(Trouble::Silent);
    QCOMPARE(TXTransferSettings::connectTimeout(), standard);

    server->setRunning(true);
    QVERIFY(TXTransferSettings::connectTimeout() < 5000);

    server->setTrouble(Trouble::None);
    QCOMPARE(TXTransferSettings::connectTimeout(), standard);
    QCOMPARE(TXTransferSettings::totalTimeout(),
             int(TXTransferSettings::kDefaultTotalTimeoutMilliseconds));
}

void TestMailPage::certificateIsTrustedWhileTheServerRuns()
{
    server->setRunning(true);
    QVERIFY(!TXTransferSettings::certificateAuthoritiesFile().isEmpty());
    server->setRunning(false);
    QCOMPARE(TXTransferSettings::certificateAuthoritiesFile(), QString());

    server->setRunning(true);
    page.reset();
    QCOMPARE(TXTransferSettings::certificateAuthoritiesFile(), QString());
}

void TestMailPage::serverStopsWithTheSwitch()
{
    server->setSecurity(Security::Plain);
    server->setRunning(true);
    sendAndExpect(QMessageBox::Information);

    QTest::mouseClick(page->findChild<TXSwitchSlider *>(), Qt::LeftButton);

    QVERIFY(!server->isRunning());
    sendAndExpect(QMessageBox::Warning);
}

void TestMailPage::serverStopsWithThePage()
{
    server->setSecurity(Security::Plain);
    server->setRunning(true);
    const QHash<QString, QVariant> settings = sender->save();

    page.reset();

    sendInVain(settings);
}

void TestMailPage::settingsAreShownWithTheCipher()
{
    server->setRunning(true);

    DialogDriver::click(PageTest::button(*page, "Show Settings"));

    QCOMPARE(settings().topLevelItemCount(), 8);
    const auto found = settings().findItems("MailServerPassword", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QVERIFY(!found.first()->text(2).isEmpty());
    QVERIFY(!found.first()->text(2).contains("s3cret"));
    QCOMPARE(settings().findItems("MailServerLogin", Qt::MatchExactly).first()->text(2), "mia");
}

void TestMailPage::pictureShowsAMail()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QVERIFY(ready.wait());
    QVERIFY(page->isReady());
    QCOMPARE(mails().topLevelItemCount(), 1);
    QCOMPARE(mails().topLevelItem(0)->text(2), "Proof is ready");
    QCOMPARE(settings().topLevelItemCount(), 8);
}

void TestMailPage::pictureComesWithoutAServerToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(page->isReady());
    QVERIFY(!server->isRunning());
    QVERIFY(!server->error().isEmpty());
}

void TestMailPage::mnemonicsAreDistinct()
{
    QStringList keys = PageTest::mnemonics(*page) + PageTest::mnemonicsOfTheHeader();
    QVERIFY(keys.size() > 8);

    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestMailPage::textsFollowTheLanguage()
{
    server->setRunning(true);
    server->setTrouble(Trouble::WrongPassword);
    auto *troubles = page->findChildren<QComboBox *>().at(1);
    QCOMPARE(troubles->currentText(), "Wrong password");
    const quint16 port = server->port();
    PageTest::StarTranslator translator;

    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    const QString inOtherLanguage = troubles->currentText();
    const QString title = server->title();
    const QString description = page->description();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(inOtherLanguage, "*Wrong password");
    QCOMPARE(title, "*Local mail server");
    QVERIFY(description.startsWith('*'));
    QCOMPARE(troubles->currentText(), "Wrong password");
    // A language is no reason to start anew.
    QCOMPARE(server->port(), port);
}

void TestMailPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestMailPage>(argc, argv);
}

#include "tst_MailPage.moc"
