#pragma once

#include "TXStringI18n.h"

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

/// What the tests of TXStringI18n share.
namespace StringI18nTest {

/// A language that is a table; a source with another context or disambiguation is not in it.
class TableTranslator : public QTranslator
{
public:
    using Table = QHash<QByteArray, QString>;

    explicit TableTranslator(Table table)
        : table(std::move(table))
    { }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        QByteArray key = QByteArray(context) + '|' + source + '|' + disambiguation;
        if (n >= 0) {
            key += n == 1 ? "|one" : "|many";
        }
        return table.value(key);
    }

private:
    Table table;
};

inline TableTranslator german()
{
    return TableTranslator({
        {"Files|Copied %1 to %2|", QStringLiteral("Nach %2 wurde %1 kopiert")},
        {"Files|Empty|", QStringLiteral("Leer")},
        {"Files|Empty|verb", QStringLiteral("Leeren")},
        {"|No context|", QStringLiteral("Ohne Kontext")},
        {"Files|%n file(s) in %1||one", QStringLiteral("Eine Datei in %1")},
        {"Files|%n file(s) in %1||many", QStringLiteral("%n Dateien in %1")},
        {"Files|Blank|", QStringLiteral("")},
    });
}

/// Installed for as long as it lives.
class InstalledGerman
{
public:
    InstalledGerman() { QCoreApplication::installTranslator(&translator); }
    ~InstalledGerman() { QCoreApplication::removeTranslator(&translator); }

private:
    TableTranslator translator = german();
};

inline TXStringI18n copied()
{
    return TXStringI18n("Files", "Copied %1 to %2", nullptr, -1)
        .arg(QStringLiteral("a.png"))
        .arg(QStringLiteral("/b"));
}

inline TXStringI18n plain(const QString &text)
{
    return TXStringI18n::fromString(text);
}

} // namespace StringI18nTest
