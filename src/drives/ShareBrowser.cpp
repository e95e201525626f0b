#include "ShareBrowser.h"

#include "OwnTitle.h"
#include "ShareRowDelegate.h"
#include "ui_ShareBrowser.h"

#include <QEvent>
#include <QListWidgetItem>

ShareBrowser::ShareBrowser(QUrl url, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ShareBrowser>())
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    ui->listWidget->setItemDelegate(new ShareRowDelegate(ui->listWidget));
    ui->progressDiscovery->hide();
    connect(&thread, SIGNAL(newShare(QUrl)), this, SLOT(newShare(QUrl)));
    connect(&thread, SIGNAL(finished()), this, SLOT(discoveryFinished()));
    if (thread.start(url)) {
        ui->progressDiscovery->show();
    }
}

ShareBrowser::~ShareBrowser()
{
    thread.stop();
}

QUrl ShareBrowser::selectedUrl() const
{
    const QList<QListWidgetItem *> selected = ui->listWidget->selectedItems();
    if (selected.isEmpty()) {
        return {};
    }
    return {selected.first()->data(Qt::UserRole).toString(), QUrl::TolerantMode};
}

void ShareBrowser::newShare(QUrl share)
{
    const QString text =
        share.host(QUrl::FullyDecoded) + QStringLiteral(" - ") + share.path(QUrl::FullyDecoded);
    auto item = std::make_unique<QListWidgetItem>(text);
    // Once it stands in the list it would be searched for there.
    item->setData(Qt::UserRole, share);
    ui->listWidget->addItem(item.release());
}

void ShareBrowser::discoveryFinished()
{
    ui->progressDiscovery->hide();
}

void ShareBrowser::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
    }
}
