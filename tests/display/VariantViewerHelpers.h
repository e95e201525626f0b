#pragma once

#include "TXVariantViewer.h"

#include <QFontMetrics>
#include <QTest>
#include <QVariant>

/// What the tests of the variant viewer's behaviour share.
namespace VariantViewerHelpers {

/// The viewers of the entries, in the order in which they were made.
inline QList<TXVariantViewer *> entriesOf(const TXVariantViewer &viewer)
{
    return viewer.findChildren<TXVariantViewer *>(QString(), Qt::FindDirectChildrenOnly);
}

/// {"a": [1, 2], "b": {"x": true, "y": "text"}, "c": 3}
inline QVariant nestedValue()
{
    const QVariantMap inner{{QStringLiteral("x"), true}, {QStringLiteral("y"), "text"}};
    return QVariantMap{{QStringLiteral("a"), QVariantList{1, 2}},
                       {QStringLiteral("b"), inner},
                       {QStringLiteral("c"), 3}};
}

/// A font whose lines are that many pixels high; its size is -1 when there is none.
inline QFont fontOfHeight(int height)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    for (int size = 1; size <= height; ++size) {
        font.setPixelSize(size);
        if (QFontMetrics(font).height() == height) {
            return font;
        }
    }
    QTest::qFail("no size of the font has this height", __FILE__, __LINE__);
    return font;
}

/// A list within a list and so on, so many of them.
inline QVariant nestedLists(int levels)
{
    QVariant value(1);
    for (int level = 0; level < levels; ++level) {
        value = QVariantList{value};
    }
    return value;
}

} // namespace VariantViewerHelpers
