#pragma once

#include "IDropAllowedStrategy.h"

/// What a user may drop in a folder tree, beyond what the folders themselves allow.
class DropRule final : public IDropAllowedStrategy
{
public:
    /// What may be dropped.
    enum Kind {
        Everything,
        OntoFoldersOnly,
        BetweenFoldersOnly,
        Nothing,
    };

    explicit DropRule(Kind newKind)
        : kind(newKind)
    { }

    bool isDropAllowed(const QModelIndex &index, const QMimeData *mimeData, Qt::DropAction action,
                       DropIndicatorPosition position) override;

private:
    Kind kind;
};
