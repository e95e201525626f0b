#pragma once

class QPalette;

/// Ink on light paper, for what is drawn in colours that need a light ground in a dark application
/// too. All roles are set, in all groups: nothing of the palette around it shines through.
///
/// The paper is not quite white, so that white on it is seen: the light of a hover, the start of a
/// gradient. Any thread.
[[nodiscard]] QPalette paperPalette();
