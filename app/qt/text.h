#pragma once
// The game's texts (UTF-8, from the core and the presentation layer) as Qt strings.

#include <QString>
#include <string_view>

namespace tourvane {

inline QString qs(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tourvane
