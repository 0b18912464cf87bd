#include "app/web/web_port.h"

#include <emscripten.h>

#include <cstdlib>
#include <memory>

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
    const path = UTF8ToString(folder);
    let error = "";
    try {
        FS.mkdir(path);
        FS.mount(IDBFS, {}, path);
        error = await new Promise(function(resolve) {
            FS.syncfs(true, function(e) { resolve(e ? String(e.message || e) : ""); });
        });
    } catch (e) {
        error = String(e.message || e);
    }
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

}  // namespace

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
