#pragma once

#include "TXCoreCommonExport.h"

#include <QSharedDataPointer>
#include <QString>

class QTranslator;

/// Text that is translated late.
class TXCORECOMMON_EXPORT TXStringI18n
{
public:
    TXStringI18n();
    TXStringI18n(const char *source);

    QString toString(QTranslator *translator) const;
    static TXStringI18n fromString(const QString &text);

private:
    QString text;
};
