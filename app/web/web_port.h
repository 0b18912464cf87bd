#pragma once
// The boxes and the save files of the web page. A box is a modal dialog of the page that the
// rules wait on (the wasm stack is put aside while the page waits for the player); the save
// files live in the browser's storage, mounted as a folder and written back after each change
// (app/web/kept_files.h).

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

/// The files of the folder the page runs in, held in the page's memory until `keep_saves`
/// writes them on: written whole to a new file and renamed over the old, with no flush to a
/// disk (a flush would write the browser's storage on each file by itself).
FilePort& page_folder();

/// The folder the saves live in.
inline constexpr const char* kSavesFolder = "/saves";

/// Mounts the browser's storage at kSavesFolder and fills it with what was kept there.
/// Empty on success, else why the saves will last only as long as the page.
std::string open_saves();

/// Writes the saves folder back to the browser's storage. Empty on success, else why not.
std::string keep_saves();

}  // namespace tourvane
