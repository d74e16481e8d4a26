// The fast response to the test sine against the plain one.
#include "tests/waveshaper_model/plain_sine_response.h"
#include "tests/waveshaper_model/random_curves.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <vector>

namespace r7 {
namespace {

/// The number of vertices in which fast and plain response differ by more than a NaN's payload.
template <class Amplitude>
int differences(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
                const AmplitudeAxis& axis, std::size_t vertices = kSineVertices)
{
    std::vector<float> x(vertices), y(vertices), plain_x(vertices), plain_y(vertices);
    sine_positions(axis, x);
    sine_response(curve, amplitude, postgain, axis, y);
    test::plain_sine_response(curve, amplitude, postgain, axis, axis, plain_x, plain_y);
    const auto same = [](float a, float b) {
        return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
               (std::isnan(a) && std::isnan(b));
    };
    int count = 0;
    for (std::size_t i = 0; i < vertices; ++i) count += !same(x[i], plain_x[i]) || !same(y[i], plain_y[i]);
    return count;
}

TEST(SineResponse, EqualsThePlainFormForCurvesAndForAnythingElse)
{
    constexpr unsigned kSeed = 24;
    SCOPED_TRACE(kSeed);
    test::Random random(kSeed);
    for (int round = 0; round < 4000; ++round) {
        const bool drawn = random.below(2) == 0;
        const CurveCoefficients curve = drawn ? random.curve().coefficients() : random.wild_coefficients();
        const double amplitude = drawn ? random.between(-3, 3) : random.wild();
        const float postgain = drawn ? random.between(0, 2) : static_cast<float>(random.wild());
        const AmplitudeAxis axis{random.between(-4, -0.5F), random.between(0.5F, 4), 5,
                                 random.between(10, 900)};
        const std::size_t vertices = kSineVertices - random.below(10);
        ASSERT_EQ(differences(curve, amplitude, postgain, axis, vertices), 0) << round;
        ASSERT_EQ(differences(curve, static_cast<float>(amplitude), postgain, axis, vertices), 0) << round;
    }
}

TEST(SineResponse, EqualsThePlainFormAtBoundariesAndNearNothing)
{
    CurveCoefficients curve; // a step at every boundary, and at zero
    curve.S = {1, 2};
    curve.pos_Intercept = 3;
    const AmplitudeAxis axis{-4, 4, 5, 100};
    for (const float boundary : test_sine().values) {
        curve.segment_length = {std::abs(boundary), 0.25};
        ASSERT_EQ(differences(curve, 1.0F, 1.0F, axis), 0) << boundary;
        curve.segment_length = {0.25, std::abs(boundary)};
        ASSERT_EQ(differences(curve, 1.0, 1.0F, axis), 0) << boundary;
    }
    for (double amplitude = 1; amplitude > 0; amplitude *= 0.25) {
        ASSERT_EQ(differences(curve, amplitude, 1.0F, axis), 0) << amplitude;
        ASSERT_EQ(differences(curve, static_cast<float>(-amplitude), 1.0F, axis), 0) << amplitude;
    }
}

} // namespace
} // namespace r7
