#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QSet>
#include <QStringList>

/// The keys with Alt that stand for more than one thing in the widget. Hidden widgets do not count.
inline QStringList clashingMnemonics(const QWidget &widget)
{
    QStringList texts;
    const auto labels = widget.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisibleTo(&widget) && label->buddy()) {
            texts.append(label->text());
        }
    }
    const auto buttons = widget.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisibleTo(&widget)) {
            texts.append(button->text());
        }
    }
    const auto boxes = widget.findChildren<QGroupBox *>();
    for (const QGroupBox *box : boxes) {
        if (box->isVisibleTo(&widget)) {
            texts.append(box->title());
        }
    }

    QSet<QString> seen;
    QStringList clashing;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty() && seen.contains(key)) {
            clashing.append(QStringLiteral("%1: %2").arg(key, text));
        }
        seen.insert(key);
    }
    return clashing;
}
