#pragma once

#include "StoredSecret.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlResult>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <memory>

/// What the tests of the database panel share.
namespace DatabaseTest {

using Settings = QHash<QString, QVariant>;

template<class Child>
Child *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Child *>(QString::fromLatin1(name));
}

/// The account that a local server lets in.
struct Account
{
    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
    QString database = QStringLiteral("measurements");
};

/// The settings of a panel for a server on this machine, as the panel itself would write them.
inline Settings settingsFor(quint16 port, const Account &account = {}, const QString &options = {})
{
    const Settings parameters = {
        {QStringLiteral("Host"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("Port"), int(port)},
        {QStringLiteral("User"), account.user},
        {QStringLiteral("Password"), StoredSecret::encipher(account.password.toUtf8())},
        {QStringLiteral("Options"), options}};
    return {{QStringLiteral("Driver"), QStringLiteral("QMYSQL")},
            {QStringLiteral("Connection"), account.database},
            {QStringLiteral("Parameters"), parameters}};
}

inline Settings parametersOf(const Settings &settings)
{
    return settings.value(QStringLiteral("Parameters")).toHash();
}

/// The clear password in the settings.
inline QString passwordOf(const Settings &settings)
{
    const QString cipher = parametersOf(settings).value(QStringLiteral("Password")).toString();
    return QString::fromUtf8(StoredSecret::decipher(cipher));
}

/// Stands in for the driver of MySQL as long as it lives, and writes down what it is told.
class RecordingDriver
{
public:
    RecordingDriver()
    {
        QSqlDatabase::registerSqlDriver(name(), std::make_unique<Creator>(this).release());
    }
    ~RecordingDriver() { QSqlDatabase::registerSqlDriver(name(), nullptr); }
    Q_DISABLE_COPY_MOVE(RecordingDriver)

    /// The arguments of the last call of open(), named.
    Settings opened;
    int openCount = 0;
    int closeCount = 0;
    int livingCount = 0;
    /// The names of all connections at the last call of open().
    QStringList namesWhileOpen;
    /// What open() answers.
    bool lets = true;
    /// Called by open().
    std::function<void()> whileOpening = [] {
    };

private:
    static QString name() { return QStringLiteral("QMYSQL"); }

    class Driver : public QSqlDriver
    {
    public:
        explicit Driver(RecordingDriver *recorder)
            : recorder(recorder)
        {
            ++recorder->livingCount;
        }
        ~Driver() override { --recorder->livingCount; }

        bool hasFeature(DriverFeature /*feature*/) const override { return false; }
        QSqlResult *createResult() const override { return nullptr; }

        bool open(const QString &database, const QString &user, const QString &password,
                  const QString &host, int port, const QString &options) override
        {
            recorder->opened = {
                {QStringLiteral("database"), database}, {QStringLiteral("user"), user},
                {QStringLiteral("password"), password}, {QStringLiteral("host"), host},
                {QStringLiteral("port"), port},         {QStringLiteral("options"), options}};
            ++recorder->openCount;
            recorder->namesWhileOpen = QSqlDatabase::connectionNames();
            // It may replace itself.
            const std::function<void()> call = recorder->whileOpening;
            call();
            setOpen(recorder->lets);
            setOpenError(!recorder->lets);
            return recorder->lets;
        }

        void close() override
        {
            recorder->closeCount += isOpen() ? 1 : 0;
            setOpen(false);
        }

    private:
        RecordingDriver *recorder;
    };

    class Creator : public QSqlDriverCreatorBase
    {
    public:
        explicit Creator(RecordingDriver *recorder)
            : recorder(recorder)
        { }
        QSqlDriver *createObject() const override
        {
            return std::make_unique<Driver>(recorder).release();
        }

    private:
        RecordingDriver *recorder;
    };
};

} // namespace DatabaseTest
