#pragma once
// Writing songs and the track list.

#include "core/game.h"

namespace tourvane {

/// Record Song: starts a song that the band finishes in 4 to 7 weeks.
void command1(Game& g);

/// Finishes the song in progress: its quality, its title and its row on the track list.
void makesong(Game& g);

/// Rebuilds the track list from the songs.
void updatesonglist(Game& g);

/// A click on a row of the track list: picks that song.
void songlist_click(Game& g);

}  // namespace tourvane
