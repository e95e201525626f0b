#include "TXMailSender.h"

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

TXMailSender::TXMailSender(QObject *parent)
    : QObject(parent)
{ }

TXMailSender::~TXMailSender() = default;

TXMailSender *TXMailSender::createTXMailSender(const QHash<QString, QVariant> &, const QString &,
                                               const QString &, const QList<QString> &,
                                               const QList<QString> &)
{
    return new TXMailSender(possibleParent());
}

void TXMailSender::sendMessage()
{
    if (started) {
        return;
    }
    started = true;
    QMetaObject::invokeMethod(this, "fail", Qt::QueuedConnection);
}

void TXMailSender::fail()
{
    // Before the signal, so that a receiver may delete the sender.
    deleteLater();
    emit mailSendingFailed(tr("Sending mail is not available in this version."));
}
