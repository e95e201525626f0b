#pragma once

#include "TXCoreCommonExport.h"
#include "TXStringI18n.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

/// Why something failed, to be shown to the user later.
///
/// A function that can fail takes an optional `TXError *`; null means that the caller does not want
/// the reason. On failure it assigns `domain` and `code` and sets a description; on success it
/// leaves the error alone. The host then shows the error with TXDisplayErrorMessageBox() or
/// TXDisplayCompletErrorMessageBox().
///
/// Copies share their contents. Nesting may be as deep as memory allows: copies, texts and the
/// destructor need no stack for it.
///
/// Thread: use an error on one thread at a time; copies are independent.
class TXCORECOMMON_EXPORT TXError
{
public:
    /// An error with nothing to report; isValid() is false.
    TXError();
    /// A copy, which shares the contents.
    TXError(const TXError &other);
    /// Takes the contents over.
    TXError(TXError &&other) noexcept;
    /// Assigning one of its own nested errors to an error is allowed.
    TXError &operator=(const TXError &other);
    /// Takes the contents over.
    TXError &operator=(TXError &&other) noexcept;
    ~TXError();

    /// The part of the program that failed; the title of a message box when no other is given.
    QString domain;
    /// A number within the domain. 0, the default, where the domain has no numbers.
    int code = 0;
    /// Anything that goes with the error. "MessageBoxTitle" is the title of its message box.
    QHash<QString, QVariant> userInfo;
    /// The errors that led to this one, in order.
    QList<TXError> subErrors;

    /// Sets the text that says what failed.
    void setDescription(const TXStringI18n &description);

    /// The description in the current language, without nested errors. Empty when none is set.
    [[nodiscard]] QString getLocalizedDescription() const;

    /// The whole report in the current language, one thing a line: the description, the nested
    /// errors, each below the one it belongs to and indented by its depth (up to a depth of 32),
    /// then the domain and the code when they are set. Parts that are empty have no line. A nested
    /// error without a description is named by its domain and code. Costs time in proportion to
    /// the number of errors.
    [[nodiscard]] QString getCompletLocalizedDescription() const;

    /// True when there is something to report: a domain, a code other than 0, a description or a
    /// nested error. `userInfo` alone is nothing to report.
    [[nodiscard]] bool isValid() const;

private:
    TXStringI18n description;
};
