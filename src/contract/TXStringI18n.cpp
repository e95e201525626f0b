#include "TXStringI18n.h"

TXStringI18n::TXStringI18n() = default;

TXStringI18n::TXStringI18n(const char *source)
    : text(QString::fromUtf8(source))
{ }

QString TXStringI18n::toString(QTranslator *) const
{
    return text;
}

TXStringI18n TXStringI18n::fromString(const QString &text)
{
    TXStringI18n result;
    result.text = text;
    return result;
}
