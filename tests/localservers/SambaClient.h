#pragma once

#include "LocalSambaServer.h"

#include <QProcess>
#include <QProcessEnvironment>

/// smbclient as a client of the server of a test.
class SambaClient : public QProcess
{
public:
    explicit SambaClient(const LocalSambaServer &server)
        : port(QString::number(server.port()))
    {
        setProcessChannelMode(MergedChannels);
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(QStringLiteral("PASSWD_FD"), QStringLiteral("0"));
        setProcessEnvironment(surroundings);
    }

    ~SambaClient() override
    {
        kill();
        waitForFinished();
    }

    SambaClient(const SambaClient &) = delete;
    SambaClient &operator=(const SambaClient &) = delete;
    SambaClient(SambaClient &&) = delete;
    SambaClient &operator=(SambaClient &&) = delete;

    void logIn(const QString &newUser, const QString &newPassword)
    {
        user = newUser;
        password = newPassword;
    }

    /// Runs commands in the share; whether all went well. readAll() has what was said.
    bool run(const QString &share, const QString &commands)
    {
        return launch({QStringLiteral("//127.0.0.1/") + share, QStringLiteral("-c"), commands});
    }

    /// Lists the shares.
    bool list()
    {
        return launch({QStringLiteral("-L"), QStringLiteral("127.0.0.1"), QStringLiteral("-g")});
    }

private:
    bool launch(const QStringList &arguments)
    {
        start(QStringLiteral("smbclient"),
              arguments + QStringList{QStringLiteral("-p"), port, QStringLiteral("-U"), user});
        write(password.toUtf8() + '\n');
        closeWriteChannel();
        return waitForFinished() && exitStatus() == NormalExit && exitCode() == 0;
    }

    QString port;
    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
};
