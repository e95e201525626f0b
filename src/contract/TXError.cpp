#include "TXError.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

constexpr QStringView kIndent = u"    ";
// Deeper levels line up with this one, or the indentation alone would cost the square of the depth.
constexpr int kDeepestIndentLevel = 32;

/// A nested error that is still to be written.
struct Pending
{
    const TXError *error;
    int level;
};

void pushSubErrors(const TXError &error, int level, QList<Pending> *stack)
{
    std::for_each(error.subErrors.crbegin(), error.subErrors.crend(), [=](const TXError &nested) {
        stack->append({&nested, level});
    });
}

QStringList originLines(const TXError &error)
{
    QStringList lines;
    if (!error.domain.isEmpty()) {
        lines.append(QCoreApplication::translate("TXError", "Domain: %1").arg(error.domain));
    }
    if (error.code != 0) {
        lines.append(QCoreApplication::translate("TXError", "Code: %1").arg(error.code));
    }
    return lines;
}

QString nestedLine(const TXError &error, int level)
{
    QString text = error.getLocalizedDescription();
    if (text.isEmpty()) {
        text = originLines(error).join(QLatin1String(", "));
    }
    if (text.isEmpty()) {
        return text;
    }
    const QString indent = kIndent.toString().repeated(qMin(level, kDeepestIndentLevel));
    return indent + text.replace(u'\n', u'\n' + indent);
}

void appendUnlessEmpty(const QString &line, QStringList *lines)
{
    if (!line.isEmpty()) {
        lines->append(line);
    }
}

} // namespace

TXError::TXError() = default;
TXError::TXError(const TXError &other) = default;
TXError::TXError(TXError &&other) noexcept = default;

TXError &TXError::operator=(const TXError &other)
{
    return *this = TXError(other);
}

TXError &TXError::operator=(TXError &&other) noexcept
{
    // The other one may live in our own list, so it is taken out before the list goes.
    TXError moved(std::move(other));
    domain.swap(moved.domain);
    code = moved.code;
    userInfo.swap(moved.userInfo);
    subErrors.swap(moved.subErrors);
    std::swap(description, moved.description);
    return *this;
}

TXError::~TXError()
{
    // Takes the nested errors apart level by level, since destructors that call one another would
    // overflow the stack on deep nesting. A list that a copy still shares is left to the copy.
    QList<TXError> pending;
    if (subErrors.isDetached()) {
        pending.swap(subErrors);
    }
    while (!pending.isEmpty()) {
        TXError last = pending.takeLast();
        if (last.subErrors.isDetached()) {
            pending.append(std::exchange(last.subErrors, {}));
        }
    }
}

void TXError::setDescription(const TXStringI18n &description)
{
    this->description = description;
}

QString TXError::getLocalizedDescription() const
{
    return description.toString(nullptr);
}

QString TXError::getCompletLocalizedDescription() const
{
    QStringList lines;
    appendUnlessEmpty(getLocalizedDescription(), &lines);
    QList<Pending> stack;
    pushSubErrors(*this, 1, &stack);
    while (!stack.isEmpty()) {
        const Pending next = stack.takeLast();
        appendUnlessEmpty(nestedLine(*next.error, next.level), &lines);
        pushSubErrors(*next.error, next.level + 1, &stack);
    }
    return (lines + originLines(*this)).join(u'\n');
}

bool TXError::isValid() const
{
    return !domain.isEmpty() || code != 0 || !description.isEmpty() || !subErrors.isEmpty();
}
