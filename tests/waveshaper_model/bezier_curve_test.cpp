// The curve: evaluation, invariants of the points, and the way into a record and back.
#include "tests/waveshaper_model/random_curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <sstream>

namespace r7 {
namespace {

using enum CurvePoint;

constexpr unsigned kSeed = 20;

TEST(CurveCoefficients, TakeEachBranchUpToItsBoundary)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    CurveCoefficients k; // answers 1 in the first segment, 2 in the second, 3 on the straight part
    k.S = {1, 2};
    k.pos_Intercept = 3;
    k.segment_length = {0.5, 0.25};
    for (const auto& [in, out] : {std::pair{1e-40F, 1.0F},
                                  {std::nextafter(0.5F, 0.0F), 1},
                                  {0.5F, 2},
                                  {std::nextafter(0.75F, 0.0F), 2},
                                  {0.75F, 3},
                                  {0.0F, 0}}) {
        EXPECT_EQ(k.response_for_in_amplitude(in), out) << in;
        EXPECT_EQ(k.response_for_in_amplitude(-in), -out) << in;
    }
    EXPECT_FALSE(std::signbit(k.response_for_in_amplitude(-0.0F)));
    EXPECT_TRUE(std::isnan(k.response_for_in_amplitude(kNaN)));
    // What cannot be compared counts as beyond the boundary on the negative side only.
    for (const SegmentPair& lengths : {SegmentPair{kNaN, 0.25}, {kInfinity, -kInfinity}}) {
        k.segment_length = lengths;
        EXPECT_EQ(k.response_for_in_amplitude(0.1F), 1);
        EXPECT_EQ(k.response_for_in_amplitude(-0.1F), -3);
    }
}

TEST(BezierCurve, KeepsItsInvariantsThroughAnyMoves)
{
    test::Random random(kSeed);
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

TEST(BezierCurve, TakesARecordAsItCameAndRebuildsItsPointsFromIt)
{
    test::Random random(kSeed);
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
        for (const std::size_t first : {0U, 3U}) {
            const auto end_x = static_cast<float>(static_cast<float>(sent.D[first / 3]) + sent.C[first / 3]);
            ASSERT_TRUE(received.points()[first + 3].x == end_x || std::isnan(end_x)) << round;
            if (!sound) continue;
            const AmplitudePoint* const p = &drawn.points()[first];
            for (std::size_t i = 1; i <= 3; ++i) {
                ASSERT_NEAR(received.points()[first + i].x, p[i].x, 2e-6) << round;
                ASSERT_NEAR(received.points()[first + i].y, p[i].y, 4e-6) << round;
            }
            if (p[3].x - p[0].x < 0.025F) continue; // too steep for a tolerance
            const double t = random.between(0.01F, 0.99F), u = 1 - t;
            const auto x = static_cast<float>(p[0].x + t * (p[3].x - p[0].x));
            const double y =
                u * u * u * p[0].y + 3 * u * u * t * p[1].y + 3 * u * t * t * p[2].y + t * t * t * p[3].y;
            ASSERT_NEAR(received.response_for_in_amplitude(x), y, 2e-4) << round;
            ASSERT_EQ(received.response_for_in_amplitude(-x), -received.response_for_in_amplitude(x));
        }
    }
    _QM_R7_Bezier_Sequence record{};
    record.needs_update = std::numeric_limits<std::int32_t>::max();
    BezierCurve().export_sequence_data(record);
    EXPECT_EQ(record.needs_update, std::numeric_limits<std::int32_t>::min()) << "the count of exports wraps";
}

// The vectors were computed apart from this code; tests/data/curve_vectors.txt explains itself.
TEST(BezierCurve, AgreesWithTheVectorsToTheLastBit)
{
    using Bytes = std::array<unsigned char, sizeof(_QM_R7_Bezier_Sequence)>;
    constexpr std::string_view kPointNames[kCurvePoints] = {
        "zero_point",         "positive_mid_c1_point", "positive_mid_c2_point",
        "positive_mid_point", "positive_end_c1_point", "positive_end_c2_point",
        "positive_end_point",
    };
    const std::string width = sizeof(PointCoordinate) == sizeof(double) ? "64" : "32";
    std::ifstream file(R7_TEST_DATA "/curve_vectors.txt");
    BezierCurve curve;
    bool moved = false;
    int records = 0;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string key, word;
        words >> key;
        if (key == "curve") {
            curve = BezierCurve();
            moved = false;
        } else if (key == "move") {
            float x = 0, y = 0;
            words >> word >> x >> y;
            const auto which = std::ranges::find(kPointNames, word) - kPointNames;
            curve.set_point_to_in_amplitude_to_out_amplitude(static_cast<CurvePoint>(which), x, y);
            moved = true;
        } else if (key == "points" + width) {
            CurvePoints listed;
            for (auto& [x, y] : listed) words >> x, words.ignore(), words >> y;
            EXPECT_TRUE(!moved || curve.points() == listed) << line;
            curve.set_points(listed);
            curve.update_coeffs();
        } else if (key == "record" + width) {
            auto record = std::bit_cast<_QM_R7_Bezier_Sequence>(Bytes{}); // zeros, padding included
            curve.export_sequence_data(record);
            std::string digits;
            for (const unsigned char byte : std::bit_cast<Bytes>(record))
                for (const int digit : {byte >> 4, byte & 15}) digits += "0123456789abcdef"[digit];
            EXPECT_EQ(line, key + ' ' + digits);
            ++records;
        }
    }
    EXPECT_EQ(records, 10);
}

} // namespace
} // namespace r7
