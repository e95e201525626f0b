#pragma once

#include "LabColour.h"

#include <QString>

/// A patch of the colour chart, printed with less ink: a step of the way from the full colour to
/// the paper.
struct PatchTint
{
    /// How many tints there are of all patches together.
    static constexpr int kCount = 600;

    /// The tints in the order in which they are shown: the whole chart in full colour first, then
    /// ever lighter. A number outside of 0 to kCount - 1 starts over.
    [[nodiscard]] static PatchTint at(int number);

    /// An index in chartPatches().
    int patch = 0;
    /// The share of ink, from 4 to 100.
    int percent = 100;

    [[nodiscard]] LabColour colour() const;

    /// The name in the language of the moment, such as "Blue sky, 96 %".
    [[nodiscard]] QString translatedName() const;
};
