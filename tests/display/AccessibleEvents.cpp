#include "AccessibleEvents.h"

#include <QAccessible>

#include <utility>

namespace {

bool isListening = false;

QStringList &told()
{
    static QStringList list;
    return list;
}

QString inWords(QAccessibleEvent &event)
{
    QAccessibleInterface *accessible = event.accessibleInterface();
    switch (event.type()) {
    case QAccessible::ValueChanged:
        if (accessible->valueInterface() == nullptr) {
            return QStringLiteral("lost value");
        }
        return QStringLiteral("value ")
            + static_cast<QAccessibleValueChangeEvent &>(event).value().toString();
    case QAccessible::DescriptionChanged:
        return QStringLiteral("description ") + accessible->text(QAccessible::Description);
    default:
        return QString::number(event.type());
    }
}

} // namespace

void AccessibleEvents::start(bool isSomebodyListening)
{
    isListening = isSomebodyListening;
    told().clear();
}

QStringList AccessibleEvents::take()
{
    return std::exchange(told(), {});
}

bool QAccessible::isActive()
{
    return isListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    told().append(inWords(*event));
}
