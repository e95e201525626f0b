#include "ClosedPort.h"
#include "CurlClient.h"
#include "FullServer.h"
#include "SilentServer.h"
#include "TestBase.h"

namespace {

constexpr long kShortMilliseconds = 300;

} // namespace

class TestLoopbackServers : public TestBase
{
    Q_OBJECT

private slots:
    void closedPortRefusesAtOnce();
    void silentServerConnectsAndSaysNothing();
    void silentServerTellsOfAClient();
    void fullServerNeverConnects();
};

void TestLoopbackServers::closedPortRefusesAtOnce()
{
    QVERIFY(closedPort() != 0);
    QCOMPARE(closedPort(), closedPort());
    CurlClient client("ftp", closedPort());

    QCOMPARE(client.run(), int(CURLE_COULDNT_CONNECT));
}

void TestLoopbackServers::silentServerConnectsAndSaysNothing()
{
    const SilentServer server;
    QVERIFY(server.port() != 0);
    CurlClient client("telnet", server.port());
    client.set(CURLOPT_CONNECT_ONLY, 1L);
    QCOMPARE(client.run(), int(CURLE_OK));

    CurlClient reader("ftp", server.port());
    reader.set(CURLOPT_TIMEOUT_MS, kShortMilliseconds);
    QCOMPARE(reader.run(), int(CURLE_OPERATION_TIMEDOUT));
}

void TestLoopbackServers::silentServerTellsOfAClient()
{
    const SilentServer server;
    QVERIFY(!server.waitForClient(0));
    CurlClient client("telnet", server.port());
    client.set(CURLOPT_CONNECT_ONLY, 1L);
    QCOMPARE(client.run(), int(CURLE_OK));

    QVERIFY(server.waitForClient(int(kShortMilliseconds)));
}

void TestLoopbackServers::fullServerNeverConnects()
{
    const FullServer server;
    QVERIFY(server.port() != 0);
    CurlClient client("telnet", server.port());
    client.set(CURLOPT_CONNECT_ONLY, 1L);
    client.set(CURLOPT_CONNECTTIMEOUT_MS, kShortMilliseconds);

    QCOMPARE(client.run(), int(CURLE_OPERATION_TIMEDOUT));
}

int main(int argc, char **argv)
{
    return runTest<TestLoopbackServers>(argc, argv);
}

#include "tst_LoopbackServers.moc"
