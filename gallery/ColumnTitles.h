#pragma once

#include <QHeaderView>

#include <algorithm>

/// Makes each column at least as wide as its title takes. To be called when the titles are set, in
/// whatever language; columns that are wide enough stay as the user may have drawn them.
inline void giveColumnTitlesRoom(QHeaderView *header)
{
    for (int column = 0; column < header->count(); ++column) {
        const int least = header->sectionSizeHint(column);
        header->resizeSection(column, std::max(least, header->sectionSize(column)));
    }
}
