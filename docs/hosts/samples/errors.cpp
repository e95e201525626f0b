#include "Samples.h"

#include <TXDisplayErrorMessageBox.h>
#include <TXError.h>
#include <TXStringI18n.h>

#include <QFile>

//! [fill]
bool readDifferences(const QString &fileName, QList<double> *differences, TXError *error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) {
            error->domain = "ReadingsFile";
            error->code = 0;
            error->setDescription(
                TXStringI18n("Readings", "The file %1 cannot be opened.", nullptr, -1)
                    .arg(fileName));
        }
        return false;
    }
    while (!file.atEnd()) {
        differences->append(file.readLine().trimmed().toDouble());
    }
    return true;
}
//! [fill]

//! [show]
void openReadings(const QString &fileName, QWidget *window)
{
    QList<double> differences;
    TXError error;
    if (!readDifferences(fileName, &differences, &error)) {
        error.userInfo.insert("MessageBoxTitle", "Open readings");
        TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, window);
    }
}
//! [show]

//! [nest]
bool importFolder(const QList<QString> &fileNames, TXError *error)
{
    TXError whole;
    for (const QString &fileName : fileNames) {
        QList<double> differences;
        TXError failure;
        if (!readDifferences(fileName, &differences, &failure)) {
            whole.subErrors.append(failure);
        }
    }
    if (whole.subErrors.isEmpty()) {
        return true;
    }
    whole.domain = "Import";
    whole.setDescription(TXStringI18n("Readings", "%n file(s) were left out.", nullptr,
                                      int(whole.subErrors.size())));
    if (error) {
        *error = whole;
    }
    return false;
}
//! [nest]
