#include "LocalMariaDbServer.h"

#include <QFile>
#include <QJsonObject>
#include <QList>

namespace {

const QString kClosedDatabase = QStringLiteral("payroll");

/// Where the row of the general log holds what.
constexpr qsizetype kCommandField = 4;
constexpr qsizetype kArgumentField = 5;

char unescaped(char character)
{
    switch (character) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    default:
        return character;
    }
}

/// The fields of one row: separated by commas, texts in quotes, with backslashes before what is
/// special. Line ends are among that, so each row is one line.
QList<QByteArray> fieldsOf(const QByteArray &row)
{
    QList<QByteArray> fields(1);
    bool isQuoted = false;
    for (qsizetype at = 0; at < row.size(); ++at) {
        const char character = row.at(at);
        if (character == '\\' && at + 1 < row.size()) {
            fields.last() += unescaped(row.at(++at));
        } else if (character == '"') {
            isQuoted = !isQuoted;
        } else if (character == ',' && !isQuoted) {
            fields.append(QByteArray());
        } else {
            fields.last() += character;
        }
    }
    return fields;
}

/// Calls the function with command and argument of each row that is wholly written.
template<class Function>
void forEachRow(const QByteArray &log, Function function)
{
    qsizetype begin = 0;
    for (qsizetype end = log.indexOf('\n'); end >= 0; end = log.indexOf('\n', begin)) {
        const QList<QByteArray> fields = fieldsOf(log.mid(begin, end - begin));
        function(fields.value(kCommandField), QString::fromUtf8(fields.value(kArgumentField)));
        begin = end + 1;
    }
}

} // namespace

LocalMariaDbServer::LocalMariaDbServer(QObject *parent)
    : LocalServer(QStringLiteral("mariadbserver.py"), parent)
{ }

void LocalMariaDbServer::setUser(const QString &name, const QString &newPassword)
{
    user = name;
    password = newPassword;
}

void LocalMariaDbServer::setDatabase(const QString &name)
{
    database = name;
}

QStringList LocalMariaDbServer::statements() const
{
    QStringList result;
    forEachRow(generalLog(), [&result](const QByteArray &command, const QString &argument) {
        if (command == "Query" || command == "Execute") {
            result.append(argument);
        }
    });
    return result;
}

QStringList LocalMariaDbServer::connections() const
{
    QStringList result;
    forEachRow(generalLog(), [&result](const QByteArray &command, const QString &argument) {
        if (command == "Connect") {
            result.append(argument);
        }
    });
    return result;
}

QString LocalMariaDbServer::prepare()
{
    if (user.isEmpty()) {
        return tr("the user has no name");
    }
    if (database == kClosedDatabase) {
        return tr("the database \"%1\" is the closed one").arg(kClosedDatabase);
    }
    return {};
}

QJsonObject LocalMariaDbServer::options() const
{
    return {{QStringLiteral("user"), user},
            {QStringLiteral("password"), password},
            {QStringLiteral("database"), database}};
}

QByteArray LocalMariaDbServer::generalLog() const
{
    QFile file(folder() + QStringLiteral("/data/mysql/general_log.CSV"));
    return isRunning() && file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}
