#include "Samples.h"

#include <LockerUIDialog.h>

#include <QSettings>

//! [lock]
bool askToLock(QWidget *window)
{
    QSettings settings;
    LockerUIDialog dialog(true, window);
    dialog.setPassword(settings.value("LockPassword").toString());
    const int result = dialog.exec();
    settings.setValue("LockPassword", dialog.password());
    return result >= 0;
}
//! [lock]
