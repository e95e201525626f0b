#include "ApplicationTranslator.h"

#include <QCoreApplication>

ApplicationTranslator::ApplicationTranslator(QCoreApplication *application)
    : QTranslator(application)
{
    // An object says that it is destroyed before it deletes its children.
    connect(application, SIGNAL(destroyed()), this, SLOT(leaveApplication()));
}

void ApplicationTranslator::leaveApplication()
{
    setParent(nullptr);
}
