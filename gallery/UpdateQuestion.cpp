#include "UpdateQuestion.h"

#include <QString>

QUrlQuery UpdateQuestion::query()
{
    return {{QStringLiteral("OS"), kPlatform},
            {QStringLiteral("ProductType"), QString::number(kProductType)},
            {QStringLiteral("Revision"), QString::number(kRevision)}};
}
