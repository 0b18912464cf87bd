#pragma once
// The operations every rule may use to speak to the player, and the texts of dates and money.

#include <string>
#include <string_view>

#include "core/game.h"

namespace tourvane {

/// Shows a box and waits for the answer.
Answer MsgBox(Game& g, std::string_view text, Buttons buttons = Buttons::Ok, bool critical = false);

/// Asks for a line of text; Cancel gives the empty text.
std::string InputBox(Game& g, std::string_view prompt, std::string_view title);

/// Raises a memo from a member of staff. It returns at once; the memo screen shows the memos
/// one after another and the office takes no clicks until the last has been acknowledged.
void message(Game& g, std::string_view text, std::string_view from);

/// Raises the memo that ends the game: it is the last memo shown, and its OK ends the program.
void final_message(Game& g, std::string_view text, std::string_view from);

/// OK on the memo screen: shows the next memo, or closes the screen and frees the office.
void memo_ok(Game& g);

/// Ends the program.
void end_program(Game& g);

/// Shows a day count as dd/mm/yyyy.
std::string format_date(double day_count);

/// Shows a sum of money as on the office screen: "£ " and plain digits.
std::string format_cash(long long pounds);

/// Shows a sum of money as boxes and the gig screens do: "£" and digits, the minus sign of a
/// loss between them.
std::string format_pounds(long long pounds);

}  // namespace tourvane
