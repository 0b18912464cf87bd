#pragma once
// The record label: demos, the contract and its loss.

#include <string_view>

#include "core/game.h"

namespace tourvane {

/// What the label's answers turn on: a song below this quality is rejected, a song above the
/// signing quality from a band of the signing popularity wins a contract, and a signed band
/// keeps it while its popularity stays at the keeping popularity or above.
inline constexpr int kRejectQuality = 20;
inline constexpr int kSignQuality = 40;
inline constexpr int kSignPopularity = 1000;
inline constexpr int kKeepPopularity = 900;

/// True for the text of one of the label's answers to a demo.
bool is_demo_verdict(std::string_view text);

/// Send Demo CD: sends the picked song to the label, who answer in the next week.
void command3(Game& g);

/// The start of a week: a signed band below 900 popularity loses its contract.
void contract_review(Game& g);

/// The label's answer to a waiting demo. Returns false when the demo was rejected, which
/// ends the week there.
bool demo_verdict(Game& g);

}  // namespace tourvane
