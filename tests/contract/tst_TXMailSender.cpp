#include "LocalMailServer.h"
#include "MailDriver.h"
#include "MailReader.h"
#include "ProcessResources.h"
#include "ScriptedMailServer.h"
#include "SilentServer.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <ctime>
#include <thread>

using Security = LocalMailServer::Security;

namespace {

/// Far below the time-outs, far above what a busy machine needs.
constexpr int kAtOnceMilliseconds = 2000;

const QString kSubject = QStringLiteral("Prüfbericht 😀");
const QString kBody = QStringLiteral("Größe: 3 µm\n.\n印刷 😀");

TXMailSender *makeSender(const QHash<QString, QVariant> &settings)
{
    return TXMailSender::createTXMailSender(settings, "body", "subject", {}, {});
}

/// Fails before anything goes over a network.
TXMailSender *makeFailingSender()
{
    return makeSender({{"MailSender", "me@example.org"}});
}

} // namespace

class TestTXMailSender : public TestBase
{
    Q_OBJECT

private slots:
    void senderIsNeverNull();
    void outcomeIsToldLater();
    void senderFreesItselfAfterTheOutcome();
    void senderMayBeDeletedInTheSlot();
    void senderMayBeDeletedLaterInTheSlot();
    void senderMayBeDeletedBeforeTheOutcome();
    void senderMayBeDeletedWithoutSending();
    void sendingTwiceTellsOneOutcome();
    void senderCanBeMadeAndUsedOnAnotherThread();

    void mailArrives_data();
    void mailArrives();
    void loginIsNotUsedWhereNoneIsOffered();
    void receiversAreThoseOfTheArguments_data();
    void receiversAreThoseOfTheArguments();
    void namesArriveInHeadersOnly();
    void dotsArrive();
    void largeMailArrives();
    void manyMailsAtOnceArrive();
    void senderOfManyReceiversIsQuick();

    void cancelledSenderIsGoneAtOnce_data();
    void cancelledSenderIsGoneAtOnce();
    void cancelledSendersLeaveNothingBehind();
    void programEndsAtOnceWhileSending();

protected:
    void finish() override { TXTransferSettings::setCertificateAuthoritiesFile({}); }

private:
    /// Fails unless it is the mail of kSubject and kBody, made not before that second.
    void verifyContent(const QByteArray &content, qint64 before);
};

void TestTXMailSender::senderIsNeverNull()
{
    const QPointer<TXMailSender> sender = TXMailSender::createTXMailSender({}, {}, {}, {}, {});
    QVERIFY(sender);
    QCOMPARE(sender->parent(), QCoreApplication::instance());
    delete sender;
}

void TestTXMailSender::outcomeIsToldLater()
{
    TXMailSender *sender = makeFailingSender();
    QSignalSpy failed(sender, SIGNAL(mailSendingFailed(QString)));
    const QSignalSpy succeeded(sender, SIGNAL(mailSendingSucceed()));
    sender->sendMessage();
    QCOMPARE(failed.count(), 0);
    QVERIFY(failed.wait());
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().first().toString().contains("SMTP Server"));
    QCOMPARE(succeeded.count(), 0);
}

void TestTXMailSender::senderFreesItselfAfterTheOutcome()
{
    const QPointer<TXMailSender> sender = makeFailingSender();
    bool isAliveWhenTold = false;
    bool isOnItsThread = false;
    connect(sender, &TXMailSender::mailSendingFailed, sender, [&] {
        isAliveWhenTold = !sender.isNull();
        isOnItsThread = QThread::currentThread() == thread();
    });
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
    QVERIFY(isAliveWhenTold);
    QVERIFY(isOnItsThread);
}

void TestTXMailSender::senderMayBeDeletedInTheSlot()
{
    const QPointer<TXMailSender> sender = makeFailingSender();
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { delete sender; });
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
}

void TestTXMailSender::senderMayBeDeletedLaterInTheSlot()
{
    const QPointer<TXMailSender> sender = makeFailingSender();
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { sender->deleteLater(); });
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
}

