#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QSharedData>
#include <QString>

/// What a translatable TXStringI18n keeps.
class TXStringI18nData : public QSharedData
{
public:
    /// One call of TXStringI18n::arg().
    struct Argument
    {
        QString text;
        int fieldWidth = 0;
        QChar fillChar = QLatin1Char(' ');

        bool operator==(const Argument &other) const
        {
            return text == other.text && fieldWidth == other.fieldWidth
                && fillChar == other.fillChar;
        }
    };

    QByteArray context;
    QByteArray source;
    QByteArray disambiguation;
    int n = -1;
    QList<Argument> arguments;

    bool operator==(const TXStringI18nData &other) const
    {
        return context == other.context && source == other.source
            && disambiguation == other.disambiguation && n == other.n
            && arguments == other.arguments;
    }
};
