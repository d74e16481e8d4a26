// The curve: evaluation, constraints of the points, and the way into a record and back.
#include "waveshaper/bezier_curve.h"

#include "tests/waveshaper_model/random_curves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace r7 {
namespace {

using enum CurvePoint;
using test::Random;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

_QM_R7_Bezier_Sequence exported(const BezierCurve& curve)
{
    _QM_R7_Bezier_Sequence record{};
    curve.export_sequence_data(record);
    return record;
}

/// Answers 1 in the first segment, 2 in the second and 3 on the straight part, with the sign of the input.
CurveCoefficients telling_branches()
{
    CurveCoefficients k;
    k.segment_length = {0.5, 0.25};
    k.S = {1, 2};
    k.pos_Intercept = 3;
    return k;
}

TEST(CurveCoefficients, TakeEachBranchUpToItsBoundary)
{
    const float below_half = std::nextafter(0.5F, 0.0F);
    const float below_end = std::nextafter(0.75F, 0.0F);
    const struct {
        float in, out;
    } kRows[] = {{1e-40F, 1}, {below_half, 1}, {0.5F, 2}, {below_end, 2}, {0.75F, 3}, {100, 3}};
    const CurveCoefficients k = telling_branches();
    for (const auto& row : kRows) {
        EXPECT_EQ(k.response_for_in_amplitude(row.in), row.out) << row.in;
        EXPECT_EQ(k.response_for_in_amplitude(-row.in), -row.out) << -row.in;
    }
    for (const float zero : {0.0F, -0.0F}) {
        EXPECT_EQ(k.response_for_in_amplitude(zero), 0.0F);
        EXPECT_FALSE(std::signbit(k.response_for_in_amplitude(zero)));
    }
    EXPECT_TRUE(std::isnan(k.response_for_in_amplitude(kNaN)));
}

TEST(CurveCoefficients, CountWhatCannotBeComparedAsBeyondTheBoundaryOnTheNegativeSideOnly)
{
    CurveCoefficients k = telling_branches();
    k.segment_length = {kNaN, 0.25};
    EXPECT_EQ(k.response_for_in_amplitude(0.1F), 1);
    EXPECT_EQ(k.response_for_in_amplitude(-0.1F), -3);
    k.segment_length = {kInfinity, -kInfinity};
    EXPECT_EQ(k.response_for_in_amplitude(9), 1);
    EXPECT_EQ(k.response_for_in_amplitude(-9), -3);
}

TEST(BezierCurve, StartsAsTheIdentity)
{
    const BezierCurve curve;
    for (const float x : {0.25F, 0.5F, 0.75F, 1.0F, 2.0F, 1000.0F}) {
        EXPECT_FLOAT_EQ(curve.response_for_in_amplitude(x), x);
        EXPECT_FLOAT_EQ(curve.response_for_in_amplitude(-x), -x);
    }
    EXPECT_EQ(curve.number_of_segments(), 2U);
}

TEST(BezierCurve, RespondsWithTheBezierThroughItsPointsAndItsMirrorImage)
{
    constexpr unsigned kSeed = 20;
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    for (int round = 0; round < 500; ++round) {
        const BezierCurve curve = random.curve();
        const double end_x = curve.point(positive_end_point).x;
        if (end_x < 0.05) continue; // too steep for a tolerance
        for (const std::size_t first : {0U, 3U}) {
            const AmplitudePoint* const p = &curve.points()[first];
            const double t = random.between(0.01F, 0.99F);
            const double u = 1 - t;
            const double x = p[0].x + t * (p[3].x - p[0].x);
            const double y =
                u * u * u * p[0].y + 3 * u * u * t * p[1].y + 3 * u * t * t * p[2].y + t * t * t * p[3].y;
            EXPECT_NEAR(curve.response_for_in_amplitude(static_cast<float>(x)), y, 2e-4) << round;
        }
        for (const float x : {random.between(0, 2), 1e-30F, static_cast<float>(end_x)})
            EXPECT_EQ(curve.response_for_in_amplitude(-x), -curve.response_for_in_amplitude(x)) << round;
    }
}

TEST(BezierCurve, GoesOnStraightFromTheEnd)
{
    const struct {
        AmplitudePoint before, end;
        float at, expected;
    } kRows[] = {
        {{0.75F, 0.5F}, {1.0F, 1.0F}, 2.0F, 3.0F},
        {{1.0F, 0.5F}, {1.0F, 0.25F}, 7.0F, 0.25F}, // an upright tangent is taken as a level one
        {{1.25F, 0.0F}, {1.0F, 0.5F}, 2.0F, -1.5F},
    };
    for (const auto& row : kRows) {
        CurvePoints points = BezierCurve().points();
        points[5] = row.before;
        points[6] = row.end;
        BezierCurve curve;
        curve.set_points(points);
        curve.update_coeffs();
        EXPECT_FLOAT_EQ(curve.response_for_in_amplitude(row.at), row.expected);
        EXPECT_FLOAT_EQ(curve.response_for_in_amplitude(-row.at), -row.expected);
    }
}

TEST(BezierCurve, PassesNaNThroughTheClampAndIsWellAgainAfterwards)
{
    BezierCurve curve;
    curve.set_point_to_in_amplitude_to_out_amplitude(positive_end_point, kNaN, kNaN);
    curve.update_coeffs();
    EXPECT_TRUE(std::isnan(curve.point(positive_mid_point).x));
    EXPECT_TRUE(std::isnan(curve.response_for_in_amplitude(0.5F)));
    curve.set_to_linear();
    curve.update_coeffs();
    EXPECT_EQ(curve.points(), BezierCurve().points());
}

TEST(BezierCurve, MovesTheZeroPointAlone)
{
    BezierCurve curve;
    curve.set_point_to_in_amplitude_to_out_amplitude(zero_point, 0.25F, 9);
    CurvePoints expected = BezierCurve().points();
    expected[0] = {0.25F, 2};
    EXPECT_EQ(curve.points(), expected);
}

TEST(BezierCurve, KeepsItsInvariantsThroughAnyMoves)
{
    constexpr unsigned kSeed = 21;
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    BezierCurve curve;
    AmplitudeLimits limits;
    for (int round = 0; round < 20000; ++round) {
        if (random.below(100) == 0) {
            limits.in_amplitude_max = random.between(1, 3);
            limits.out_amplitude_min = -(limits.out_amplitude_max = random.between(1, 2));
            curve.set_limits(limits);
            curve.set_to_linear();
        }
        const double mid_before = curve.point(positive_mid_point).x;
        random.move(curve);
        const double mid = curve.point(positive_mid_point).x;
        const double end = curve.point(positive_end_point).x;
        ASSERT_EQ(mid, static_cast<PointCoordinate>(end * 0.5));
        ASSERT_GE(end, mid_before + 0.001 - 1e-7) << round;
        for (std::size_t i = 0; i < kCurvePoints; ++i)
            ASSERT_NEAR(curve.points()[i].x, end * static_cast<double>(i) / 6, 5e-7) << round;

        // The slope has no step at the mid point.
        const AmplitudePoint before = curve.point(positive_mid_c2_point);
        const AmplitudePoint after = curve.point(positive_end_c1_point);
        const AmplitudePoint at = curve.point(positive_mid_point);
        const double step = (at.y - before.y) * (after.x - at.x) - (after.y - at.y) * (at.x - before.x);
        ASSERT_NEAR(step, 0, 2e-6) << round;
        ASSERT_LE(std::abs(at.y), limits.out_amplitude_max + 1e-6) << round;
    }
}

TEST(BezierCurve, CountsEveryExportAndWraps)
{
    constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
    const struct {
        std::int32_t before, after;
    } kRows[] = {{0, 1}, {1, 2}, {-1, 0}, {kMost, std::numeric_limits<std::int32_t>::min()}};
    for (const auto& row : kRows) {
        _QM_R7_Bezier_Sequence record{};
        record.needs_update = row.before;
        BezierCurve().export_sequence_data(record);
        EXPECT_EQ(record.needs_update, row.after);
    }
}

TEST(BezierCurve, ExportsItsCoefficientsAsTheyStand)
{
    BezierCurve curve;
    const double slope = curve.coefficients().pos_M;
    curve.set_point_to_in_amplitude_to_out_amplitude(positive_end_point, 1, 0);
    EXPECT_EQ(exported(curve).pos_M, slope);
    curve.update_coeffs();
    EXPECT_NE(exported(curve).pos_M, slope);
}

TEST(BezierCurve, ComesBackFromARecordUpToSinglePrecision)
{
    constexpr unsigned kSeed = 22;
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    for (int round = 0; round < 1000; ++round) {
        const BezierCurve sent = random.curve();
        const _QM_R7_Bezier_Sequence record = exported(sent);
        BezierCurve received;
        received.set_from_sequence_data(record);
        for (std::size_t i = 0; i < kCurvePoints; ++i) {
            ASSERT_NEAR(received.points()[i].x, sent.points()[i].x, 2e-6) << round << ' ' << i;
            ASSERT_NEAR(received.points()[i].y, sent.points()[i].y, 4e-6) << round << ' ' << i;
        }
        const _QM_R7_Bezier_Sequence again = exported(received);
        ASSERT_EQ(std::memcmp(&again, &record, sizeof record), 0) << round;
    }
}

TEST(BezierCurve, UsesARecordThatDisagreesWithItselfAsItCame)
{
    constexpr unsigned kSeed = 23;
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    for (int round = 0; round < 2000; ++round) {
        const CurveCoefficients sent = random.wild_coefficients();
        _QM_R7_Bezier_Sequence record{};
        copy_coefficients(sent, record);
        BezierCurve curve;
        curve.set_point_to_in_amplitude_to_out_amplitude(zero_point, 0.25F, 0.5F);
        curve.set_from_sequence_data(record);

        ASSERT_EQ(std::memcmp(&curve.coefficients(), &sent, sizeof sent), 0) << round;
        ASSERT_EQ(curve.point(zero_point), (AmplitudePoint{0.25F, 0.5F})) << round;
        for (const std::size_t i : {0U, 1U}) {
            const AmplitudePoint end = curve.points()[3 * i + 3];
            const auto x = static_cast<float>(static_cast<float>(sent.D[i]) + sent.C[i]);
            ASSERT_TRUE(end.x == x || std::isnan(x)) << round;
        }
    }
}

TEST(AmplitudeAxis, MapsItsRangeOntoItsLengthAndBack)
{
    const AmplitudeAxis axis{-2, 2, 5, 400};
    const struct {
        double amplitude, position;
    } kRows[] = {{-2, 5}, {0, 205}, {2, 405}, {3, 505}};
    for (const auto& row : kRows) {
        EXPECT_EQ(axis.position(row.amplitude), row.position);
        EXPECT_EQ(axis.amplitude(row.position), row.amplitude);
    }
}

} // namespace
} // namespace r7
