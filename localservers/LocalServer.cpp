#include "LocalServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int kStartMilliseconds = 30000;
constexpr int kEndMilliseconds = 3000;
constexpr int kAnswerMilliseconds = 30000;

/// Debian's Python: another one first on the PATH would not see the modules of the servers.
const QString kPython = QStringLiteral("/usr/bin/python3");

/// No user settings, no compiled files beside the sources, no warnings of Python's own.
const QStringList kPythonOptions = {QStringLiteral("-E"), QStringLiteral("-s"),
                                    QStringLiteral("-B"), QStringLiteral("-Wignore")};

/// Holds wherever the program and its folder are installed, and in the folder of a build.
QDir scriptsFolder()
{
    return {QCoreApplication::applicationDirPath() + QStringLiteral("/../localservers")};
}

} // namespace

LocalServer::LocalServer(const QString &script, QObject *parent)
    : QObject(parent)
    , scriptPath(QDir::cleanPath(scriptsFolder().absoluteFilePath(script)))
{
    connect(&process, SIGNAL(readyReadStandardOutput()), this, SLOT(readLines()));
    connect(&process, SIGNAL(finished(int, QProcess::ExitStatus)), this, SLOT(processEnded()));
}

LocalServer::~LocalServer()
{
    process.disconnect(this);
    stop();
}

bool LocalServer::start()
{
    if (isRunning()) {
        return true;
    }
    forgetLastRun();
    fail(prepare());
    if (failure.isEmpty() && launch() && waitForPort()) {
        isWanted = true;
        // An event may have come right behind the port, and so may the end.
        readLines();
        if (!isRunning()) {
            QMetaObject::invokeMethod(this, "processEnded", Qt::QueuedConnection);
        }
        return true;
    }
    // With what the script has printed, which error() would add once more.
    const QString reason = error();
    stop();
    errorOutput.clear();
    failure = reason;
    return false;
}

void LocalServer::stop()
{
    isWanted = false;
    if (isRunning()) {
        process.closeWriteChannel();
        if (!process.waitForFinished(kEndMilliseconds)) {
            process.kill();
            process.waitForFinished(kEndMilliseconds);
        }
        readEvents();
    }
    workingFolder.reset();
}

bool LocalServer::isRunning() const
{
    return process.state() != QProcess::NotRunning;
}

QString LocalServer::folder() const
{
    return workingFolder ? workingFolder->path() : QString();
}

QString LocalServer::error()
{
    readEvents();
    if (process.isOpen()) {
        errorOutput += process.readAllStandardError();
    }
    const QString printed = QString::fromUtf8(errorOutput).trimmed();
    if (failure.isEmpty() || printed.isEmpty()) {
        return failure + printed;
    }
    return failure + u'\n' + printed;
}

QStringList LocalServer::log()
{
    readEvents();
    return loggedLines;
}

bool LocalServer::isSilent()
{
    readEvents();
    return silent;
}

QString LocalServer::prepare()
{
    return {};
}

QJsonObject LocalServer::options() const
{
    return {};
}

void LocalServer::handleEvent(const QJsonObject &) { }

bool LocalServer::tell(const QJsonObject &message)
{
    if (!isRunning()) {
        return false;
    }
    process.write(QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
    // A slot that hears of an event meanwhile may tell something too.
    const int number = ++toldMessages;
    const QDeadlineTimer deadline(kAnswerMilliseconds);
    readLines();
    while (takenMessages < number && isRunning() && !deadline.hasExpired()) {
        process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
        readLines();
    }
    return takenMessages >= number;
}

void LocalServer::readEvents()
{
    while (isRunning() && process.waitForReadyRead(0)) { }
    readLines();
}

void LocalServer::readLines()
{
    // The first line is the port, and start() waits for it.
    while (listeningPort != 0 && process.canReadLine()) {
        takeEvent(QJsonDocument::fromJson(process.readLine()).object());
    }
}

void LocalServer::processEnded()
{
    // Asked for once more when the server has been started again meanwhile.
    if (!isWanted || isRunning()) {
        return;
    }
    isWanted = false;
    readLines();
    emit stoppedByItself();
}

bool LocalServer::launch()
{
    workingFolder.emplace();
    if (!workingFolder->isValid()) {
        fail(tr("no folder for the server: %1").arg(workingFolder->errorString()));
        return false;
    }
    process.setWorkingDirectory(workingFolder->path());
    process.start(kPython, kPythonOptions + QStringList(scriptPath));
    if (!process.waitForStarted(kStartMilliseconds)) {
        fail(tr("%1 does not start: %2").arg(kPython, process.errorString()));
        return false;
    }
    process.write(QJsonDocument(options()).toJson(QJsonDocument::Compact) + '\n');
    return true;
}

bool LocalServer::waitForPort()
{
    const QDeadlineTimer deadline(kStartMilliseconds);
    while (!process.canReadLine() && !deadline.hasExpired() && isRunning()) {
        process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    if (!process.canReadLine()) {
        fail(isRunning() ? tr("%1 is not ready in time").arg(scriptPath)
                         : tr("%1 ended before it was ready").arg(scriptPath));
        return false;
    }
    const QByteArray line = process.readLine().trimmed();
    listeningPort = line.toUShort();
    if (listeningPort == 0) {
        fail(tr("%1 told no port but \"%2\"").arg(scriptPath, QString::fromUtf8(line)));
    }
    return listeningPort != 0;
}

void LocalServer::forgetLastRun()
{
    listeningPort = 0;
    failure.clear();
    errorOutput.clear();
    loggedLines.clear();
    silent = false;
    toldMessages = 0;
    takenMessages = 0;
}

void LocalServer::takeEvent(const QJsonObject &event)
{
    if (event.contains(u"log")) {
        loggedLines.append(event.value(u"log").toString());
        emit logged(loggedLines.last());
    } else if (event.contains(u"silent")) {
        silent = true;
        emit becameSilent();
    } else if (event.contains(u"taken")) {
        ++takenMessages;
    } else {
        handleEvent(event);
    }
}

void LocalServer::fail(const QString &reason)
{
    failure = reason;
}
