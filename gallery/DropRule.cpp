#include "DropRule.h"

bool DropRule::isDropAllowed(const QModelIndex & /*index*/, const QMimeData * /*mimeData*/,
                             Qt::DropAction /*action*/, DropIndicatorPosition position)
{
    switch (kind) {
    case Everything:
        return true;
    case OntoFoldersOnly:
        return position == OnItem;
    case BetweenFoldersOnly:
        return position == AboveItem || position == BelowItem;
    case Nothing:
        break;
    }
    return false;
}
