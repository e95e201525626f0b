#include "TXTransferSettings.h"

#include <QMutex>

namespace {

struct Values
{
    int connectTimeoutMilliseconds = TXTransferSettings::kDefaultConnectTimeoutMilliseconds;
    int totalTimeoutMilliseconds = TXTransferSettings::kDefaultTotalTimeoutMilliseconds;
    QString certificateAuthoritiesFile;
    QString knownHostsFile;
};

QBasicMutex mutex;

/// Only under the mutex.
Values &values()
{
    static Values theValues;
    return theValues;
}

template<class Value>
Value read(Value Values::*member)
{
    const QMutexLocker locker(&mutex);
    return values().*member;
}

template<class Value>
void write(Value Values::*member, const Value &value)
{
    const QMutexLocker locker(&mutex);
    values().*member = value;
}

} // namespace

int TXTransferSettings::connectTimeout()
{
    return read(&Values::connectTimeoutMilliseconds);
}

void TXTransferSettings::setConnectTimeout(int milliseconds)
{
    write(&Values::connectTimeoutMilliseconds,
          milliseconds < 1 ? kDefaultConnectTimeoutMilliseconds : milliseconds);
}

int TXTransferSettings::totalTimeout()
{
    return read(&Values::totalTimeoutMilliseconds);
}

void TXTransferSettings::setTotalTimeout(int milliseconds)
{
    write(&Values::totalTimeoutMilliseconds,
          milliseconds < 1 ? kDefaultTotalTimeoutMilliseconds : milliseconds);
}

QString TXTransferSettings::certificateAuthoritiesFile()
{
    return read(&Values::certificateAuthoritiesFile);
}

void TXTransferSettings::setCertificateAuthoritiesFile(const QString &path)
{
    write(&Values::certificateAuthoritiesFile, path);
}

QString TXTransferSettings::knownHostsFile()
{
    return read(&Values::knownHostsFile);
}

void TXTransferSettings::setKnownHostsFile(const QString &path)
{
    write(&Values::knownHostsFile, path);
}
