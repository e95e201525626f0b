#include "MessageLog.h"
#include "TestBase.h"

#include "TXLogManager.h"

#include <QLoggingCategory>
#include <QThread>

#include <memory>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(paper, "gallery.paper")

int previousCalls = 0;

void talkativeHandler(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++previousCalls;
    if (previousCalls == 1) {
        qInfo("said by a handler");
    }
}

} // namespace

class TestMessageLog : public TestBase
{
    Q_OBJECT

private slots:
    void kindOfMessageDecidesOnTheLevel_data();
    void kindOfMessageDecidesOnTheLevel();
    void categoryStandsBeforeTheText();
    void sourceIsASubItem();
    void messageLookingLikeAPatternStaysAsItIs();
    void messagesArePassedOn();
    void handlerThatLogsItselfDoesNotLoop();
    void messagesOfManyThreadsAllArrive();
    void nothingIsTakenAfterwards();

protected:
    void prepare() override;
    void finish() override;

private:
    QList<QSharedPointer<TXLogItem>> takenItems();
    QString textOf(int row) { return takenItems().at(row)->message.toString(nullptr); }

    QSharedPointer<TXLogManager> log;
    std::unique_ptr<MessageLog> messageLog;
};

void TestMessageLog::prepare()
{
    log = QSharedPointer<TXLogManager>::create();
    messageLog = std::make_unique<MessageLog>(log);
}

void TestMessageLog::finish()
{
    messageLog.reset();
    log.reset();
}

QList<QSharedPointer<TXLogItem>> TestMessageLog::takenItems()
{
    log->flush();
    return log->rootItem()->children;
}

void TestMessageLog::kindOfMessageDecidesOnTheLevel_data()
{
    QTest::addColumn<QtMsgType>("type");
    QTest::addColumn<int>("level");
    QTest::newRow("debug") << QtDebugMsg << 1;
    QTest::newRow("info") << QtInfoMsg << 1;
    QTest::newRow("warning") << QtWarningMsg << 2;
    QTest::newRow("critical") << QtCriticalMsg << 3;
}

void TestMessageLog::kindOfMessageDecidesOnTheLevel()
{
    QFETCH(QtMsgType, type);
    QTest::ignoreMessage(type, "ink is low");

    qt_message_output(type, QMessageLogContext(), "ink is low");

    QCOMPARE(takenItems().size(), 1);
    QTEST(takenItems().first()->level, "level");
    QCOMPARE(textOf(0), "ink is low");
}

void TestMessageLog::categoryStandsBeforeTheText()
{
    QTest::ignoreMessage(QtWarningMsg, "jammed");

    qCWarning(paper, "jammed");

    QCOMPARE(textOf(0), "[gallery.paper] jammed");
}

void TestMessageLog::sourceIsASubItem()
{
    QTest::ignoreMessage(QtInfoMsg, "here");

    QMessageLogger("some/folder/file.cpp", 12, "void f()").info("here");

    const auto item = takenItems().first();
    QCOMPARE(item->children.size(), 1);
    QCOMPARE(item->children.first()->message.toString(nullptr), "file.cpp:12, void f()");
}

void TestMessageLog::messageLookingLikeAPatternStaysAsItIs()
{
    QTest::ignoreMessage(QtInfoMsg, "100%1 of %2");

    qCInfo(paper).noquote() << QStringLiteral("100%1 of %2");

    QCOMPARE(textOf(0), "[gallery.paper] 100%1 of %2");
}

void TestMessageLog::messagesArePassedOn()
{
    // Fails by itself when the message does not come through.
    QTest::ignoreMessage(QtWarningMsg, "passed on");

    qWarning("passed on");
}

void TestMessageLog::handlerThatLogsItselfDoesNotLoop()
{
    messageLog.reset();
    previousCalls = 0;
    const QtMessageHandler ofTest = qInstallMessageHandler(talkativeHandler);
    messageLog = std::make_unique<MessageLog>(log);

    qInfo("said by the program");

    messageLog.reset();
    qInstallMessageHandler(ofTest);
    QCOMPARE(takenItems().size(), 1);
    QCOMPARE(textOf(0), "said by the program");
    QCOMPARE(previousCalls, 1);
}

void TestMessageLog::messagesOfManyThreadsAllArrive()
{
    constexpr int threadCount = 4;
    constexpr int messageCount = 250;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(QThread::create([] {
            for (int message = 0; message < messageCount; ++message) {
                qInfo("from a thread");
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads) {
        QVERIFY(thread->wait());
    }

    QCOMPARE(takenItems().size(), threadCount * messageCount);
}

void TestMessageLog::nothingIsTakenAfterwards()
{
    messageLog.reset();

    qInfo("too late");

    QVERIFY(takenItems().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestMessageLog>(argc, argv);
}

#include "tst_MessageLog.moc"
