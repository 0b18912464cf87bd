#pragma once
// The bits of one value read as another type of the same size, as the file formats need for
// dates: std::bit_cast where the standard library has it, `copy_bits` where it does not (the
// web build's library).

#include <cstring>
#include <type_traits>
#include <version>

#if defined(__cpp_lib_bit_cast)
#include <bit>
#endif

namespace tourvane {

/// The object representation of `from` as a `To`, copied byte for byte.
template <class To, class From>
To copy_bits(const From& from) noexcept {
    static_assert(sizeof(To) == sizeof(From), "copy_bits needs types of the same size");
    static_assert(std::is_trivially_copyable_v<To> && std::is_trivially_copyable_v<From>,
                  "copy_bits needs trivially copyable types");
    static_assert(std::is_trivially_default_constructible_v<To>,
                  "copy_bits needs a type it can make empty first");
    To to;
    std::memcpy(&to, &from, sizeof(To));
    return to;
}

#if defined(__cpp_lib_bit_cast)
using std::bit_cast;
#else
template <class To, class From>
To bit_cast(const From& from) noexcept {
    return copy_bits<To>(from);
}
#endif

}  // namespace tourvane
