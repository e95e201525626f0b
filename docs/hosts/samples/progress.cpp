#include "Samples.h"

#include <ProgressBarCompletionDelegate.h>
#include <TXProgressBar.h>
#include <TXStringI18n.h>
#include <WaitWidget.h>

#include <QEventLoop>
#include <QThread>

#include <memory>

//! [spinner]
void showSpinner(QWidget *page)
{
    WaitWidget::popUp(page, 64);
}

void hideSpinner(QWidget *page)
{
    if (auto *spinner = page->findChild<WaitWidget *>()) {
        spinner->deleteLater();
    }
}
//! [spinner]

//! [progress]
int countRows(const QList<QString> &fileNames, TXProgressBar *bar)
{
    ProgressBarCompletionDelegate progress(bar);
    int rows = 0;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        for (int done = 0; done < fileNames.size(); ++done) {
            const QString &name = fileNames[done];
            progress.onMessageUpdated(
                {}, TXStringI18n("Readings", "Reading %1", nullptr, -1).arg(name));
            progress.onProgressionUpdated({}, 100.0F * float(done) / float(fileNames.size()));
            QList<double> differences;
            readDifferences(name, &differences, nullptr);
            rows += int(differences.size());
        }
        progress.onProgressionUpdated({}, 100);
    }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    loop.exec();
    worker->wait(); // before the delegate goes
    return rows;
}
//! [progress]
