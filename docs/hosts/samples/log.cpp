#include "Samples.h"

#include <TXLogItem.h>
#include <TXLogManager.h>
#include <TXLogModel.h>
#include <TXLogPrint.h>
#include <TXStringI18n.h>

#include <QThreadPool>
#include <QTreeView>

//! [print]
void readInBackground(const QList<QString> &fileNames)
{
    for (const QString &fileName : fileNames) {
        QThreadPool::globalInstance()->start([fileName] {
            QList<double> differences;
            if (readDifferences(fileName, &differences, nullptr)) {
                TXLogPrint(QString("%1: %2 readings").arg(fileName).arg(differences.size()),
                           TXLogItem::Information);
            } else {
                TXLogPrint(fileName + " cannot be read", TXLogItem::Error);
            }
        });
    }
}
//! [print]

//! [nested]
void logImport(const QString &folder, const QList<QString> &fileNames)
{
    const QSharedPointer<TXLogManager> log = TXLogManager::applicationLog();
    const QSharedPointer<TXLogItem> import = log->append(
        TXLogItem::Information, TXStringI18n("Import", "Import of %1", nullptr, -1).arg(folder));
    for (const QString &fileName : fileNames) {
        log->append(TXLogItem::Information, TXStringI18n::fromString(fileName), import);
    }
}
//! [nested]

//! [view]
QTreeView *makeLogView(QWidget *parent)
{
    auto *view = new QTreeView(parent);
    view->setModel(new TXLogModel(TXLogManager::applicationLog(), view));
    view->setColumnHidden(TXLogModel::LevelColumn, true);
    view->setUniformRowHeights(true);
    return view;
}
//! [view]
