#include "ServiceText.h"

#include <QFontMetrics>
#include <QLabel>
#include <QList>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <QString>
#include <QTextDocument>
#include <QTextFormat>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr qsizetype kLongestLineCharacters = 500;
constexpr QChar kEllipsis(0x2026);

// What laying out notes costs, in units of a plain character; measured with QLabel.
constexpr int kAffordableCost = 12000;
constexpr int kLineCost = 20;
constexpr int kTagCost = 20;
constexpr int kTableTagCost = 60;
// Each table within another one multiplies the time by three.
constexpr int kMostTables = 5;

constexpr QRgb kTextColour = 0xff1e1e1e;
constexpr QRgb kLinkColour = 0xff0b4fb3;

bool startsWith(QStringView text, QLatin1String start)
{
    return text.startsWith(start, Qt::CaseInsensitive);
}

int costOfTag(QStringView tag)
{
    return startsWith(tag, QLatin1String("<t")) ? kTagCost + kTableTagCost : kTagCost;
}

/// Where the cost of the characters before has used up what can be afforded. A run of combining
/// marks costs the square of its length, as it does in the layout.
qsizetype affordableLength(const QString &text)
{
    int cost = 0;
    int marks = 0;
    int tables = 0;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar character = text.at(place);
        marks = character.isMark() ? marks + 1 : 0;
        cost += 1 + marks;
        if (character == u'\n') {
            cost += kLineCost;
        } else if (character == u'<') {
            const QStringView tag = QStringView(text).mid(place);
            cost += costOfTag(tag);
            tables += startsWith(tag, QLatin1String("<table")) ? 1 : 0;
        }
        if (cost > kAffordableCost || tables > kMostTables) {
            return place;
        }
    }
    return text.size();
}

/// Where the first tag or style rule stands that asks for hundreds of columns or rows, each of
/// which is laid out, or for lengths of thousands, which together are more than a layout can count:
/// it would never end. The whole text without one.
qsizetype lengthBeforeHugeNumber(const QString &text)
{
    static const QRegularExpression hugeNumber(
        QStringLiteral("[<{][^<>{}]*(span\\s*=[\\s\"']*(\\d{3}|&)|"
                       "(width|height|size|padding|spacing|border|margin|indent)[a-z-]*"
                       "\\s*[:=][\\s\"']*(\\d{4}|&))"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = hugeNumber.match(text);
    return match.hasMatch() ? match.capturedStart() : text.size();
}

/// The same place, or the beginning of the tag that it is in.
qsizetype outsideOfTag(const QString &text, qsizetype place)
{
    const QStringView before = QStringView(text).left(place);
    const qsizetype opened = before.lastIndexOf(u'<');
    return opened > before.lastIndexOf(u'>') ? opened : place;
}

/// The same place, or the beginning of the entity or of the pair of surrogates that it is in.
qsizetype outsideOfCharacter(const QString &text, qsizetype place)
{
    constexpr qsizetype kLongestEntity = 10;
    const QStringView before = QStringView(text).left(place);
    const qsizetype entity = before.lastIndexOf(u'&');
    if (entity >= 0 && place - entity < kLongestEntity && !before.mid(entity).contains(u';')) {
        return entity;
    }
    return !before.isEmpty() && before.back().isHighSurrogate() ? place - 1 : place;
}

bool isWithinTheText(const QString &address)
{
    return address.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
}

/// Rich text that is read and not shown, to learn whether it refers to anything outside of itself.
/// A label cannot be kept from reading local files: it asks a provider of resources only for what
/// it has not found.
class ReadNotes : public QTextDocument
{
public:
    explicit ReadNotes(const QString &text) { setHtml(text); }

    [[nodiscard]] bool refersOutside() const
    {
        const QList<QTextFormat> formats = allFormats();
        return hasAsked
            || std::any_of(formats.begin(), formats.end(), [](const QTextFormat &format) {
                   return format.isImageFormat() && !isWithinTheText(format.toImageFormat().name());
               });
    }

    /// All words, without pictures.
    [[nodiscard]] QString words() const
    {
        return toPlainText().remove(QChar(QChar::ObjectReplacementCharacter));
    }

protected:
    QVariant loadResource(int /*type*/, const QUrl &address) override
    {
        hasAsked = hasAsked || !isWithinTheText(address.toString());
        return QByteArray();
    }

private:
    bool hasAsked = false;
};

/// The same notes, or their words alone when they refer to pictures or style sheets elsewhere.
QString withoutReferences(const QString &text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    const ReadNotes notes(text);
    return notes.refersOutside() ? Qt::convertFromPlainText(notes.words(), Qt::WhiteSpaceNormal)
                                 : text;
}

} // namespace

QString ServiceText::line(const QString &text, const QWidget &place)
{
    const QFontMetrics metrics = place.fontMetrics();
    const int width = place.screen()->availableGeometry().width() * 9 / 10;
    const bool fits = text.size() <= kLongestLineCharacters && !text.contains(u'\n')
        && metrics.horizontalAdvance(text) <= width;
    if (fits) {
        return text;
    }
    const QString start = text.left(kLongestLineCharacters).simplified();
    return metrics.elidedText(start, Qt::ElideRight, width);
}

void ServiceText::prepareForNotes(QLabel &label)
{
    QPalette paper = label.palette();
    paper.setColor(QPalette::WindowText, QColor::fromRgb(kTextColour));
    paper.setColor(QPalette::Text, QColor::fromRgb(kTextColour));
    label.setPalette(paper);
}

void ServiceText::showNotes(const QString &text, QLabel &label)
{
    label.setText(withoutReferences(shortened(text)));
    // The document of a rich text, which is filled only when it is laid out, colours its links by
    // the palette of the application.
    if (auto *document = label.findChild<QTextDocument *>()) {
        document->setDefaultStyleSheet(
            QStringLiteral("a { color: %1; }").arg(QColor::fromRgb(kLinkColour).name()));
    }
}

QString ServiceText::shortened(const QString &text)
{
    const qsizetype affordable = affordableLength(text);
    const qsizetype length = std::min(affordable, lengthBeforeHugeNumber(text.left(affordable)));
    if (length == text.size()) {
        return text;
    }
    const qsizetype end = outsideOfCharacter(text, outsideOfTag(text, length));
    return text.left(end) + kEllipsis;
}
