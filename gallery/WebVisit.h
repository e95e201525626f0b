#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>

class QNetworkReply;
struct WebSettings;

/// Fetches the page that a web server of this computer serves, as a browser would: with the user's
/// name and password, and over HTTPS trusting nobody but the certificate of the settings.
class WebVisit : public QObject
{
    Q_OBJECT

public:
    explicit WebVisit(QObject *parent = nullptr);

    /// A visit that is under way ends without a word.
    ~WebVisit() override;

    /// Starts a visit, in the place of one that is under way, and returns at once. It takes 5
    /// seconds at most.
    void start(const WebSettings &settings);

    [[nodiscard]] bool isUnderWay() const { return !reply.isNull(); }

signals:
    /// The answer is there, or will not come; in words.
    void ended(const QString &line);

private slots:
    void takeAnswer();

private:
    void drop();

    QNetworkAccessManager manager;
    QPointer<QNetworkReply> reply;
};
