#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QTest>
#include <QTranslator>

#include <algorithm>

/// @file
/// What every page of the gallery has to keep, as checks that return what is wrong, and helpers
/// that find things on a page by what the user reads.

/// The button of this text, written without "&", or null.
template<class Button = QAbstractButton>
Button *buttonOf(const QWidget &page, const QString &text)
{
    const auto buttons = page.findChildren<Button *>();
    for (Button *button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            return button;
        }
    }
    return nullptr;
}

/// The visible control of this accessible name, or null.
template<class Control>
Control *controlOf(const QWidget &page, const QString &accessibleName)
{
    const auto controls = page.findChildren<Control *>();
    for (Control *control : controls) {
        if (control->isVisible() && control->accessibleName() == accessibleName) {
            return control;
        }
    }
    return nullptr;
}

/// The label of this text, written without "&", or null.
inline QLabel *labelOf(const QWidget &page, const QString &text)
{
    const auto labels = page.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text().remove(QLatin1Char('&')) == text) {
            return label;
        }
    }
    return nullptr;
}

/// The texts of all labels, a line for each.
inline QString allTexts(const QWidget &page)
{
    QStringList texts;
    const auto labels = page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        texts.append(label->text());
    }
    return texts.join(QLatin1Char('\n'));
}

/// Whether the user can read this text in a label of the page.
inline bool isRead(const QWidget &page, const QString &text)
{
    const auto labels = page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && label->text() == text) {
            return true;
        }
    }
    return false;
}

/// The text that a user reads on a widget, as far as it can carry a mnemonic.
inline QString mnemonicText(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return button->text();
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
        return box->title();
    }
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->buddy() ? label->text() : QString();
}

/// How many widgets have a mnemonic.
inline qsizetype mnemonicsOn(const QWidget &page)
{
    const auto widgets = page.findChildren<QWidget *>();
    return std::count_if(widgets.cbegin(), widgets.cend(), [](const QWidget *widget) {
        return !QKeySequence::mnemonic(mnemonicText(widget)).isEmpty();
    });
}

/// The mnemonics that two widgets of the window, hidden ones too, would share. Empty is good.
inline QStringList clashingMnemonics(const QWidget &window)
{
    QSet<QString> seen;
    QStringList clashing;
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString key = QKeySequence::mnemonic(mnemonicText(widget)).toString();
        if (!key.isEmpty() && seen.contains(key)) {
            clashing.append(key + QStringLiteral(" of ") + mnemonicText(widget));
        }
        seen.insert(key);
    }
    return clashing;
}

/// Whether the widget is a control by itself, as the arrow field of a spin box is not.
inline bool isControl(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const bool isPart = parent && parent->focusPolicy() != Qt::NoFocus;
    return widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 && !isPart;
}

/// The classes of the visible controls that have no name for users who do not see them.
inline QStringList namelessControls(const QWidget &page)
{
    QStringList nameless;
    const auto widgets = page.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QAccessibleInterface *accessible =
            isControl(widget) ? QAccessible::queryAccessibleInterface(widget) : nullptr;
        if (accessible && accessible->text(QAccessible::Name).isEmpty()) {
            nameless.append(QString::fromLatin1(widget->metaObject()->className()));
        }
    }
    return nameless;
}

/// The classes of the enabled controls that the Tab key does not come to, starting at the one with
/// the focus. A group of radio buttons counts as reached with one of them.
inline QStringList controlsOutOfReach(const QWidget &page)
{
    QSet<const QWidget *> reached;
    for (QWidget *focused = QApplication::focusWidget(); focused && !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached.insert(focused);
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    QStringList missed;
    const auto widgets = page.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool isOtherOfGroup = button && button->autoExclusive() && !button->isChecked();
        if (isControl(widget) && widget->isEnabled() && !isOtherOfGroup
            && !reached.contains(widget)) {
            missed.append(QString::fromLatin1(widget->metaObject()->className()));
        }
    }
    return missed;
}

/// "Translates" every text to capital letters: what stays small was never given to the translator,
/// or is not set again when the language changes.
class CapitalTranslator : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *sourceText,
                      const char * /*disambiguation*/, int /*n*/) const override
    {
        return QString::fromUtf8(sourceText).toUpper();
    }
    bool isEmpty() const override { return false; }
};

/// The texts of labels, buttons and frames of the page that are not in capital letters, but for
/// those named, which are no words of a language.
inline QStringList smallTexts(const QWidget &page, const QStringList &allowed)
{
    QStringList small;
    const auto widgets = page.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QString text = label ? label->text() : mnemonicText(widget);
        if (text != text.toUpper() && !allowed.contains(text)) {
            small.append(text);
        }
    }
    return small;
}
