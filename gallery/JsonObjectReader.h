#pragma once

#include "TXStringI18n.h"

#include <QString>
#include <QVariant>

/// Takes the members of a JSON object one by one, strictly: each has to be there, of its kind and
/// in its range. The value is one of readJsonText().
///
/// The first thing that is wrong stays in error(); what is taken after that may mean nothing. So a
/// caller takes all it wants and looks at the end. Members are told by their name, those of an
/// object within another one with its name before them, as in "paperWhite.L".
class JsonObjectReader
{
public:
    /// Any other value than an object is an error at once.
    explicit JsonObjectReader(const QVariant &value);

    /// A member whose name is not among these is an error.
    void allowOnly(const QStringList &names);

    [[nodiscard]] QString text(const QString &name); ///< a text, which may be empty
    [[nodiscard]] bool flag(const QString &name); ///< true or false
    /// A number, whole or not, within the range, both ends included.
    [[nodiscard]] double number(const QString &name, double minimum, double maximum);
    /// A number without a fraction within the range; 0 after any error.
    [[nodiscard]] int wholeNumber(const QString &name, int minimum, int maximum);
    /// An object within this one. Its own errors have to be handed back with fail().
    [[nodiscard]] JsonObjectReader object(const QString &name);

    /// Keeps the reason, unless it is empty or there is one already.
    void fail(const TXStringI18n &newReason);

    [[nodiscard]] bool hasFailed() const { return !reason.isEmpty(); }
    /// A sentence for the user; empty while all is well.
    [[nodiscard]] TXStringI18n error() const { return reason; }

private:
    [[nodiscard]] QVariant value(const QString &name);

    QVariantHash members;
    QString path;
    TXStringI18n reason;
};
