#pragma once

#include <QByteArray>
#include <QString>
#include <QTranslator>

#include <utility>

/// A language in which every text of one context is the English one in brackets, and all others
/// stay. Spoken from QCoreApplication::installTranslator() on, until the object is gone.
class BracketsTranslator : public QTranslator
{
public:
    explicit BracketsTranslator(QByteArray context)
        : context(std::move(context))
    { }

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char *asked, const char *text, const char * /*hint*/,
                                    int /*n*/) const override
    {
        return context == asked ? u'[' + QString::fromUtf8(text) + u']' : QString();
    }

private:
    const QByteArray context;
};
