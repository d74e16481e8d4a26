// Storing a number and noticing whether that changes anything.
#pragma once

#include <cstring>

namespace r7 {

/// Stores `value` and tells whether the bits are others than before: a NaN again, or a zero of the same sign,
/// is no change and needs no rebuilding.
template <class Number>
bool store_number(Number& field, Number value)
{
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): the bits are what is asked about
    if (std::memcmp(&field, &value, sizeof value) == 0) return false;
    field = value;
    return true;
}

} // namespace r7
