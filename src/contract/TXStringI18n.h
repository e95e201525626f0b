#pragma once

#include "TXCoreCommonExport.h"

#include <QChar>
#include <QSharedDataPointer>
#include <QString>

class QTranslator;
class TXStringI18nData;

/// Text that is translated when it is shown, not when it is made.
///
/// It keeps the translation context, the source text and the arguments, so that a message made in
/// one language can be shown in another one that the user chooses later. Use it wherever a text
/// outlives the moment it was made in: error descriptions, progress, log items. For a text that is
/// shown at once, `tr` and a QString do.
///
/// A text is either translatable (made from a source) or plain (made by fromString()). A plain text
/// costs one QString and nothing else: making, copying and reading it copies no characters.
///
/// Implicitly shared. Thread: as for a QString.
class TXCORECOMMON_EXPORT TXStringI18n
{
public:
    /// The widest field that arg() and fromString() take.
    static constexpr int kWidestFieldCharacters = 65535;
    /// The most arguments that a translatable text keeps: one for each marker there can be.
    static constexpr int kMostArguments = 100;

    /// The empty text.
    TXStringI18n();

    /// A translatable text in UTF-8 without a context. It is a source and nothing else: a flat form
    /// is not recognised here, fromString() is for that. Null reads as empty.
    TXStringI18n(const char *source);

    /// A translatable text, with the arguments of QCoreApplication::translate(). A number `n` of 0
    /// or more chooses the plural form and takes the place of `%n`; -1 means that there is no
    /// number. A null context or disambiguation reads as empty; a null source gives the empty text.
    /// The strings are copied.
    TXStringI18n(const char *context, const char *source, const char *disambiguation, int n);

    /// A copy, which shares the text.
    TXStringI18n(const TXStringI18n &other);
    /// Takes the text over.
    TXStringI18n(TXStringI18n &&other) noexcept;
    /// Becomes a copy, which shares the text.
    TXStringI18n &operator=(const TXStringI18n &other);
    /// Takes the text over.
    TXStringI18n &operator=(TXStringI18n &&other) noexcept;
    ~TXStringI18n();

    /// A copy in which `a` takes the place of the lowest-numbered marker (`%0` to `%99`).
    ///
    /// The text stays translatable: arguments are kept, and filled in after the translation, with
    /// the outcome that the same chain of QString::arg() calls has. So a marker inside an argument
    /// is filled by the arguments after it. An argument for which there is no marker is left out
    /// without a warning, one beyond kMostArguments too. The width is that of QString::arg(),
    /// negative for left-aligned, and is limited to kWidestFieldCharacters either way.
    [[nodiscard]] TXStringI18n arg(const QString &a, int fieldWidth = 0,
                                   QChar fillChar = QLatin1Char(' ')) const;

    /// The text with its arguments, in the language of the translator, or with null in that of the
    /// application's installed translators. Where there is no translation the source stands in.
    /// Filling stops where a marker that stands several times would blow the text up beyond a
    /// million characters.
    [[nodiscard]] QString toString(QTranslator *translator = nullptr) const;

    /// The text in a form for a file or a database, from which fromString() gives an equal text
    /// back, still translatable. A plain text is its own flat form, unless it looks like one.
    /// The form is one line of printable ASCII: a mark, a checksum, the escaped fields.
    [[nodiscard]] QString toFlatString() const;

    /// Reads what toFlatString() made. Any other text, a damaged flat form too, is a plain text
    /// that toString() gives back unchanged. Costs a look at the first characters for those.
    [[nodiscard]] static TXStringI18n fromString(const QString &text);

    /// True when there is neither a source nor a plain text.
    [[nodiscard]] bool isEmpty() const;

    /// Equal texts have the same source, context, disambiguation, number and arguments, whatever
    /// the language; a plain text never equals a translatable one that reads the same.
    bool operator==(const TXStringI18n &other) const;
    /// The opposite of operator==.
    bool operator!=(const TXStringI18n &other) const { return !(*this == other); }

private:
    /// The plain text; empty in a translatable one.
    QString text;
    /// Null in a plain text.
    QSharedDataPointer<TXStringI18nData> translatable;
};
