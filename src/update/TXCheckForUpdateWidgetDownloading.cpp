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
constexpr qint64 kReplyBufferBytes = qint64(256) * 1024;

/// A file that cannot be opened, as while another program looks into it, is tried so often again.
constexpr int kRetryMilliseconds = 100;
constexpr int kMostRetries = 20;

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
        const auto held = networkManager;
        currentReply->abort();
        if (!guard) {
            return;
        }
        downloadPath.clear();
    }
    currentReply = reply;
    retryTimer->stop();
    remainingRetries = kMostRetries;
    // Whoever has a reply of his own knows what is in the file.
    installerFile =
        std::make_unique<InstallerFile>(downloadPath, 0, InstallerFile::Beginning::AnyFile);
}

void TXCheckForUpdateWidget::updateDataTransferProgress(qint64 readBytes, qint64 totalBytes)
{
    const auto held = networkManager;
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
    if (currentReply && currentReply->bytesAvailable() > 0) {
        --remainingRetries;
        writeReceived();
    }
}

void TXCheckForUpdateWidget::writeReceived()
{
    const auto held = networkManager;
    switch (installerFile->append(*currentReply, currentReply->bytesAvailable())) {
    case InstallerFile::Result::Written:
        remainingRetries = kMostRetries;
        return;
    case InstallerFile::Result::NotOpened:
        writeLater();
        return;
    case InstallerFile::Result::NothingRead:
        // As from compressed data whose next block is not there yet.
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
    } else if (!retryTimer->isActive()) {
        retryTimer->start(kRetryMilliseconds);
    }
}

/// Whether all that the current reply has brought is in its file.
bool TXCheckForUpdateWidget::writeRest()
{
    while (currentReply->bytesAvailable() > 0) {
        const auto result = installerFile->append(*currentReply, currentReply->bytesAvailable());
        // A file that cannot be opened now may never be, and a source that tells of bytes may never
        // give them: this must come to an end.
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
    const auto held = networkManager;
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
    const auto held = networkManager;
    updateState(ServiceError);
    if (guard) {
        emit updateRefreshed({});
    }
}

/// Called by the destructor.
///
/// A slot that a reply calls may lead to here: by a slot of a signal of ours, or out of the
/// question whether to install, whose event loop runs inside. The manager and its replies have to
/// live until that slot returns, so each such slot holds the manager, and the last to let it go
/// deletes it.
void TXCheckForUpdateWidget::abandonTransfer()
{
    if (currentReply) {
        currentReply->disconnect(this);
    }
    networkManager->disconnect(this);
    if (networkManager.use_count() > 1) {
        networkManager->setParent(nullptr);
    }
}
