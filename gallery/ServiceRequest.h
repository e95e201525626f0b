#pragma once

#include <QObject>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QVariant;
class TXStringI18n;

/// Asks an update service on this computer for the newest release, as the library's update dialog
/// does, and gives the answer as one value: a map with the entries "status", "headers" and "body",
/// the last being what the JSON of the answer holds.
///
/// Nothing waits meanwhile. The certificate is not checked: a service on this computer has made it
/// for itself. GUI thread.
class ServiceRequest final : public QObject
{
    Q_OBJECT

public:
    /// How long the service may be silent before the request ends.
    static constexpr int kSilenceMilliseconds = 10000;

    explicit ServiceRequest(QObject *parent = nullptr);
    /// Ends the request without a signal.
    ~ServiceRequest() override;

    /// Another limit for the next requests, in milliseconds above 0.
    void setSilenceLimit(int milliseconds) { silenceLimit = milliseconds; }

    /// From ask() to the signal that ends the request, or to cancel().
    [[nodiscard]] bool isWaiting() const { return reply != nullptr; }

    /// Sends the request to host and port as in "127.0.0.1:4711". A request that still waits is
    /// cancelled. Ends with one of the signals, never before the call returns.
    void ask(const QString &authority);

    /// Where the last request went; empty before the first one.
    [[nodiscard]] QUrl address() const { return askedAddress; }

    /// Ends the request without a signal. No effect while none waits.
    void cancel();

signals:
    /// The service has answered.
    void answered(const QVariant &answer);

    /// There is no answer, or none that can be shown. Whole sentences for the user; the detail may
    /// be empty.
    void failed(const TXStringI18n &reason, const TXStringI18n &detail);

private slots:
    void checkSize();
    void finish();

private:
    [[nodiscard]] TXStringI18n failureOf(QNetworkReply &ended) const;
    void take(QNetworkReply &ended);

    QNetworkAccessManager *manager;
    // The one that is waited for, or null.
    QNetworkReply *reply = nullptr;
    QUrl askedAddress;
    int silenceLimit = kSilenceMilliseconds;
    bool isTooLarge = false;
};
