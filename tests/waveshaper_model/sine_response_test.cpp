// The fast response to the test sine against the plain one.
#include "waveshaper/sine_response.h"

#include "tests/waveshaper_model/plain_sine_response.h"
#include "tests/waveshaper_model/random_curves.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace r7 {
namespace {

using Positions = std::array<float, kSineVertices>;

/// The same bits, or NaN of any payload both.
bool same(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// The number of vertices in which the fast response differs from the plain one.
template <class Amplitude>
int differences(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
                const AmplitudeAxis& axis, std::size_t vertices)
{
    Positions x, plain_x, fast, plain;
    sine_positions(axis, std::span(x).first(vertices));
    sine_response(curve, amplitude, postgain, axis, std::span(fast).first(vertices));
    test::plain_sine_response(curve, amplitude, postgain, axis, axis, std::span(plain_x).first(vertices),
                              std::span(plain).first(vertices));
    int count = 0;
    for (std::size_t i = 0; i < vertices; ++i) count += !same(fast[i], plain[i]) || !same(x[i], plain_x[i]);
    return count;
}

TEST(SineResponse, OfTheIdentityIsOnePeriodOfTheSine)
{
    Positions x, y;
    sine_positions({-3.1415927F, 3.1415927F, 0, 512}, x);
    sine_response(BezierCurve().coefficients(), 1.0F, 1.0F, {-2, 2, 0, 400}, y);
    const struct {
        std::size_t vertex;
        float x, y;
    } kRows[] = {{0, 0, 200},     {64, 64, 129.289F}, {128, 128, 100},
                 {256, 256, 200}, {384, 384, 300},    {512, 512, 200}};
    for (const auto& row : kRows) {
        EXPECT_NEAR(x[row.vertex], row.x, 2e-3);
        EXPECT_NEAR(y[row.vertex], row.y, 2e-3);
    }
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

TEST(SineResponse, EqualsThePlainFormAtAmplitudesNearNothingAndAtTheBoundaries)
{
    // Answers that no two branches share, with a step at every boundary.
    CurveCoefficients curve;
    curve.S = {1, 2};
    curve.pos_Intercept = 3;
    const AmplitudeAxis axis{-4, 4, 5, 100};
    for (const float boundary : test_sine().values) {
        curve.segment_length = {std::abs(boundary), 0.25};
        ASSERT_EQ(differences(curve, 1.0F, 1.0F, axis, kSineVertices), 0) << boundary;
        curve.segment_length = {0.25, std::abs(boundary)};
        ASSERT_EQ(differences(curve, 1.0, 1.0F, axis, kSineVertices), 0) << boundary;
    }
    for (double amplitude = 1; amplitude > 0; amplitude *= 0.25) {
        ASSERT_EQ(differences(curve, amplitude, 1.0F, axis, kSineVertices), 0) << amplitude;
        ASSERT_EQ(differences(curve, static_cast<float>(-amplitude), 1.0F, axis, kSineVertices), 0)
            << amplitude;
    }
    ASSERT_EQ(differences(curve, 0.0F, 1.0F, axis, kSineVertices), 0);
}

TEST(SineResponse, RoundsTheInputInThePrecisionOfItsAmplitude)
{
    CurveCoefficients steep;
    steep.segment_length = {10, 10};
    steep.R = {1e7, 1e7};
    const AmplitudeAxis axis{-4, 4, 0, 8};
    Positions single, twice;
    sine_response(steep, 0.1F, 1.0F, axis, single);
    sine_response(steep, 0.1, 1.0F, axis, twice);
    EXPECT_NE(single, twice);
}

} // namespace
} // namespace r7
