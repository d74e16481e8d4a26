// From a parameter's value to what a lamp or a letter shows.
#pragma once

#include <cstdint>
#include <optional>

namespace r7 {

/// The lamp, numbered from 1, for the value of a switch's parameter: the nearest integer, halves to even,
/// plus 1. 0, a state that no light has, for a value that 32 bits cannot hold, NaN included.
std::int32_t lamp_for_value(float value);

/// The position, 0 to 5, of a waveshaper's mode for the value of its parameter, truncated toward zero; none
/// for other values, NaN included. It truncates where lamps round; the difference is meant.
std::optional<std::int32_t> mode_position_for_value(float value);

} // namespace r7
