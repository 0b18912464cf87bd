#pragma once
// The diary as a player reads it: every memo, box and gig report of the career, newest first,
// narrowed to one sender or to the entries that hold some words, with a line that counts them.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "view/screens.h"

namespace tourvane {

/// Which entries the diary shows.
struct DiaryFilter {
    std::string sender;  ///< only this sender's entries; empty for everyone's
    std::string words;   ///< only entries holding these words (any case); empty for all

    /// Searches for `text`, its blanks run together and trimmed.
    void search(std::string_view text);

    /// True when the entry is shown: from the sender, and holding the words in its date, its
    /// sender or its text.
    bool shows(const DiaryEntry& e) const;
};

/// The entry shown in `row` of a diary listed newest first.
inline const DiaryEntry& newest_first(const std::vector<DiaryEntry>& diary, std::size_t row) {
    return diary[diary.size() - 1 - row];
}

/// The diary's senders, each once, in alphabetical order; the filter lists them after
/// "Everyone".
class DiarySenders {
  public:
    /// Takes in the senders of entries written since the last call; a diary put in place by a
    /// load starts the list afresh. True when the list has changed.
    bool take(const Game& g);
    const std::vector<std::string>& names() const { return names_; }

  private:
    std::vector<std::string> names_;
    std::size_t read_ = 0;  ///< diary entries taken in
    unsigned loads_ = 0;    ///< the game's history loads when last taken in
};

/// The diary window's words.
inline constexpr WindowWords kDiaryWords{
    "Diary", "Every memo and message of this run, newest first.", "Close the diary"};
inline constexpr std::string_view kDiaryColumns[] = {"Date", "From", "Message"};
inline constexpr std::string_view kDiaryEntries = "Diary entries";
inline constexpr std::string_view kDiaryCount = "Messages shown";

/// The sender filter: its label, name, what it does and its first choice.
inline constexpr std::string_view kSenderLabel = "From:";
inline constexpr std::string_view kSenderName = "From";
inline constexpr std::string_view kSenderHelp = "Show the messages of one sender, or of everyone";
inline constexpr std::string_view kEveryone = "Everyone";

/// The search field: its label, name, what it does and the hint it shows while empty.
inline constexpr std::string_view kSearchLabel = "Search:";
inline constexpr std::string_view kSearchName = "Search";
inline constexpr std::string_view kSearchHelp = "Show only the messages that hold these words";
inline constexpr std::string_view kSearchHint = "Words in a message, a sender or a date";

/// The line under the diary: how many entries it shows of how many.
std::string diary_count_line(std::size_t shown, std::size_t all);

/// Text in lower case for searching: ASCII and the Western European capitals.
std::string fold_case(std::string_view text);

}  // namespace tourvane