void TestTXMailSender::senderMayBeDeletedBeforeTheOutcome()
{
    TXMailSender *sender = makeFailingSender();
    int told = 0;
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { ++told; });
    sender->sendMessage();
    delete sender;
    QCoreApplication::processEvents();
    QCOMPARE(told, 0);
}

void TestTXMailSender::senderMayBeDeletedWithoutSending()
{
    const int threads = threadCount();
    delete makeFailingSender();
    QCOMPARE(threadCount(), threads);
}

void TestTXMailSender::sendingTwiceTellsOneOutcome()
{
    const QPointer<TXMailSender> sender = makeFailingSender();
    int told = 0;
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { ++told; });
    sender->sendMessage();
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
    QCOMPARE(told, 1);
}

void TestTXMailSender::senderCanBeMadeAndUsedOnAnotherThread()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailOutcome outcome;
    bool hasParent = true;
    std::thread other([&] {
        const std::unique_ptr<TXMailSender> sender(makeFailingSender());
        hasParent = sender->parent();
        outcome = sendMail(mailSettings(server.port()));
    });
    other.join();
    QVERIFY(!hasParent);
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    QCOMPARE(server.mails().size(), 1);
}

void TestTXMailSender::mailArrives_data()
{
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<Security>("security");
    QTest::addColumn<bool>("hasLogin");
    const QList<QPair<QString, Security>> ways = {
        {"NONE", Security::Plain}, {"TLS", Security::StartTls}, {"SSL", Security::ImplicitTls}};
    for (const auto &[word, security] : ways) {
        QTest::addRow("%s", qPrintable(word)) << word << security << false;
        QTest::addRow("%s, login", qPrintable(word)) << word << security << true;
    }
}

void TestTXMailSender::mailArrives()
{
    QFETCH(QString, encryption);
    QFETCH(Security, security);
    QFETCH(bool, hasLogin);
    const QString login = hasLogin ? QStringLiteral("zoë@example.org") : QString();
    const QByteArray password = "p@ss: wörd/\"";
    LocalMailServer server;
    server.setSecurity(security);
    server.setLogin(login, password);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXTransferSettings::setCertificateAuthoritiesFile(server.certificateFile());
    const qint64 before = QDateTime::currentSecsSinceEpoch();

    auto settings = mailSettings(server.port(), encryption);
    if (hasLogin) {
        settings = withLogin(settings, login, password);
    }
    settings["MailCopyDestination"] = "eve@example.org";
    const MailOutcome outcome = sendMail(settings, kBody, kSubject);

    QCOMPARE(outcome.reason, QString());
    QVERIFY(outcome.sent);
    QCOMPARE(outcome.tellings, 1);
    QCOMPARE(server.mails().size(), 1);
    const ReceivedMail received = server.mails().first();
    QCOMPARE(received.sender, "mia@example.org");
    QCOMPARE(received.receivers, QStringList({"bob@example.org", "eve@example.org"}));
    QCOMPARE(received.usedTls, security != Security::Plain);
    QCOMPARE(received.login, login);
    QCOMPARE(server.error(), QString());
    verifyContent(received.content, before);
}

void TestTXMailSender::verifyContent(const QByteArray &content, qint64 before)
{
    const QJsonObject mail = readMail(content);
    QVERIFY2(mail["defects"].toArray().isEmpty(), content);
    QCOMPARE(mail["from"].toString(), "mia@example.org");
    QCOMPARE(mail["to"].toString(), "bob@example.org");
    QCOMPARE(mail["cc"].toString(), "eve@example.org");
    QCOMPARE(mail["subject"].toString(), kSubject);
    QCOMPARE(mail["body"].toString().remove('\r'), kBody + '\n');
    QVERIFY(mail["id"].toString().endsWith("@example.org>"));
    QVERIFY(mail["time"].toDouble() >= double(before));
    QVERIFY(mail["time"].toDouble() <= double(QDateTime::currentSecsSinceEpoch()));
}

