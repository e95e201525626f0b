#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QStringList>
#include <QTranslator>
#include <QWidget>

/// What the tests of several pages share.
namespace PageTest {

/// The button with this text, the mark of its key left out; null when there is none.
inline QAbstractButton *button(const QWidget &parent, const QString &text)
{
    const auto buttons = parent.findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->text().remove(QLatin1Char('&')) == text) {
            return candidate;
        }
    }
    return nullptr;
}

/// The Alt keys of all labels and buttons, one entry each, sorted.
inline QStringList mnemonics(const QWidget &parent)
{
    QStringList keys;
    const auto labels = parent.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        keys.append(label->buddy() ? QKeySequence::mnemonic(label->text()).toString() : QString());
    }
    const auto buttons = parent.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        keys.append(QKeySequence::mnemonic(button->text()).toString());
    }
    keys.removeAll(QString());
    keys.sort();
    return keys;
}

/// The Alt keys of the strip above each page.
inline QStringList mnemonicsOfTheHeader()
{
    return {QStringLiteral("Alt+A"), QStringLiteral("Alt+L"), QStringLiteral("Alt+S")};
}

/// A language in which every text is the English one behind a star.
class StarTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1Char('*') + QString::fromUtf8(text);
    }

    bool isEmpty() const override { return false; }
};

} // namespace PageTest
