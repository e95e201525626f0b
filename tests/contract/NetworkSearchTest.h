#pragma once

#include "AutoMountNetworkDrive.h"
#include "StandInPrograms.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <thread>

/// What goes through the callbacks' context.
struct Hearing
{
    QStringList finds;
    std::thread::id thread = std::this_thread::get_id();
    bool isElsewhere = false;
    int asked = 0;
    std::function<void(const QString &)> heard = [](const QString &) {
    };
    std::function<bool()> isCancelled = [] {
        return false;
    };
};

inline void hear(QUrl url, void *context)
{
    auto *hearing = static_cast<Hearing *>(context);
    hearing->isElsewhere = hearing->isElsewhere || std::this_thread::get_id() != hearing->thread;
    hearing->finds.append(url.toString(QUrl::FullyEncoded));
    hearing->heard(hearing->finds.last());
}

inline bool ask(void *context)
{
    auto *hearing = static_cast<Hearing *>(context);
    hearing->isElsewhere = hearing->isElsewhere || std::this_thread::get_id() != hearing->thread;
    ++hearing->asked;
    return hearing->isCancelled();
}

/// All finds, in the order in which they are returned.
inline QStringList search(const QUrl &url, Hearing *hearing)
{
    QStringList finds;
    for (const QUrl &find :
         AutoMountNetworkDrive::findHostsOrShareFolders(url, hear, ask, hearing)) {
        finds.append(find.toString(QUrl::FullyEncoded));
    }
    return finds;
}

/// The same, where all that is heard has to be what is returned.
inline QStringList search(const QUrl &url)
{
    Hearing hearing;
    const QStringList finds = search(url, &hearing);
    return finds == hearing.finds && !hearing.isElsewhere ? finds
                                                          : QStringList{"not as it was heard"};
}

/// What avahi-browse prints for a server on the network.
inline QByteArray recordOf(const QByteArray &host, int port = 445)
{
    return "=;eth0;IPv4;n;_smb._tcp;local;" + host + ";127.0.0.1;" + QByteArray::number(port)
        + ";\n";
}

/// What the tests of searching have in common: stand-ins for the programs that look for hosts and
/// shares, and an empty log.
class NetworkSearchTest : public TestBase
{
protected:
    void prepare() override
    {
        TXLogManager::applicationLog()->reset();
        programs = std::make_unique<StandInPrograms>();
    }

    void finish() override { programs.reset(); }

    /// The records are what is found on the network; the script runs after it.
    void addHosts(const QByteArray &records, const QByteArray &then = {})
    {
        programs->write("recording", records);
        QVERIFY(programs->add("avahi-browse", "/bin/cat \"$here/recording\"\n" + then));
    }

    /// The script finds the host that it is asked for in "$host".
    void addShares(const QByteArray &script)
    {
        QVERIFY(programs->add("smbclient", "host=${1#--list=}\n" + script));
    }

    std::unique_ptr<StandInPrograms> programs;
};
