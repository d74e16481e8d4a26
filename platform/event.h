// Mouse and scroll events, translated from the window system's.
#pragma once

#include "platform/geometry.h"

#include <cstdint>

namespace r7 {

/// Modifier keys held during an event; the values are the platform's flag bits and combine with `|`.
enum class Modifiers : std::uint32_t {
    none = 0,
    shift = 0x20000,
    control = 0x40000,
    option = 0x80000,
};

constexpr Modifiers operator|(Modifiers a, Modifiers b)
{
    return static_cast<Modifiers>(static_cast<std::uint32_t>(a) | static_cast<std::uint32_t>(b));
}

/// Whether `held` has every key of `key`.
constexpr bool has(Modifiers held, Modifiers key)
{
    return (static_cast<std::uint32_t>(held) & static_cast<std::uint32_t>(key)) ==
           static_cast<std::uint32_t>(key);
}

enum class MouseButton { primary, secondary };

/// A press, drag or release.
struct MouseEvent {
    Point location_in_window{}; ///< points, from the window's lower left corner, y upward
    double delta_x = 0.0;       ///< motion since the event before, points, rightward
    double delta_y = 0.0;       ///< motion since the event before, points, growing downward
    int click_count = 1;        ///< 1 for a single press, 2 for the second of a double click, and on
    Modifiers modifiers = Modifiers::none;
};

/// A step of a scroll wheel. One notch is 1.0; away from the user (up) and to the right are positive.
struct ScrollEvent {
    Point location_in_window{};
    double delta_x = 0.0;
    double delta_y = 0.0;
    Modifiers modifiers = Modifiers::none;
};

} // namespace r7
