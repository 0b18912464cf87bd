#pragma once
// The boxes and the save files of the web page. A box is a modal dialog of the page that the
// rules wait on (the wasm stack is put aside while the page waits for the player); the save
// files live in the browser's storage, mounted as a folder and written back after each save.

#include <string>
#include <string_view>

#include "core/file_port.h"
#include "core/ui_port.h"

namespace tourvane {

class WebPort : public UiPort {
  public:
    /// Opens the page's box with OK, or Yes and No, and waits for the answer.
    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override;
    /// Opens the page's box with a text field, OK and Cancel, and waits for the text.
    std::string inputbox(std::string_view prompt, std::string_view title) override;
};

/// The disk of the page: the files of the folder the game runs in, each change written on to
/// the browser's storage before the rules go on (a save is kept before "Game Saved" shows).
class WebFiles : public FilePort {
  public:
    std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                  std::size_t limit) override;
    /// Writes the file, then the browser's storage; when the storage refuses it, the save has
    /// failed and `reason` says so.
    bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                 std::string& reason) override;
    void remove(const std::filesystem::path& path) override;
};

/// The folder the saves live in.
inline constexpr const char* kSavesFolder = "/saves";

/// Mounts the browser's storage at kSavesFolder and fills it with what was kept there.
/// Empty on success, else why the saves will last only as long as the page.
std::string open_saves();

/// Writes the saves folder back to the browser's storage. Empty on success, else why not.
std::string keep_saves();

}  // namespace tourvane
