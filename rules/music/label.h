#pragma once
// The record label: demos, the contract and its loss.

#include "core/game.h"

namespace tourvane {

/// Send Demo CD: sends the picked song to the label, who answer in the next week.
void command3(Game& g);

/// The start of a week: a signed band below 900 popularity loses its contract.
void contract_review(Game& g);

/// The label's answer to a waiting demo. Returns false when the demo was rejected, which
/// ends the week there.
bool demo_verdict(Game& g);

}  // namespace tourvane
