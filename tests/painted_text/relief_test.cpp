// The relief against its direct form.
#include "tests/painted_text/direct_relief.h"
#include "tests/support/counted_allocations.h"

#include <gtest/gtest.h>

#include <random>

namespace r7 {
namespace {

// Over sheets of any size with a few holes, soft ones too, which runs of all lengths lie between.
TEST(Relief, AgreesWithItsDirectFormAndAllocatesNothingOnceWarm)
{
    std::mt19937 random(71);
    const auto below = [&](int most) { return std::uniform_int_distribution<int>(0, most - 1)(random); };
    HeightField field;
    field.from_mask(Mask(40, 40));
    for (int round = 0; round < 60; ++round) {
        Mask mask(1 + below(40), 1 + below(40));
        std::ranges::fill(mask.samples(), std::uint8_t{255});
        for (int holes = below(20); holes > 0; --holes)
            mask.at(below(mask.width()), below(mask.height())) = static_cast<std::uint8_t>(below(256));
        field.set_radius(std::ldexp(1.0f + static_cast<float>(below(8)) / 8.0f, below(10) - 1)); // 0.5 to 480
        const std::size_t before = allocations();
        const Plane<float>& heights = field.from_mask(mask);
        ASSERT_EQ(allocations(), before);
        const Plane<float> expected = direct_relief(mask, field.radius(), 22);
        for (std::size_t i = 0; i < expected.samples().size(); ++i)
            ASSERT_NEAR(heights.samples()[i], expected.samples()[i], 1e-6)
                << "round " << round << " at " << i;
    }
    EXPECT_GT(allocations(), 0u);
}

} // namespace
} // namespace r7
