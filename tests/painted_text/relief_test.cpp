// The relief over shapes whose heights are known, and against its direct form.
#include "tests/painted_text/direct_relief.h"
#include "tests/support/counted_allocations.h"

#include <gtest/gtest.h>

#include <random>

namespace r7 {
namespace {

// A square that `depth(x, y)` says what is covered of: all from 1 on.
Mask mask_of(auto depth)
{
    Mask mask(51, 51);
    for (int y = 0; y < 51; ++y)
        for (int x = 0; x < 51; ++x)
            mask.at(x, y) = static_cast<std::uint8_t>(std::lround(255.0 * std::clamp(depth(x, y), 0.0, 1.0)));
    return mask;
}

Plane<float> relief_of(const Mask& mask, float radius)
{
    HeightField field;
    field.set_radius(radius);
    return field.from_mask(mask);
}

double rim(double depth, double radius)
{
    const double inward = 1.0 - std::clamp(depth / radius, 0.0, 1.0);
    return std::sqrt(1.0 - inward * inward);
}

// With one soft edge, upright and lying: behind it everything is deeper by what the edge covers.
TEST(Relief, OfABarIsTwoQuarterCirclesThatMeet)
{
    for (const double coverage : {0.0, 0.25, 0.5, 0.75, 1.0})
        for (const float radius : {0.5f, 3.0f, 11.0f, 299.0f}) {
            const auto depth = [&](int i) { return std::max(std::min(i - 10.0 + coverage, 28.0 - i), 0.0); };
            const Plane<float> upright = relief_of(mask_of([&](int x, int) { return depth(x); }), radius);
            const Plane<float> lying = relief_of(mask_of([&](int, int y) { return depth(y); }), radius);
            for (int i = 2; i < 49; ++i) {
                double expected = 0.0;
                for (int k = -2; k <= 2; ++k) expected += (3 - std::abs(k)) / 9.0 * rim(depth(i + k), radius);
                expected *= std::round(255.0 * std::min(depth(i), 1.0)) / 255.0;
                ASSERT_NEAR(upright.at(i, 25), expected, 1e-6) << coverage << ", " << radius << " at " << i;
                ASSERT_NEAR(lying.at(25, i), expected, 1e-6) << coverage << ", " << radius << " at " << i;
            }
        }
}

// Over sheets of any size with a few holes, which runs of all lengths lie between.
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
        field.set_radius(0.5f + static_cast<float>(below(100)) / 4.0f);
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
