#include "TXMailSender.h"
#include "TestBase.h"

#include <QPointer>
#include <QSignalSpy>

#include <thread>

namespace {

TXMailSender *makeSender()
{
    return TXMailSender::createTXMailSender({{"MailSender", "me@example.org"}}, "body", "subject",
                                            {}, {});
}

} // namespace

class TestTXMailSender : public TestBase
{
    Q_OBJECT

private slots:
    void senderIsNeverNull();
    void failureIsToldInWordsAndLater();
    void senderFreesItselfAfterTheOutcome();
    void senderMayBeDeletedInTheSlot();
    void senderMayBeDeletedBeforeTheOutcome();
    void sendingTwiceTellsOneOutcome();
    void senderCanBeMadeOnAnotherThread();
};

void TestTXMailSender::senderIsNeverNull()
{
    const QPointer<TXMailSender> sender = TXMailSender::createTXMailSender({}, {}, {}, {}, {});
    QVERIFY(sender);
    QCOMPARE(sender->parent(), QCoreApplication::instance());
    delete sender;
}

void TestTXMailSender::failureIsToldInWordsAndLater()
{
    TXMailSender *sender = makeSender();
    QSignalSpy failed(sender, SIGNAL(mailSendingFailed(QString)));
    const QSignalSpy succeeded(sender, SIGNAL(mailSendingSucceed()));
    sender->sendMessage();
    QCOMPARE(failed.count(), 0);
    QVERIFY(failed.wait());
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().first().toString().contains("not available"));
    QCOMPARE(succeeded.count(), 0);
}

void TestTXMailSender::senderFreesItselfAfterTheOutcome()
{
    const QPointer<TXMailSender> sender = makeSender();
    bool aliveWhenTold = false;
    connect(sender, &TXMailSender::mailSendingFailed, this,
            [&] { aliveWhenTold = !sender.isNull(); });
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
    QVERIFY(aliveWhenTold);
}

void TestTXMailSender::senderMayBeDeletedInTheSlot()
{
    const QPointer<TXMailSender> sender = makeSender();
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { delete sender; });
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
}

void TestTXMailSender::senderMayBeDeletedBeforeTheOutcome()
{
    TXMailSender *sender = makeSender();
    int told = 0;
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { ++told; });
    sender->sendMessage();
    delete sender;
    QCoreApplication::processEvents();
    QCOMPARE(told, 0);
}

void TestTXMailSender::sendingTwiceTellsOneOutcome()
{
    const QPointer<TXMailSender> sender = makeSender();
    int told = 0;
    connect(sender, &TXMailSender::mailSendingFailed, this, [&] { ++told; });
    sender->sendMessage();
    sender->sendMessage();
    QTRY_VERIFY(sender.isNull());
    QCOMPARE(told, 1);
}

void TestTXMailSender::senderCanBeMadeOnAnotherThread()
{
    QObject *parent = this;
    std::thread worker([&parent] {
        const std::unique_ptr<TXMailSender> sender(makeSender());
        parent = sender->parent();
    });
    worker.join();
    QVERIFY(!parent);
}

int main(int argc, char **argv)
{
    return runTest<TestTXMailSender>(argc, argv);
}

#include "tst_TXMailSender.moc"
