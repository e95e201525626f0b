#include "LocalScriptedServer.h"

#include <QJsonArray>
#include <QJsonObject>

LocalScriptedServer::LocalScriptedServer(const QList<QByteArray> &answers, QObject *parent)
    : LocalServer(QStringLiteral("scriptedserver.py"), parent)
    , preparedAnswers(answers)
{ }

QJsonObject LocalScriptedServer::options() const
{
    QJsonArray answers;
    for (const QByteArray &answer : preparedAnswers) {
        answers.append(QString::fromLatin1(answer));
    }
    if (answers.isEmpty()) {
        answers.append(QString());
    }
    return {{QStringLiteral("answers"), answers}};
}
