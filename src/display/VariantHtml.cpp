#include "VariantHtml.h"

#include <QMetaType>
#include <QVariant>

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
const QString kChildrenKey = QStringLiteral("children");

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

void appendEscaped(QString &html, QLatin1String start, const QVariant &value, QLatin1String end)
{
    html.append(start);
    appendEscaped(html, value.toString());
    html.append(end);
}

bool isList(int type)
{
    return type == QMetaType::QVariantList || type == QMetaType::QStringList;
}

bool isMap(int type)
{
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantHash;
}

/// A value that is neither a list nor a dictionary, or is shown without what it holds.
void appendScalar(QString &html, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
        appendEscaped(html, kOpenString, value, kCloseString);
        return;
    case QMetaType::Int:
    case QMetaType::LongLong:
        appendEscaped(html, kOpenInteger, value, kClose);
        return;
    case QMetaType::Double:
        appendEscaped(html, kOpenReal, value, kClose);
        return;
    case QMetaType::Bool:
        appendEscaped(html, kOpenWord, value, kClose);
        return;
    default:
        break;
    }
    if (value.isNull() || !value.isValid()) {
        html.append(kOpenWord).append(QLatin1String("null")).append(kClose);
    } else {
        html.append(value.toString());
    }
}

/// A list or a dictionary of which some entries are written.
struct OpenContainer
{
    QVariantList list;
    qsizetype nextElement = 0;
    QVariantMap map;
    QVariantMap::const_iterator nextEntry;
    bool isMap = false;
    bool isEmptySoFar = true;
    bool isChildrenPending = false;
};

/// Writes values; the containers that are open at a time stand on a stack of its own.
class Writer
{
public:
    QString write(const QVariant &value)
    {
        begin(value);
        while (!stack.empty()) {
            goOn();
        }
        return html;
    }

private:
    void begin(const QVariant &value)
    {
        const int type = value.typeId();
        if (value.isNull()) {
            appendScalar(html, value);
        } else if (isMap(type)) {
            beginMap(value.toMap());
        } else if (isList(type)) {
            beginList(value.toList());
        } else {
            appendScalar(html, value);
        }
    }

    void beginList(const QVariantList &list)
    {
        html.append(kOpenList);
        OpenContainer container;
        container.list = list;
        stack.push_back(std::move(container));
    }

    void beginMap(const QVariantMap &map)
    {
        html.append(kOpenMap);
        OpenContainer container;
        container.isMap = true;
        container.map = map;
        container.isChildrenPending = map.contains(kChildrenKey);
        stack.push_back(std::move(container));
        stack.back().nextEntry = stack.back().map.cbegin();
    }

    void goOn()
    {
        if (stack.back().isMap) {
            goOnWithMap();
        } else {
            goOnWithList();
        }
    }

    void goOnWithList()
    {
        OpenContainer &container = stack.back();
        if (container.nextElement == container.list.size()) {
            end(kCloseList);
            return;
        }
        appendSeparator();
        const QVariant element = container.list.at(container.nextElement++);
        begin(element);
    }

    void goOnWithMap()
    {
        OpenContainer &container = stack.back();
        if (container.nextEntry != container.map.cend()
            && container.nextEntry.key() == kChildrenKey) {
            ++container.nextEntry;
        }
        if (container.nextEntry != container.map.cend()) {
            const auto entry = container.nextEntry++;
            beginEntry(entry.key(), entry.value());
        } else if (container.isChildrenPending) {
            container.isChildrenPending = false;
            const QVariant children = container.map.value(kChildrenKey);
            beginEntry(kChildrenKey, children);
        } else {
            end(kCloseMap);
        }
    }

    void beginEntry(const QString &key, const QVariant &value)
    {
        appendSeparator();
        appendEscaped(html, key);
        html.append(kKeyEnd);
        begin(value);
    }

    void appendSeparator()
    {
        if (!stack.back().isEmptySoFar) {
            html.append(kSeparator);
        }
        stack.back().isEmptySoFar = false;
    }

    void end(QLatin1String bracket)
    {
        html.append(bracket);
        stack.pop_back();
    }

    QString html;
    std::vector<OpenContainer> stack;
};

} // namespace

QString VariantHtml::fromVariant(const QVariant &value, bool preview)
{
    if (preview) {
        return Writer().write(value);
    }
    QString html;
    appendScalar(html, value);
    return html;
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
