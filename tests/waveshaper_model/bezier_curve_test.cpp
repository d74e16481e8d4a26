// The curve: evaluation, invariants of the points, and the way into a record and back.
#include "tests/waveshaper_model/random_curves.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace r7 {
namespace {

using enum CurvePoint;
using test::Random;

constexpr unsigned kSeed = 20;
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(CurveCoefficients, TakeEachBranchUpToItsBoundary)
{
    CurveCoefficients k; // answers 1 in the first segment, 2 in the second, 3 on the straight part
    k.S = {1, 2};
    k.pos_Intercept = 3;
    const struct {
        SegmentPair lengths;
        float in, out, mirrored;
    } kRows[] = {
        {{0.5, 0.25}, 1e-40F, 1, -1},
        {{0.5, 0.25}, std::nextafter(0.5F, 0.0F), 1, -1},
        {{0.5, 0.25}, 0.5F, 2, -2},
        {{0.5, 0.25}, std::nextafter(0.75F, 0.0F), 2, -2},
        {{0.5, 0.25}, 0.75F, 3, -3},
        {{0.5, 0.25}, 0.0F, 0, 0},
        // What cannot be compared counts as beyond the boundary on the negative side only.
        {{kNaN, 0.25}, 0.1F, 1, -3},
        {{kInfinity, -kInfinity}, 9, 1, -3},
    };
    for (const auto& row : kRows) {
        k.segment_length = row.lengths;
        EXPECT_EQ(k.response_for_in_amplitude(row.in), row.out) << row.in;
        EXPECT_EQ(k.response_for_in_amplitude(-row.in), row.mirrored) << row.in;
    }
    EXPECT_FALSE(std::signbit(k.response_for_in_amplitude(-0.0F)));
    EXPECT_TRUE(std::isnan(k.response_for_in_amplitude(kNaN)));
}

TEST(BezierCurve, RespondsWithTheBezierThroughItsPointsAndItsMirrorImage)
{
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    for (int round = 0; round < 500; ++round) {
        const BezierCurve curve = random.curve();
        const double end_x = curve.point(positive_end_point).x;
        if (end_x < 0.05) continue; // too steep for a tolerance
        for (const std::size_t first : {0U, 3U}) {
            const AmplitudePoint* const p = &curve.points()[first];
            const double t = random.between(0.01F, 0.99F), u = 1 - t;
            const auto x = static_cast<float>(p[0].x + t * (p[3].x - p[0].x));
            const double y =
                u * u * u * p[0].y + 3 * u * u * t * p[1].y + 3 * u * t * t * p[2].y + t * t * t * p[3].y;
            EXPECT_NEAR(curve.response_for_in_amplitude(x), y, 2e-4) << round;
            EXPECT_EQ(curve.response_for_in_amplitude(-x), -curve.response_for_in_amplitude(x)) << round;
        }
    }
}

TEST(BezierCurve, KeepsItsInvariantsThroughAnyMoves)
{
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    BezierCurve curve;
    for (int round = 0; round < 20000; ++round) {
        const double mid_before = curve.point(positive_mid_point).x;
        random.move(curve);
        const double end = curve.point(positive_end_point).x;
        ASSERT_EQ(curve.point(positive_mid_point).x, static_cast<PointCoordinate>(end * 0.5));
        ASSERT_GE(end, mid_before + 0.001 - 1e-7) << round;
        ASSERT_LE(end, curve.limits().in_amplitude_max) << round;
        for (std::size_t i = 0; i < kCurvePoints; ++i) {
            ASSERT_NEAR(curve.points()[i].x, end * static_cast<double>(i) / 6, 5e-7) << round;
            ASSERT_LE(std::abs(curve.points()[i].y), curve.limits().out_amplitude_max + 1e-6) << round;
        }
        // The slope has no step at the mid point.
        const auto [before_x, before_y] = curve.point(positive_mid_c2_point);
        const auto [after_x, after_y] = curve.point(positive_end_c1_point);
        const auto [x, y] = curve.point(positive_mid_point);
        ASSERT_NEAR((y - before_y) * (after_x - x), (after_y - y) * (x - before_x), 2e-6) << round;
    }
}

TEST(BezierCurve, CountsEveryExportAndWraps)
{
    constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
    for (const auto& [before, after] : {std::pair{0, 1}, {1, 2}, {-1, 0}, {kMost, -kMost - 1}}) {
        _QM_R7_Bezier_Sequence record{};
        record.needs_update = before;
        BezierCurve().export_sequence_data(record);
        EXPECT_EQ(record.needs_update, after);
    }
}

TEST(BezierCurve, TakesARecordAsItCameAndRebuildsItsPointsFromIt)
{
    SCOPED_TRACE(kSeed);
    Random random(kSeed);
    for (int round = 0; round < 1000; ++round) {
        const BezierCurve drawn = random.curve();
        const bool sound = round % 2 == 0; // else a record that disagrees with itself
        const CurveCoefficients sent = sound ? drawn.coefficients() : random.wild_coefficients();
        _QM_R7_Bezier_Sequence record{};
        copy_coefficients(sent, record);
        BezierCurve received;
        received.set_point_to_in_amplitude_to_out_amplitude(zero_point, 0.25F, 0.5F);
        received.set_from_sequence_data(record);
        ASSERT_EQ(std::memcmp(&received.coefficients(), &sent, sizeof sent), 0) << round;
        ASSERT_EQ(received.point(zero_point), (AmplitudePoint{0.25F, 0.5F})) << round;
        for (std::size_t i = 1; sound && i < kCurvePoints; ++i) {
            ASSERT_NEAR(received.points()[i].x, drawn.points()[i].x, 2e-6) << round;
            ASSERT_NEAR(received.points()[i].y, drawn.points()[i].y, 4e-6) << round;
        }
        for (const std::size_t i : {0U, 1U}) {
            const auto end_x = static_cast<float>(static_cast<float>(sent.D[i]) + sent.C[i]);
            ASSERT_TRUE(received.points()[3 * i + 3].x == end_x || std::isnan(end_x)) << round;
        }
    }
}

} // namespace
} // namespace r7
