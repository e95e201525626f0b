#pragma once

#include "LocalServer.h"

#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

/// A feedback service: plain HTTP/1.1 on port 5050 of 127.0.0.1, that answers POST of "/feedback"
/// as it is told and all else with 404. The body is taken apart by Python's own parser of multipart
/// messages, so what is here is what an independent receiver understands.
///
/// The port is the one that the library's form sends to. While another program listens there,
/// start() waits for it, see setPatience(), and never shares it. log() holds a line for each
/// request, "POST /feedback, parts: 1", with nothing of what the note says.
///
/// A body whose size is not told, no number or above 16 MB is not read: its request has no parts
/// here and is answered with 411, 400 or 413. A request that breaks off is not told at all, and a
/// client that says nothing for a minute is sent away.
class LocalFeedbackService : public LocalServer
{
    Q_OBJECT

public:
    /// The port it listens on.
    static constexpr quint16 kPort = 5050;

    /// How long start() waits for the port at most, before setPatience().
    static constexpr int kPatienceMilliseconds = 25000;

    /// What the service answers to a note.
    enum class Answer {
        Accepted, ///< 200 with {"result": true}
        Refused, ///< 200 with {"result": false}
        Silent, ///< nothing until release() or the end of the service; isSilent() tells
        Dropped, ///< the connection breaks in the middle of the answer
        Rubbish, ///< 200 with bytes that are no JSON
        Error, ///< 500
    };
    Q_ENUM(Answer)

    /// One part of a body.
    struct Part
    {
        QString
            disposition; ///< the header "Content-Disposition" without its name; empty without it
        QString name; ///< its parameter "name"; empty without it
        bool hasFileName = false; ///< whether it has a parameter "filename"
        QByteArray content; ///< byte for byte; empty for a part that has parts itself
    };

    /// A request as it came.
    struct Request
    {
        QString method; ///< "POST" and the like
        QString path; ///< as on the wire
        QList<QPair<QString, QString>> headers; ///< names spelt as on the wire
        QList<Part> parts; ///< empty for a body that is no form data
    };

    explicit LocalFeedbackService(QObject *parent = nullptr);

    /// How long start() waits while another program has the port, in milliseconds: 0, for one look
    /// only, to kPatienceMilliseconds, the default; what lies outside is brought into this range.
    /// Counts from the next start() on. A start() that has waited in vain tells the port in
    /// error().
    void setPatience(int milliseconds);

    /// Whether this error() says that another program has the port.
    [[nodiscard]] static bool tellsOfTakenPort(const QString &error);

    /// Counts from the next request on that is complete; Accepted by default, kept by stop(). Those
    /// that wait because of Silent go on waiting. Blocks until a running service has it.
    void setAnswer(Answer answer);

    /// What setAnswer() has set.
    [[nodiscard]] Answer answer() const { return currentAnswer; }

    /// Answers those who wait because of Silent, as Accepted does; with Silent, later requests wait
    /// again. isSilent() stays true. Does nothing when the service does not run.
    void release();

    /// All requests since start(), oldest first; kept by stop(). A request is here before it is
    /// answered.
    [[nodiscard]] QList<Request> requests();

signals:
    /// A request is in requests(), not yet in log(). Emitted before it is answered, from the event
    /// loop or by a call that reads from the script, as requests() does; not by the destructor.
    void requestReceived();

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;
    void handleEvent(const QJsonObject &event) override;

private:
    Answer currentAnswer = Answer::Accepted;
    int patienceMilliseconds = kPatienceMilliseconds;
    QList<Request> receivedRequests;
};
