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
#include <QUrl>

void TXCheckForUpdateWidget::startTransfer()
{
    const QNetworkRequest request(QUrl(update.value(ReleaseRecord::kUrlKey).toString()));
    downloadPath = update.value(ReleaseRecord::kPathKey).toString();
    if (UnfinishedDownloads::contains(downloadPath)) {
        QFile::remove(downloadPath);
    }
    if (QFileInfo(downloadPath).isFile()) {
        updateState(ReadyToInstall);
        return;
    }
    QNetworkReply *reply = networkManager->get(request);
    setCurrentReply(reply);
    installerFile = std::make_unique<InstallerFile>(downloadPath, ReleaseRecord::fileSize(update));
    connect(reply, SIGNAL(downloadProgress(qint64, qint64)), this,
            SLOT(updateDataTransferProgress(qint64, qint64)));
    connect(reply, SIGNAL(readyRead()), this, SLOT(downloading()));
    connect(reply, SIGNAL(errorOccurred(QNetworkReply::NetworkError)), this, SLOT(error()));
    connect(reply, SIGNAL(sslErrors(QList<QSslError>)), reply, SLOT(ignoreSslErrors()));
    connect(reply, SIGNAL(finished()), reply, SLOT(deleteLater()));
    updateState(Downloading);
}

void TXCheckForUpdateWidget::setCurrentReply(QNetworkReply *reply)
{
    if (currentReply != nullptr) {
        currentReply->abort();
        downloadPath.clear();
    }
    currentReply = reply;
}

void TXCheckForUpdateWidget::updateDataTransferProgress(qint64 readBytes, qint64 totalBytes)
{
    ui->downloadProgressBar->setMaximum(static_cast<int>(totalBytes));
    ui->downloadProgressBar->setValue(static_cast<int>(readBytes));
}

void TXCheckForUpdateWidget::downloading()
{
    if (auto *reply = qobject_cast<QNetworkReply *>(sender())) {
        writeReceived(*reply);
    }
}

void TXCheckForUpdateWidget::writeReceived(QNetworkReply &reply)
{
    if (!installerFile) {
        return;
    }
    UnfinishedDownloads::add(downloadPath);
    if (installerFile->append(reply, reply.bytesAvailable()) == InstallerFile::Result::Failed) {
        reply.abort();
    }
}

bool TXCheckForUpdateWidget::writeRest()
{
    if (!installerFile) {
        return true;
    }
    while (currentReply->bytesAvailable() > 0) {
        const auto result = installerFile->append(*currentReply, currentReply->bytesAvailable());
        if (result != InstallerFile::Result::Written) {
            return false;
        }
    }
    return installerFile->isComplete();
}

void TXCheckForUpdateWidget::finished(QNetworkReply *reply)
{
    const bool isWhole = currentReply == nullptr || writeRest();
    reply->deleteLater();
    currentReply = nullptr;
    if (reply->error() != QNetworkReply::NoError) {
        updateState(ServiceError);
    } else if (!isWhole) {
        error();
    } else if (currentState == Checking) {
        updateState(UpToDate);
    } else if (currentState == Downloading) {
        UnfinishedDownloads::remove(downloadPath);
        updateState(ReadyToInstall);
    }
}

void TXCheckForUpdateWidget::error()
{
    updateState(ServiceError);
    emit updateRefreshed({});
}