void TestTXMailSender::loginIsNotUsedWhereNoneIsOffered()
{
    const ScriptedMailServer server({{"EHLO", "250 hello"}});
    const MailOutcome outcome = sendMail(withLogin(mailSettings(server.port()), "mia", "s3cret"));
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    QVERIFY(!server.commands().join().contains("AUTH"));
}

void TestTXMailSender::receiversAreThoseOfTheArguments_data()
{
    QTest::addColumn<QList<QString>>("receivers");
    QTest::addColumn<QList<QString>>("copyReceivers");
    QTest::addColumn<QStringList>("to");
    QTest::addColumn<QStringList>("cc");
    using Texts = QList<QString>;
    const QStringList to = {"bob@example.org", "ben@example.org"};
    const QStringList cc = {"cat@example.org"};
    QTest::newRow("none") << Texts() << Texts() << to << cc;
    QTest::newRow("receiver") << Texts{"x@example.org"} << Texts() << QStringList{"x@example.org"}
                              << cc;
    QTest::newRow("copy") << Texts() << Texts{"y@example.org"} << to
                          << QStringList{"y@example.org"};
    QTest::newRow("several") << Texts{"x@example.org;y@example.org", "Zoe <z@example.org>"}
                             << Texts{"a@example.org", "b@example.org"}
                             << QStringList{"x@example.org", "y@example.org", "Zoe <z@example.org>"}
                             << QStringList{"a@example.org", "b@example.org"};
    QTest::newRow("no copies") << Texts() << Texts{""} << to << QStringList();
}

void TestTXMailSender::receiversAreThoseOfTheArguments()
{
    QFETCH(QList<QString>, receivers);
    QFETCH(QList<QString>, copyReceivers);
    QFETCH(QStringList, to);
    QFETCH(QStringList, cc);
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    auto settings = mailSettings(server.port());
    settings["MailMainDestination"] = "bob@example.org; ben@example.org";
    settings["MailCopyDestination"] = "cat@example.org";
    const MailOutcome outcome = sendMail(settings, "b", "s", receivers, copyReceivers);
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    const ReceivedMail received = server.mails().value(0);
    QCOMPARE(received.receivers,
             (to + cc).replaceInStrings("Zoe <z@example.org>", "z@example.org"));
    const QJsonObject mail = readMail(received.content);
    QCOMPARE(mail["to"].toString(), to.join(", "));
    QCOMPARE(mail["cc"].toString(), cc.join(", "));
}

void TestTXMailSender::namesArriveInHeadersOnly()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    auto settings = mailSettings(server.port());
    settings["MailSender"] = QStringLiteral("Zoë Moll <zoe@Bücher.example>");
    settings["MailMainDestination"] = "\"Moll, Bob\" <bob@example.org>";
    const MailOutcome outcome = sendMail(settings);
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    const ReceivedMail received = server.mails().value(0);
    QCOMPARE(received.sender, "zoe@xn--bcher-kva.example");
    QCOMPARE(received.receivers, QStringList{"bob@example.org"});
    const QJsonObject mail = readMail(received.content);
    QCOMPARE(mail["from"].toString(), QStringLiteral("Zoë Moll <zoe@xn--bcher-kva.example>"));
    QCOMPARE(mail["to"].toString(), "Moll, Bob <bob@example.org>");
}

void TestTXMailSender::dotsArrive()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    // Over many of the blocks in which the mail goes out, so that dots stand at their borders too.
    const QString body = QStringLiteral(".\n..\n.a\nb.\n\n").repeated(20000);
    const MailOutcome outcome = sendMail(mailSettings(server.port()), body);
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    const QByteArray content = server.mails().value(0).content;
    QCOMPARE(content.mid(content.indexOf("\r\n\r\n") + 4),
             QString(body).replace("\n", "\r\n").toLatin1());
}

void TestTXMailSender::largeMailArrives()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString text(1 << 20, u'x');
    const MailOutcome outcome = sendMail(mailSettings(server.port()), text, text);
    QVERIFY2(outcome.sent, qPrintable(outcome.reason));
    QVERIFY(server.mails().value(0).content.size() > 2 << 20);
}

