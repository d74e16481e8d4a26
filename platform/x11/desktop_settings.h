// What a desktop's settings ask for.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace r7 {

/// Pixels for a point according to a resource database's text: its `Xft.dpi` over 96. 1 where it has none, or
/// one that is no number from 48 to 768.
double desktop_scale_of(std::string_view resources);

/// The longest time between the presses of a double click according to what the settings manager publishes:
/// the integer `Net/DoubleClickTime` of its bytes. Nothing where they have none, or one outside 50 to 5000
/// milliseconds, or break off before it.
std::optional<std::chrono::milliseconds> double_click_time_of(std::string_view settings);

} // namespace r7
