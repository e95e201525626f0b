#include "VariantHtml.h"

#include "VariantKind.h"

#include <QMetaType>
#include <QVariant>

#include <utility>
#include <variant>
#include <vector>

namespace {

constexpr QLatin1String kOpenList("<span style=\"color: #606060\"><b>[</b></span>");
constexpr QLatin1String kCloseList("<span style=\"color: #606060\"><b>]</b></span>");
constexpr QLatin1String kOpenMap("<span style=\"color: #606060\"><b>{</b></span>");
constexpr QLatin1String kCloseMap("<span style=\"color: #606060\"><b>}</b></span>");
constexpr QLatin1String kSeparator("<span style=\"color: #606060\"><b>, </b></span>");
constexpr QLatin1String kOpenString("<span style=\"color: #006000\">\"");
constexpr QLatin1String kCloseString("\"</span>");
constexpr QLatin1String kOpenInteger("<span style=\"color: #800000\">");
constexpr QLatin1String kOpenReal("<span style=\"color: #800080\">");
constexpr QLatin1String kOpenWord("<span style=\"color: #000080\">");
constexpr QLatin1String kClose("</span>");
constexpr QLatin1String kKeyEnd(": ");
constexpr QLatin1String kChildrenKey("children");

/// Like QString::toHtmlEscaped(), without a copy.
void appendEscaped(QString &html, QStringView text)
{
    qsizetype plainStart = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        QLatin1String entity;
        switch (text[i].unicode()) {
        case u'<':
            entity = QLatin1String("&lt;");
            break;
        case u'>':
            entity = QLatin1String("&gt;");
            break;
        case u'&':
            entity = QLatin1String("&amp;");
            break;
        case u'"':
            entity = QLatin1String("&quot;");
            break;
        default:
            continue;
        }
        html.append(text.sliced(plainStart, i - plainStart));
        html.append(entity);
        plainStart = i + 1;
    }
    html.append(text.sliced(plainStart));
}

void appendEscaped(QString &html, QLatin1String start, QStringView text, QLatin1String end)
{
    html.append(start);
    appendEscaped(html, text);
    html.append(end);
}

/// A list of which some elements are written.
struct OpenList
{
    QVariantList list;
    qsizetype next = 0;
    bool isFirst = true;
};

/// A dictionary of which some entries are written. The entry "children" is held back to the end.
struct OpenMap
{
    QVariantMap map;
    QVariantMap::const_iterator next;
    const QVariant *children = nullptr;
    bool isFirst = true;
};

/// Writes values. Lists and dictionaries within one another wait on a stack of its own, as values
/// may be nested deeper than functions may.
class Writer
{
public:
    explicit Writer(bool isPreview)
        : preview(isPreview)
    { }

    QString write(const QVariant &value)
    {
        begin(value);
        while (!open.empty()) {
            std::visit([this](auto &container) { goOn(container); }, open.back());
        }
        return html;
    }

private:
    /// All of a plain value; of what holds others the beginning.
    void begin(const QVariant &value)
    {
        switch (VariantKind::of(value)) {
        case VariantKind::Kind::Text:
            appendEscaped(html, kOpenString, value.toString(), kCloseString);
            return;
        case VariantKind::Kind::WholeNumber:
            appendEscaped(html, kOpenInteger, value.toString(), kClose);
            return;
        case VariantKind::Kind::Real:
            appendEscaped(html, kOpenReal, value.toString(), kClose);
            return;
        case VariantKind::Kind::TrueOrFalse:
            appendEscaped(html, kOpenWord, value.toString(), kClose);
            return;
        case VariantKind::Kind::Nothing:
            html.append(kOpenWord).append(QLatin1String("null")).append(kClose);
            return;
        case VariantKind::Kind::Dictionary:
        case VariantKind::Kind::List:
        case VariantKind::Kind::Other:
            beginOther(value);
        }
    }

    void beginOther(const QVariant &value)
    {
        if (!preview || !VariantKind::isContainer(value)) {
            html.append(value.toString());
        } else if (VariantKind::isMap(value)) {
            beginMap(value.toMap());
        } else if (value.typeId() == QMetaType::QStringList) {
            appendStrings(value.toStringList());
        } else {
            html.append(kOpenList);
            open.emplace_back(OpenList{value.toList()});
        }
    }

    void beginMap(const QVariantMap &map)
    {
        html.append(kOpenMap);
        open.emplace_back(OpenMap{map, map.cbegin()});
    }

    /// A list of strings whole, without a variant for each.
    void appendStrings(const QStringList &strings)
    {
        html.append(kOpenList);
        bool isFirst = true;
        for (const QString &string : strings) {
            appendSeparator(isFirst);
            appendEscaped(html, kOpenString, string, kCloseString);
        }
        html.append(kCloseList);
    }

    /// Writes one more element, or the end. `container` may be gone after begin() or end().
    void goOn(OpenList &container)
    {
        if (container.next == container.list.size()) {
            end(kCloseList);
            return;
        }
        appendSeparator(container.isFirst);
        begin(container.list.at(container.next++));
    }

    /// Writes one more entry, or the end, in the same way.
    void goOn(OpenMap &container)
    {
        if (container.next != container.map.cend() && container.next.key() == kChildrenKey) {
            container.children = &container.next.value();
            ++container.next;
        }
        if (container.next != container.map.cend()) {
            const auto entry = container.next++;
            appendSeparator(container.isFirst);
            appendEscaped(html, entry.key());
            html.append(kKeyEnd);
            begin(entry.value());
        } else if (container.children != nullptr) {
            appendSeparator(container.isFirst);
            html.append(kChildrenKey).append(kKeyEnd);
            begin(*std::exchange(container.children, nullptr));
        } else {
            end(kCloseMap);
        }
    }

    void appendSeparator(bool &isFirst)
    {
        if (!std::exchange(isFirst, false)) {
            html.append(kSeparator);
        }
    }

    void end(QLatin1String bracket)
    {
        html.append(bracket);
        open.pop_back();
    }

    QString html;
    std::vector<std::variant<OpenList, OpenMap>> open;
    bool preview;
};

} // namespace

QString VariantHtml::fromVariant(const QVariant &value, bool preview)
{
    return Writer(preview).write(value);
}

QString VariantHtml::line(const QString &html)
{
    return QLatin1String("<span style=\"font-family: monospace; overflow: hidden\">") + html
        + kClose;
}

QString VariantHtml::key(const QString &key)
{
    QString html = QStringLiteral("<span style=\"font-family: monospace\">");
    appendEscaped(html, key);
    return html + QLatin1String(": </span>");
}
