#include "TXMailSender.h"

#include "MailSending.h"

#include <QCoreApplication>
#include <QThread>

namespace {

/// The application object, where it may own an object of this thread.
QObject *possibleParent()
{
    QCoreApplication *application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread() ? application : nullptr;
}

} // namespace

TXMailSender::TXMailSender(std::unique_ptr<MailSending> sending, QObject *parent)
    : QObject(parent)
    , sending(std::move(sending))
{ }

TXMailSender::~TXMailSender()
{
    if (worker) {
        sending->cancel();
        worker->wait();
    }
}

TXMailSender *TXMailSender::createTXMailSender(const QHash<QString, QVariant> &settings,
                                               const QString &body, const QString &subject,
                                               const QList<QString> &receivers,
                                               const QList<QString> &copyReceivers)
{
    auto sending = std::make_unique<MailSending>(settings, body, subject, receivers, copyReceivers);
    return new TXMailSender(std::move(sending), possibleParent());
}

void TXMailSender::sendMessage()
{
    if (worker) {
        return;
    }
    worker.reset(QThread::create([this] { reason = sending->run(); }));
    connect(worker.get(), SIGNAL(finished()), this, SLOT(tellOutcome()));
    worker->start();
    if (!worker->isRunning() && !worker->isFinished()) {
        reason = tr("The system is too busy to send a mail.");
        QMetaObject::invokeMethod(this, "tellOutcome", Qt::QueuedConnection);
    }
}

void TXMailSender::tellOutcome()
{
    // Before the signal, so that a receiver may delete the sender.
    deleteLater();
    if (reason.isEmpty()) {
        emit mailSendingSucceed();
    } else {
        emit mailSendingFailed(reason);
    }
}
