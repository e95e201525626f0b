#include "QuietPlatform.h"

#include <QString>

namespace {

QtMessageHandler printAll = nullptr;

void printImportant(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support "))) {
        printAll(type, context, text);
    }
}

} // namespace

QuietPlatform::QuietPlatform()
{
    printAll = qInstallMessageHandler(printImportant);
}

QuietPlatform::~QuietPlatform()
{
    qInstallMessageHandler(printAll);
}
