#pragma once
// The game's number widths and the arithmetic that stores into them.
//
// Integer fields are 16-bit, Long fields 32-bit, Booleans an Integer holding -1 or 0.
// Sums are worked in 64 bits and stored back saturated at the width's limits, so no
// sum can wrap or overflow however long a game runs.

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace tourvane {

using Integer = std::int16_t;
using Long = std::int32_t;
using Boolean = std::int16_t;
using Date = double;

inline constexpr Boolean kTrue = -1;
inline constexpr Boolean kFalse = 0;

/// Clamps a wide whole number into the width of T.
template <class T>
constexpr T saturate(std::int64_t v) {
    static_assert(std::is_integral_v<T>);
    if (v > std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
    if (v < std::numeric_limits<T>::min()) return std::numeric_limits<T>::min();
    return static_cast<T>(v);
}

/// Int(): rounds down, for any double (NaN gives 0, out-of-range values clamp).
inline std::int64_t Int(double v) {
    // Truncation toward zero is the floor for the values of the draws, 0 and above.
    if (v >= 0 && v < 9.2e18) return static_cast<std::int64_t>(v);
    if (v > -9.2e18 && v < 0) {                       // false for NaN too
        const auto i = static_cast<std::int64_t>(v);  // truncates toward zero
        return i - (v < static_cast<double>(i));
    }
    if (v >= 9.2e18) return std::numeric_limits<std::int64_t>::max();
    if (v <= -9.2e18) return std::numeric_limits<std::int64_t>::min();
    return 0;
}

/// Rounds to the nearest whole number, half to even, as storing a non-whole number does.
inline std::int64_t round_half_even(double v) {
    if (!(v == v)) return 0;
    if (v >= 9.2e18) return std::numeric_limits<std::int64_t>::max();
    if (v <= -9.2e18) return std::numeric_limits<std::int64_t>::min();
    const std::int64_t i = Int(v);
    const double diff = v - static_cast<double>(i);
    if (diff > 0.5) return i + 1;
    if (diff < 0.5) return i;
    return (i % 2 == 0) ? i : i + 1;
}

/// a/100*b worked in double, the division first, then floored.
inline std::int64_t percent_of(std::int64_t a, std::int64_t b) {
    return Int(static_cast<double>(a) / 100.0 * static_cast<double>(b));
}

/// Stores a wide whole number into a field, saturating.
template <class T>
constexpr void store(T& field, std::int64_t v) {
    field = saturate<T>(v);
}

/// Adds a (possibly negative) amount to a field, saturating.
template <class T>
constexpr void add(T& field, std::int64_t delta) {
    field = saturate<T>(static_cast<std::int64_t>(field) + delta);
}

inline constexpr Boolean to_boolean(bool b) {
    return b ? kTrue : kFalse;
}
inline constexpr bool is_true(Boolean b) {
    return b == kTrue;
}

}  // namespace tourvane