void TestTXMailSender::manyMailsAtOnceArrive()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    constexpr int kMails = 20;
    QList<QPointer<TXMailSender>> senders;
    int sent = 0;
    for (int i = 0; i < kMails; ++i) {
        senders.append(makeSender(mailSettings(server.port())));
        connect(senders.last(), &TXMailSender::mailSendingSucceed, this, [&sent] { ++sent; });
        senders.last()->sendMessage();
    }
    QTRY_COMPARE_WITH_TIMEOUT(sent, kMails, 30000);
    QCOMPARE(server.mails().size(), kMails);
    QTRY_VERIFY(std::all_of(senders.begin(), senders.end(), [](auto &s) { return s.isNull(); }));
}

void TestTXMailSender::senderOfManyReceiversIsQuick()
{
    // No server: reading and listing them is what must not take the square of their number.
    auto settings = mailSettings(1);
    QString receivers;
    for (int i = 0; i < 100000; ++i) {
        receivers += QStringLiteral("r%1@example.org,").arg(i);
    }
    settings["MailMainDestination"] = receivers;
    settings["MailServerAddress"] = "127.0.0.1";
    // The processor's time, which other programs on the machine do not make longer.
    const std::clock_t start = std::clock();
    const MailOutcome outcome = sendMail(settings);
    QCOMPARE(outcome.tellings, 1);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 20, qPrintable(QString::number(seconds)));
}

void TestTXMailSender::cancelledSenderIsGoneAtOnce_data()
{
    QTest::addColumn<QByteArray>("silentCommand");
    for (const char *command : {"EHLO", "AUTH", "login", "MAIL", "RCPT", "DATA", "."}) {
        QTest::newRow(command) << QByteArray(command);
    }
}

void TestTXMailSender::cancelledSenderIsGoneAtOnce()
{
    QFETCH(QByteArray, silentCommand);
    const ScriptedMailServer server({{silentCommand, ScriptedMailServer::kSilence}});
    const QPointer<TXMailSender> sender =
        makeSender(withLogin(mailSettings(server.port()), "mia", "s3cret"));
    int told = 0;
    connect(sender, &TXMailSender::mailSendingFailed, this, [&told] { ++told; });
    connect(sender, &TXMailSender::mailSendingSucceed, this, [&told] { ++told; });
    sender->sendMessage();
    QTRY_VERIFY(server.isSilent());
    QElapsedTimer timer;
    timer.start();
    delete sender;
    QVERIFY2(timer.elapsed() < kAtOnceMilliseconds, qPrintable(QString::number(timer.elapsed())));
    QTRY_COMPARE(server.clients(), 0);
    QCOMPARE(told, 0);
}

void TestTXMailSender::cancelledSendersLeaveNothingBehind()
{
    const int filesBefore = openFileCount();
    const SilentServer server;
    QCOMPARE(openFileCount(), filesBefore + 1);
    const auto sendAndCancel = [&server] {
        auto settings = mailSettings(server.port());
        // Not a name: threads that look up names end when they like.
        settings["MailServerAddress"] = "127.0.0.1";
        const std::unique_ptr<TXMailSender> sender(makeSender(settings));
        sender->sendMessage();
        return server.waitForClient(kAtOnceMilliseconds);
    };
    // What the libraries set up once and keep is not counted.
    QVERIFY(sendAndCancel());
    const int threads = threadCount();
    const int files = openFileCount();
    for (int i = 0; i < 20; ++i) {
        QVERIFY(sendAndCancel());
    }
    QTRY_VERIFY(threadCount() <= threads);
    QTRY_VERIFY(openFileCount() <= files);
}

void TestTXMailSender::programEndsAtOnceWhileSending()
{
    const SilentServer server;
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + "/mailinghelper",
                  {QString::number(server.port())});
    QVERIFY(program.waitForStarted());
    QVERIFY(server.waitForClient(30000));
    QElapsedTimer timer;
    timer.start();
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished(30000));
    QVERIFY2(timer.elapsed() < kAtOnceMilliseconds, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.readAllStandardOutput(), QByteArray("the transfer was ended\n"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXMailSender>(argc, argv);
}

#include "tst_TXMailSender.moc"
