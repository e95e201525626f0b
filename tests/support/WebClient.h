#pragma once

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QString>
#include <QTcpServer>
#include <QTest>
#include <QUrl>

#include <memory>

/// What a test fetches from a web server, as a browser would.
struct WebAnswer
{
    /// 0 when none has come.
    int status = 0;
    QByteArray body;
    QNetworkReply::NetworkError error = QNetworkReply::UnknownNetworkError;
    QByteArray contentType;
    QByteArray securityPolicy;
    QByteArray wantedLogin;
};

/// Who fetches, and whom he trusts.
struct WebVisitor
{
    /// "name:password"; empty for no login.
    QByteArray login = {};
    /// A file of certificates to trust for HTTPS; empty for none.
    QString authorities = {};
    QByteArray method = "GET";
};

/// Fetches the URL with a client that knows nothing from before, and waits for the answer.
inline WebAnswer fetchPage(const QUrl &url, const WebVisitor &visitor = {})
{
    constexpr int kPatienceMilliseconds = 20000;
    QNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy::NoProxy);
    QNetworkRequest request(url);
    if (!visitor.login.isEmpty()) {
        request.setRawHeader("Authorization", "Basic " + visitor.login.toBase64());
    }
    if (!visitor.authorities.isEmpty()) {
        QSslConfiguration configuration = request.sslConfiguration();
        configuration.addCaCertificates(visitor.authorities);
        request.setSslConfiguration(configuration);
    }
    const std::unique_ptr<QNetworkReply> reply(manager.sendCustomRequest(request, visitor.method));
    WebAnswer answer;
    if (QTest::qWaitFor([&reply]() { return reply->isFinished(); }, kPatienceMilliseconds)) {
        answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        answer.body = reply->readAll();
        answer.error = reply->error();
        answer.contentType = reply->rawHeader("Content-Type");
        answer.securityPolicy = reply->rawHeader("Content-Security-Policy");
        answer.wantedLogin = reply->rawHeader("WWW-Authenticate");
    }
    return answer;
}

/// A port that nobody had a moment ago.
inline quint16 freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress::AnyIPv4) ? server.serverPort() : quint16(0);
}
