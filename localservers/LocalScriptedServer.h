#pragma once

#include "LocalServer.h"

#include <QByteArray>
#include <QList>

/// A server for any protocol of lines, that says prepared things whatever it hears: for servers
/// that misbehave.
///
/// log() holds the lines that came, of "PASS" and "AUTH" the first word.
class LocalScriptedServer : public LocalServer
{
    Q_OBJECT

public:
    /// The first answer greets each connection, the others follow one by one after each line that
    /// comes, byte for byte, so line ends belong to them. After the last the connection is closed.
    /// Without any answer it is closed at once.
    explicit LocalScriptedServer(const QList<QByteArray> &answers, QObject *parent = nullptr);

protected:
    [[nodiscard]] QJsonObject options() const override;

private:
    QList<QByteArray> preparedAnswers;
};
