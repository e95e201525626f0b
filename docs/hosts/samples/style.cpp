#include "Samples.h"

#include <LocalisationUpdater.h>
#include <TXDisplayErrorMessageBox.h>
#include <TXError.h>

#include <QApplication>
#include <QPalette>

//! [apply]
bool applyStyle(QWidget *window)
{
    TXError error;
    if (!LocalisationUpdater::updateCSSFileOfApp(&error,
                                                 "../Resources/Templates/PatchReader.css")) {
        TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, window);
        return false;
    }
    return true;
}
//! [apply]

//! [palette]
void changePalette(const QPalette &palette)
{
    const QString sheet = qApp->styleSheet();
    qApp->setStyleSheet(QString());
    QApplication::setPalette(palette);
    qApp->setStyleSheet(sheet);
}
//! [palette]
