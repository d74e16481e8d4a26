// Integers from foreign floats: compared as floats first, since the cast is undefined outside an integer's
// range.
#include "host/parameter_values.h"

#include <cmath>

namespace r7 {

std::int32_t lamp_for_value(float value)
{
    constexpr float kLimit = 2147483648.0f;
    if (!(value >= -kLimit && value < kLimit)) return 0;
    return static_cast<std::int32_t>(std::nearbyint(value)) + 1;
}

std::optional<std::int32_t> mode_position_for_value(float value)
{
    if (!(value > -1.0f && value < 6.0f)) return std::nullopt;
    return static_cast<std::int32_t>(value);
}

} // namespace r7
