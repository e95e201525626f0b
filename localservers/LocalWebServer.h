#pragma once

#include "LocalServer.h"

#include <QJsonObject>
#include <QString>

/// A web server with one page, as the panel for a web interface sets one up: HTTP or HTTPS, at a
/// path, for one user or for everybody.
///
/// It is the one server here that other computers may reach, when it is told so. GET and HEAD of
/// the path are answered with the page, those of all else with 401 without the user's name and
/// password, or with 404, and other methods with 501. Slashes in a row count as one, and "." and
/// ".." as what they mean: some clients shorten them. log() holds a line for each request,
/// "127.0.0.1: GET /web/, 200", without its query and without passwords; beyond 10,000 a line tells
/// that there are no more.
///
/// A client that says nothing for ten seconds is sent away. 64 connections are served at a time;
/// beyond that a new one takes the place of the oldest.
///
/// What is set counts from the next start() on.
class LocalWebServer : public LocalServer
{
    Q_OBJECT

public:
    /// From which computers the server takes connections.
    enum class Reach {
        ThisComputer, ///< on 127.0.0.1 only
        AllAddresses, ///< on every IPv4 address of this computer
    };

    explicit LocalWebServer(QObject *parent = nullptr);

    /// ThisComputer from the beginning.
    void setReach(Reach reach) { wantedReach = reach; }

    /// From the beginning 0, for any free port. A start() fails while another program has it, and
    /// below 1024 as a rule for a user without special rights.
    void setWantedPort(quint16 port) { wantedPort = port; }

    /// As in a URL, encoded and with the slashes around it; "/" from the beginning.
    void setPath(const QString &path) { encodedPath = path; }

    /// Who is let in; an empty name, as from the beginning, lets everybody in.
    void setUser(const QString &name, const QString &password);

    /// HTTPS with this PEM file, which holds a certificate and its key. Empty, as from the
    /// beginning, for HTTP.
    void setCertificate(const QString &file) { certificate = file; }

    /// The page as HTML.
    void setContent(const QString &html) { content = html; }

    /// Whether this error() is about what has been set: the port, the certificate.
    [[nodiscard]] static bool tellsOfSettings(const QString &error);

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;

private:
    Reach wantedReach = Reach::ThisComputer;
    quint16 wantedPort = 0;
    QString encodedPath = QStringLiteral("/");
    QString user;
    QString password;
    QString certificate;
    QString content;
};
