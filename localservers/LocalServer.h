#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

class QJsonObject;

/// A real server on a free port of 127.0.0.1, run by a Python script of this folder in a process
/// and a temporary folder of its own. Base of the servers here that are named Local….
///
/// The process ends with stop(), with the object, and when the program that started it is gone,
/// however that ended. A server can be started again; the port is another one then, and what
/// the earlier run left in its folder is lost.
///
/// How a script talks to this class stands in serverlink.py. Thread: that of the object; nothing
/// needs an event loop except the signals.
class LocalServer : public QObject
{
    Q_OBJECT

public:
    /// The script's file name in the folder "localservers" that lies beside the folder of the
    /// program, or its absolute path. There must be a QCoreApplication.
    explicit LocalServer(const QString &script, QObject *parent = nullptr);

    /// Stops the server.
    ~LocalServer() override;

    /// Starts the server and blocks until it takes connections, for 30 seconds at most. False, with
    /// the reason in error(), when it does not come up. Does nothing and returns true when it runs.
    [[nodiscard]] bool start();

    /// Ends the process and waits for its end; the port refuses connections from then on. The
    /// folder goes too. Does nothing when the server does not run.
    void stop();

    /// Whether the process is there.
    [[nodiscard]] bool isRunning() const;

    /// Where the server listens; 0 before a successful start(), kept by stop().
    [[nodiscard]] quint16 port() const { return listeningPort; }

    /// The process of the server; 0 when it does not run.
    [[nodiscard]] qint64 processId() const { return process.processId(); }

    /// The working folder of the running server, removed by stop(); empty when it does not run.
    [[nodiscard]] QString folder() const;

    /// Why start() failed, and whatever the script has printed as an error since, in words. Empty
    /// for a server that is well.
    [[nodiscard]] QString error();

    /// What clients asked for since start(), oldest first: a line for each command, without
    /// passwords. Kept by stop(). A command is here before its answer is sent. Lines are cut at
    /// 1000 characters.
    [[nodiscard]] QStringList log();

    /// Whether a client waits for an answer that it will not get, see the subclasses.
    [[nodiscard]] bool isSilent();

signals:
    /// A line has been added to log().
    void logged(const QString &line);

    /// The process has ended without stop(), some time after a successful start(); error() tells
    /// what it has printed. Emitted once, from the event loop or by a call that reads from the
    /// script, as log() does. The server may be deleted later, not in a slot of this signal.
    void stoppedByItself();

    /// isSilent() has become true. Emitted for each client that gets no answer any more.
    void becameSilent();

protected:
    /// Called by start() before anything else: drops what the last run left and makes what the
    /// options name. Gives a reason in words when the server cannot be started. The base does
    /// nothing.
    [[nodiscard]] virtual QString prepare();

    /// What the script gets as its options. The base's is empty.
    [[nodiscard]] virtual QJsonObject options() const;

    /// Called for each event of the script that the base does not know; the base does nothing.
    virtual void handleEvent(const QJsonObject &event);

    /// Hands a message to the running script and blocks until the script has taken it, for 30
    /// seconds at most. False when it does not run, ends meanwhile or is not done in time; an error
    /// of the script's ends it and stands in error(). Emits what the script tells meanwhile.
    [[nodiscard]] bool tell(const QJsonObject &message);

    /// Takes in what the script has told by now, without waiting.
    void readEvents();

private slots:
    void readLines();
    void processEnded();

private:
    [[nodiscard]] bool launch();
    [[nodiscard]] bool waitForPort();
    void forgetLastRun();
    void takeEvent(const QJsonObject &event);
    void fail(const QString &reason);

    QString scriptPath;
    std::optional<QTemporaryDir> workingFolder;
    QProcess process;
    // From a successful start() to stop() or to the end of the process.
    bool isWanted = false;
    quint16 listeningPort = 0;
    QString failure;
    QByteArray errorOutput;
    QStringList loggedLines;
    bool silent = false;
    int toldMessages = 0;
    int takenMessages = 0;
};
