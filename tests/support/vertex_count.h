// Fast curves against their plain form: how many vertices there were of each kind, and how many differ.
#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace r7::test {

struct VertexCount {
    std::size_t finite = 0;
    std::size_t infinite = 0;
    std::size_t not_a_number = 0;
    std::size_t differing = 0;

    std::size_t all() const { return finite + infinite + not_a_number; }
    /// Counts a vertex. It differs where a bit does; one NaN is as good as another.
    void add(float plain, float fast)
    {
        const bool nan = std::isnan(plain);
        ++(nan ? not_a_number : std::isinf(plain) ? infinite : finite);
        differing += nan ? !std::isnan(fast)
                         : std::bit_cast<std::uint32_t>(plain) != std::bit_cast<std::uint32_t>(fast);
    }
};

} // namespace r7::test
