// The relief against its direct form, the colours that it gets, and their tint.
#include "controls/color_monochrome.h"
#include "controls/shaded_material.h"
#include "tests/painted_text/direct_relief.h"
#include "tests/support/counted_allocations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
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

void expect_near(const Pixel& pixel, const Pixel& expected, const char* name)
{
    for (float Pixel::*const part : {&Pixel::red, &Pixel::green, &Pixel::blue, &Pixel::alpha})
        EXPECT_NEAR(pixel.*part, expected.*part, 1e-5) << name;
}

// By a ball whose red grows to the right and whose green grows upward, from 0 to 1.
TEST(Shading, LooksUpTheBallWhereItFacesAsTheReliefDoes)
{
    const float steep = 0.5f - 0.5f / std::sqrt(2.0f), both = 1.0f / std::sqrt(6.0f);
    const struct {
        const char* name;
        float right, up, scale; // the relief's slopes
        float red, green;
    } cases[] = {
        {"level", 0.0f, 0.0f, 18.0f, 0.5f, 0.5f},
        {"rises to the right, so faces left", 0.1f, 0.0f, 10.0f, steep, 0.5f},
        {"rises upward, too, so faces down", 0.1f, 0.2f, 10.0f, 0.5f - 0.5f * both, 0.5f - both},
        {"hollow", 0.1f, 0.0f, -10.0f, 1.0f - steep, 0.5f},
        {"no number", 0.1f, 0.2f, std::numeric_limits<float>::quiet_NaN(), 0.5f, 0.5f},
        {"the rim", 0.1f, 0.0f, std::numeric_limits<float>::infinity(), 0.5f / 64.0f, 0.5f},
    };
    Plane<Pixel> ball(64, 64);
    for (int i = 0; i < 64 * 64; ++i)
        ball.at(i % 64, i / 64) = {(static_cast<float>(i % 64) + 0.5f) / 64.0f,
                                   (63.5f - static_cast<float>(i / 64)) / 64.0f, 0.0f, 1.0f};
    for (const auto& c : cases) {
        Plane<float> heights(3, 3);
        for (int i = 0; i < 9; ++i)
            heights.at(i % 3, i / 3) = c.right * static_cast<float>(i % 3) - c.up * static_cast<float>(i / 3);
        ShadedMaterial material;
        material.set_scale(c.scale);
        std::vector<Pixel> row(3, Pixel{1.0f, 1.0f, 1.0f, 1.0f});
        Mask mask(3, 3);
        mask.at(1, 1) = 255;
        material.shade_row(heights, mask, 1, row);
        expect_near(row[1], {}, "without a ball");
        material.set_shading_image(ball);
        for (const float coverage : {0.0f, 0.2f, 1.0f}) {
            mask.at(1, 1) = static_cast<std::uint8_t>(255.0f * coverage);
            material.shade_row(heights, mask, 1, row);
            expect_near(row[1], {c.red * coverage, c.green * coverage, 0.0f, coverage}, c.name);
        }
    }
}

TEST(Tint, MultipliesLuminanceByTheColour)
{
    const struct {
        const char* name;
        ColorMonochrome tint;
        Pixel from, to;
    } cases[] = {
        {"white", {{1.0, 0.5, 0.25, 1.0}}, {1.0f, 1.0f, 1.0f, 1.0f}, {1.0f, 0.5f, 0.25f, 1.0f}},
        {"red is dark", {{1.0, 1.0, 0.0, 1.0}}, {1.0f, 0.0f, 0.0f, 1.0f}, {.2126f, .2126f, 0.0f, 1.0f}},
        {"green is bright", {{0.0, 1.0, 0.0, 1.0}}, {0.0f, 0.5f, 0.0f, 0.5f}, {0.0f, .3576f, 0.0f, 0.5f}},
        {"see-through", {{1.0, 0.0, 0.0, 0.5}}, {0.5f, 0.5f, 0.5f, 0.5f}, {.25f, 0.0f, 0.0f, .25f}},
        {"half", {{1.0, 0.0, 0.0, 1.0}, 0.5f}, {0.8f, 0.8f, 0.8f, 1.0f}, {0.8f, 0.4f, 0.4f, 1.0f}},
    };
    for (const auto& c : cases) {
        Pixel pixel[] = {c.from};
        c.tint.apply_to(pixel);
        expect_near(pixel[0], c.to, c.name);
    }
}

} // namespace
} // namespace r7
