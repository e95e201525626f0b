#pragma once

#include <QString>
#include <QTranslator>

/// A language that needs half as much room again as English: each text of ours keeps its words and
/// is followed by as many accented letters as make it, without its markup, one and a half times as
/// long. Places for arguments, mnemonics, markup, filters of file dialogs and what ends a label
/// ("..." or ":") stay where they are; keys such as "Alt+Y" stay whole. Texts of Qt stay, but for
/// those of the standard buttons.
///
/// Spoken from QCoreApplication::installTranslator() on, until the object is gone.
class LongTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char *context, const char *text, const char *hint,
                                    int number) const override;

    /// The text in this language.
    [[nodiscard]] static QString lengthened(const QString &text);

    /// Whether a text holds letters that only this language has, and so is one of it.
    [[nodiscard]] static bool isSpoken(const QString &text);
};
