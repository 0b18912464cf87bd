#include "app/web/web_port.h"

#include <emscripten.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <system_error>

namespace tourvane {

namespace {

// The page answers through functions it hands to the module when it starts it
// (app/web/page/tourvane.mjs): tourvaneMsgBox and tourvaneInputBox.

// clang-format off
EM_ASYNC_JS(int, page_msgbox, (const char* text, int yes_no, int critical), {
    return await Module.tourvaneMsgBox(UTF8ToString(text), yes_no !== 0, critical !== 0);
});

EM_ASYNC_JS(char*, page_inputbox, (const char* prompt, const char* title), {
    const answer = await Module.tourvaneInputBox(UTF8ToString(prompt), UTF8ToString(title));
    const text = answer || "";
    const size = lengthBytesUTF8(text) + 1;
    const copy = _malloc(size);
    stringToUTF8(text, copy, size);
    return copy;
});

EM_ASYNC_JS(char*, mount_and_fill, (const char* folder), {
    const error = await Module.tourvaneMountSaves(UTF8ToString(folder));  // saves_folder.js
    const size = lengthBytesUTF8(error) + 1;
    const copy = _malloc(size);
    stringToUTF8(error, copy, size);
    return copy;
});

EM_ASYNC_JS(char*, write_back, (), {
    // Saves that should outlast the page: ask once that the browser keeps them.
    if (!Module.tourvanePersistAsked && navigator.storage && navigator.storage.persist) {
        Module.tourvanePersistAsked = true;
        navigator.storage.persist().catch(function() {});
    }
    const error = await new Promise(function(resolve) {
        FS.syncfs(false, function(e) { resolve(e ? String(e.message || e) : ""); });
    });
    const size = lengthBytesUTF8(error) + 1;
    const copy = _malloc(size);
    stringToUTF8(error, copy, size);
    return copy;
});
// clang-format on

/// Takes a text the page made with malloc.
std::string take(char* text) {
    std::unique_ptr<char, decltype(&std::free)> owned(text, &std::free);
    return text ? std::string(text) : std::string();
}

class PageFolder : public FilePort {
  public:
    std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                  std::size_t limit) override {
        return read_file(path, limit);
    }
    bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                 std::string& reason) override {
        std::filesystem::path fresh = path;
        fresh += ".new";
        std::FILE* f = std::fopen(fresh.c_str(), "wb");
        bool ok = f && std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
        if (f && std::fclose(f) != 0) ok = false;
        if (ok && std::rename(fresh.c_str(), path.c_str()) == 0) return true;
        reason = std::strerror(errno);
        std::error_code ec;
        std::filesystem::remove(fresh, ec);
        return false;
    }
    void remove(const std::filesystem::path& path) override {
        std::error_code ec;
        std::filesystem::remove(path, ec);
    }
};

}  // namespace

FilePort& page_folder() {
    static PageFolder folder;
    return folder;
}

Answer WebPort::msgbox(std::string_view text, Buttons buttons, bool critical) {
    const std::string shown(text);
    const int answer = page_msgbox(shown.c_str(), buttons == Buttons::YesNo, critical);
    if (buttons == Buttons::Ok) return Answer::Ok;
    return answer == static_cast<int>(Answer::Yes) ? Answer::Yes : Answer::No;
}

std::string WebPort::inputbox(std::string_view prompt, std::string_view title) {
    const std::string asked(prompt), titled(title);
    return take(page_inputbox(asked.c_str(), titled.c_str()));
}

std::string open_saves() {
    return take(mount_and_fill(kSavesFolder));
}

std::string keep_saves() {
    return take(write_back());
}

}  // namespace tourvane
