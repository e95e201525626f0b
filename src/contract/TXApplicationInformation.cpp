#include "TXApplicationInformation.h"

#include <QGuiApplication>

#include <atomic>

namespace {

std::atomic_int productCode = 0;

} // namespace

QString currentApplicationDisplayName()
{
    const QString name = QGuiApplication::applicationDisplayName();
    return name.isEmpty() ? QCoreApplication::applicationName() : name;
}

int baseProd()
{
    return productCode;
}

void setBaseProd(int code)
{
    productCode = code;
}
