// The fast response to the test sine against the plain one.
#include "tests/waveshaper_model/plain_sine_response.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

TEST(SineResponse, EqualsThePlainFormForCurvesAndForAnythingElse)
{
    constexpr unsigned kSeed = 24;
    const auto count = test::compare_sine_responses(kSeed, 4'000'000);
    EXPECT_EQ(count.differing, 0U) << "seed " << kSeed;
    EXPECT_GT(count.finite, 4'000'000U);
    EXPECT_GT(count.not_a_number, 100'000U);
    EXPECT_GT(count.infinite, 100'000U);
}

TEST(SineResponse, EqualsThePlainFormAtBoundariesAndNearNothing)
{
    CurveCoefficients curve; // a step at every boundary, and at zero
    curve.S = {1, 2};
    curve.pos_Intercept = 3;
    const AmplitudeAxis axis{-4, 4, 5, 100};
    const auto differing = [&](auto amplitude) {
        test::VertexCount count;
        test::compare_sine_response(curve, amplitude, 1.0F, axis, kSineVertices, count);
        return count.differing;
    };
    for (const float boundary : test_sine().values) {
        curve.segment_length = {std::abs(boundary), 0.25};
        ASSERT_EQ(differing(1.0F), 0U) << boundary;
        curve.segment_length = {0.25, std::abs(boundary)};
        ASSERT_EQ(differing(1.0), 0U) << boundary;
    }
    for (double amplitude = 1; amplitude > 0; amplitude *= 0.25) {
        ASSERT_EQ(differing(amplitude), 0U) << amplitude;
        ASSERT_EQ(differing(static_cast<float>(-amplitude)), 0U) << amplitude;
    }
}

} // namespace
} // namespace r7
