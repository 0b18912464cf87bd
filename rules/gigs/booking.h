#pragma once
// Booking a gig: the office's Play Gig hot-spot and the gig screen's venue, application and
// set list.

#include "core/game.h"

namespace tourvane {

/// Tracks on a full set list: a gig needs exactly this many.
inline constexpr int kSetListLength = 3;

/// `n` when it is a venue slot, else 0: the unused element, which reads as no venue.
inline int venue_slot_or_none(int n) {
    return n >= 1 && n <= kVenues ? n : 0;
}

/// `s` when it is a song slot, else 0: the unused element, which reads as no song.
inline int song_slot_or_none(int s) {
    return s >= 1 && s <= kSongSlots ? s : 0;
}

/// How many people venue slot `n` (1 to 5) holds: four times the fame it asks for.
Integer venue_capacity(const Module1& r, int n);

/// What venue slot `n` (1 to 5) charges for the night; the smallest pub is free.
Integer venue_hirecost(const Module1& r, int n);

/// Play Gig on the office: refuses an ill or incomplete band or one with fewer than three
/// songs, and otherwise opens the gig screen in place of the office.
void command4(Game& g);

/// Opening the gig screen: offers the band's songs and the venues open this week.
void load_gig(Game& g);

/// A venue option: shows its capacity, ticket price and hire cost and lets the band apply.
void gig_location(Game& g, int index);

/// APPLY: the venue takes the band if it is famous enough, which opens the set list.
void gig_command1(Game& g);

/// A pick from the song list: adds the song to the set list unless it is full or has it.
void gig_Combo1(Game& g);

/// CLEAR LIST: empties the set list.
void gig_command3(Game& g);

/// BACK: closes the gig screen and returns to the office; the set list is kept.
void gig_Command2(Game& g);

}  // namespace tourvane
