#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

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

    /// Starts a visit, in the place of one that is under way, and returns at once. It is given up
    /// after 5 seconds, and so is an answer of more than 1 MiB.
    void start(const WebSettings &settings);

signals:
    /// The answer is there, or will not come; in words.
    void ended(const QString &line);

private slots:
    void takeAnswer();
    void giveUp();

private:
    void drop();

    QNetworkAccessManager manager;
    QPointer<QNetworkReply> reply;
    // Of the whole visit: another program at the port may send a byte now and then.
    QTimer patience;
};
