#pragma once
// The boxes that wait for the player, as the rules see them. The game window answers them
// with real dialogs; the script driver and the tests answer them from queues.

#include <string>
#include <string_view>

namespace tourvane {

enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

class UiPort {
  public:
    virtual ~UiPort() = default;

    /// A box titled "Tourvane" that waits for OK, or for Yes or No.
    virtual Answer msgbox(std::string_view text, Buttons buttons, bool critical) = 0;

    /// A prompt that waits for a line of text; Cancel gives the empty text.
    virtual std::string inputbox(std::string_view prompt, std::string_view title) = 0;

    /// A memo has just been raised (it is shown by the memo screen, not here).
    virtual void memo_raised(std::string_view /*from*/, std::string_view /*text*/) {}
};

}  // namespace tourvane
