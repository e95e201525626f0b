#include "TXCheckForUpdateWidget.h"

#include "InstallerFile.h"
#include "ReleaseRecord.h"
#include "UnfinishedDownloads.h"
#include "ui_TXCheckForUpdateWidget.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace {

/// What a reply holds back for us at most: a network that is faster than the disk has to wait.
constexpr qint64 kReplyBufferBytes = 256 * 1024;

/// A file that cannot be opened, as while another program looks into it, is tried so often again.
constexpr int kRetryMilliseconds = 100;
constexpr int kMostRetries = 20;

/// Counts a slot that is running, as long as the object that it belongs to is there.
class RunningSlot
{
public:
    RunningSlot(const QObject *owner, int &depthOfOwner)
        : guard(owner)
        , depth(depthOfOwner)
    {
        ++depth;
    }

    ~RunningSlot()
    {
        if (guard) {
            --depth;
        }
    }

    Q_DISABLE_COPY_MOVE(RunningSlot)

private:
    QPointer<const QObject> guard;
    int &depth;
};

} // namespace

void TXCheckForUpdateWidget::startTransfer()
{
    const QPointer<TXCheckForUpdateWidget> guard(this);
    const QNetworkRequest request(QUrl(update.value(ReleaseRecord::kUrlKey).toString()));
    const qint64 size = ReleaseRecord::fileSize(update);
    downloadPath = update.value(ReleaseRecord::kPathKey).toString();
    if (!dropUnfinished()) {
        error();
        return;
    }
    if (QFileInfo(downloadPath).isFile()) {
        updateState(ReadyToInstall);
        return;
    }
    QNetworkReply *reply = networkManager->get(request);
    setCurrentReply(reply);
    if (!guard) {
        return;
    }
    installerFile = std::make_unique<InstallerFile>(downloadPath, size);
    follow(*reply);
    updateState(Downloading);
}

/// False when there is an unfinished download at the path and it cannot be deleted.
bool TXCheckForUpdateWidget::dropUnfinished()
{
    if (!UnfinishedDownloads::contains(downloadPath)) {
        return true;
    }
    QFile::remove(downloadPath);
    if (QFileInfo(downloadPath).isFile()) {
        return false;
    }
    UnfinishedDownloads::remove(downloadPath);
    return true;
}

void TXCheckForUpdateWidget::follow(QNetworkReply &reply)
{
    reply.setReadBufferSize(kReplyBufferBytes);
    connect(&reply, SIGNAL(downloadProgress(qint64, qint64)), this,
            SLOT(updateDataTransferProgress(qint64, qint64)));
    connect(&reply, SIGNAL(readyRead()), this, SLOT(downloading()));
    connect(&reply, SIGNAL(errorOccurred(QNetworkReply::NetworkError)), this, SLOT(error()));
    connect(&reply, SIGNAL(sslErrors(QList<QSslError>)), &reply, SLOT(ignoreSslErrors()));
    connect(&reply, SIGNAL(finished()), &reply, SLOT(deleteLater()));
}

void TXCheckForUpdateWidget::setCurrentReply(QNetworkReply *reply)
{
    if (currentReply) {
        const QPointer<TXCheckForUpdateWidget> guard(this);
        const RunningSlot running(this, transferDepth);
        currentReply->abort();
        if (!guard) {
            return;
        }
        downloadPath.clear();
    }
    currentReply = reply;
    remainingRetries = kMostRetries;
    installerFile = std::make_unique<InstallerFile>(downloadPath, 0);
}

void TXCheckForUpdateWidget::updateDataTransferProgress(qint64 readBytes, qint64 totalBytes)
{
    const RunningSlot running(this, transferDepth);
    ui->downloadProgressBar->setMaximum(static_cast<int>(totalBytes));
    ui->downloadProgressBar->setValue(static_cast<int>(readBytes));
}

void TXCheckForUpdateWidget::downloading()
{
    // What another reply brings belongs into another file.
    if (currentReply && sender() == currentReply) {
        writeReceived();
    }
}

void TXCheckForUpdateWidget::retryWriting()
{
    isRetryPending = false;
    if (currentReply && currentReply->bytesAvailable() > 0) {
        --remainingRetries;
        writeReceived();
    }
}

void TXCheckForUpdateWidget::writeReceived()
{
    const RunningSlot running(this, transferDepth);
    switch (installerFile->append(*currentReply, currentReply->bytesAvailable())) {
    case InstallerFile::Result::Written:
        remainingRetries = kMostRetries;
        return;
    case InstallerFile::Result::NotOpened:
        writeLater();
        return;
    case InstallerFile::Result::Failed:
        currentReply->abort();
        return;
    }
}

/// A reply whose buffer is full tells of nothing more, so that a timer has to try again.
void TXCheckForUpdateWidget::writeLater()
{
    if (remainingRetries <= 0) {
        currentReply->abort();
    } else if (!isRetryPending) {
        isRetryPending = true;
        QTimer::singleShot(kRetryMilliseconds, this, SLOT(retryWriting()));
    }
}

/// Whether all that the current reply has brought is in its file.
bool TXCheckForUpdateWidget::writeRest()
{
    while (currentReply->bytesAvailable() > 0) {
        const auto result = installerFile->append(*currentReply, currentReply->bytesAvailable());
        // A file that cannot be opened now may never be, and this must come to an end.
        if (result != InstallerFile::Result::Written) {
            return false;
        }
    }
    return true;
}

void TXCheckForUpdateWidget::finished(QNetworkReply *reply)
{
    if (reply == nullptr) {
        return;
    }
    reply->deleteLater();
    if (currentReply && reply != currentReply) {
        // The end of another one says nothing about the transfer that is running.
        return;
    }
    const RunningSlot running(this, transferDepth);
    const bool isWritten = !currentReply || writeRest();
    const bool isTransferred = reply->error() == QNetworkReply::NoError;
    const bool isWhole = isWritten && isTransferred && (!currentReply || installerFile->finish());
    currentReply = nullptr;
    if (!isTransferred) {
        updateState(ServiceError);
    } else if (!isWhole) {
        error();
    } else if (currentState == Checking) {
        updateState(UpToDate);
    } else if (currentState == Downloading) {
        updateState(ReadyToInstall);
    }
}

void TXCheckForUpdateWidget::error()
{
    const QPointer<TXCheckForUpdateWidget> guard(this);
    const RunningSlot running(this, transferDepth);
    updateState(ServiceError);
    if (guard) {
        emit updateRefreshed({});
    }
}

/// Called by the destructor. The reply goes with the manager that made it.
void TXCheckForUpdateWidget::abandonTransfer()
{
    if (currentReply) {
        currentReply->disconnect(this);
    }
    networkManager->disconnect(this);
    if (transferDepth > 0) {
        // Destroyed by a slot of a signal of ours, which stands in a signal of the reply: that one
        // has to live until it returns.
        networkManager->setParent(nullptr);
        networkManager->deleteLater();
    }
}
