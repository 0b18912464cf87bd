#pragma once
// Singles: release, weekly sales and royalties, and hype.

#include "core/game.h"

namespace tourvane {

/// What releasing a song as a single costs.
inline constexpr int kReleasePrice = 1500;

/// A double click on the track list: last week's sales of a single, or the offer to release.
void songlist_dblclick(Game& g);

/// Promotion paid for this week: adds `amount` hype to every released single of a signed band.
void promote_singles(Game& g, int amount);

/// A signed band's singles never work out sales from a hype above 100.
void cap_hype(Game& g);

/// The week's sales of every single on sale, with royalties and chart rows.
void singles_phase(Game& g);

/// The weekly drift of every released single's hype, signed or not.
void hype_step(Game& g);

}  // namespace tourvane
