#include "MessageLog.h"

#include "TXLogManager.h"

#include <QMessageLogContext>
#include <QMutex>
#include <QMutexLocker>

#include <atomic>

namespace {

QMutex targetMutex;
QSharedPointer<TXLogManager> target; // guarded by targetMutex

// Not guarded by the mutex: a message on its way to it must never wait for the log.
std::atomic<QtMessageHandler> previous = nullptr;

QSharedPointer<TXLogManager> currentTarget()
{
    const QMutexLocker locker(&targetMutex);
    return target;
}

void setTarget(const QSharedPointer<TXLogManager> &log)
{
    const QMutexLocker locker(&targetMutex);
    target = log;
}

int levelOf(QtMsgType type)
{
    switch (type) {
    case QtWarningMsg:
        return TXLogItem::Warning;
    case QtCriticalMsg:
    case QtFatalMsg:
        return TXLogItem::Error;
    default:
        return TXLogItem::Information;
    }
}

QString withCategory(const QMessageLogContext &context, const QString &message)
{
    const QString category = QString::fromUtf8(context.category);
    const bool isPlain = category.isEmpty() || category == QLatin1String("default");
    return isPlain ? message : QStringLiteral("[%1] ").arg(category) + message;
}

/// "page.cpp:12, void Page::show()", or an empty string when the build does not know.
QString sourceOf(const QMessageLogContext &context)
{
    if (!context.file) {
        return {};
    }
    const QString file = QString::fromLocal8Bit(context.file).section(QLatin1Char('/'), -1);
    const QString place = QStringLiteral("%1:%2").arg(file).arg(context.line);
    return context.function ? place + QStringLiteral(", ") + QString::fromUtf8(context.function)
                            : place;
}

void take(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QSharedPointer<TXLogManager> log = currentTarget();
    if (!log) {
        return;
    }
    const int level = levelOf(type);
    const auto item =
        TXLogItem::create(level, TXStringI18n::fromString(withCategory(context, message)));
    const QString source = sourceOf(context);
    if (!source.isEmpty()) {
        item->addChild(TXLogItem::create(level, TXStringI18n::fromString(source)));
    }
    log->append(item);
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // A message that this causes on the same thread goes to standard error: Qt sees to that.
    take(type, context, message);
    if (const QtMessageHandler next = previous) {
        next(type, context, message);
    }
}

} // namespace

MessageLog::MessageLog(const QSharedPointer<TXLogManager> &log)
{
    setTarget(log);
    const QtMessageHandler installed = qInstallMessageHandler(handle);
    // A second object, which is not meant to be, must not make the handler call itself.
    if (installed != handle) {
        previous = installed;
    }
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(previous);
    setTarget({});
}
