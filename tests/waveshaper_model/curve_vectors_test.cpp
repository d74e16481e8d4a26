// The curve against vectors that were computed apart from it; tests/data/curve_vectors.txt explains itself.
#include "waveshaper/bezier_curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace r7 {
namespace {

constexpr bool kWide = sizeof(PointCoordinate) == sizeof(double);
constexpr const char* kPointNames[kCurvePoints] = {
    "zero_point",         "positive_mid_c1_point", "positive_mid_c2_point",
    "positive_mid_point", "positive_end_c1_point", "positive_end_c2_point",
    "positive_end_point",
};

/// The record that a curve exports into zeros, padding included, as hexadecimal digits.
std::string exported(const BezierCurve& curve)
{
    using Bytes = std::array<unsigned char, sizeof(_QM_R7_Bezier_Sequence)>;
    auto record = std::bit_cast<_QM_R7_Bezier_Sequence>(Bytes{});
    curve.export_sequence_data(record);
    std::string digits;
    for (const unsigned char byte : std::bit_cast<Bytes>(record)) {
        char pair[3];
        std::snprintf(pair, sizeof pair, "%02x", byte);
        digits += pair;
    }
    return digits;
}

TEST(BezierCurve, AgreesWithTheVectorsToTheLastBit)
{
    std::ifstream file(R7_TEST_DATA "/curve_vectors.txt");
    std::string name;
    BezierCurve curve;
    bool moved = false;
    int records = 0;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string key;
        words >> key;
        if (key == "curve") {
            words >> name;
            curve = BezierCurve();
            moved = false;
        } else if (key == "move") {
            std::string point;
            float x = 0, y = 0;
            words >> point >> x >> y;
            const auto which = std::find(kPointNames, std::end(kPointNames), point) - kPointNames;
            curve.set_point_to_in_amplitude_to_out_amplitude(static_cast<CurvePoint>(which), x, y);
            moved = true;
        } else if (key == (kWide ? "points64" : "points32")) {
            CurvePoints listed;
            char comma = 0;
            for (auto& [x, y] : listed) words >> x >> comma >> y;
            for (std::size_t i = 0; moved && i < kCurvePoints; ++i)
                EXPECT_EQ(curve.points()[i], listed[i]) << name << ' ' << kPointNames[i];
            curve.set_points(listed);
            curve.update_coeffs();
        } else if (key == (kWide ? "record64" : "record32")) {
            std::string listed;
            words >> listed;
            EXPECT_EQ(exported(curve), listed) << name;
            ++records;
        }
        ASSERT_TRUE(words || line.empty()) << line;
    }
    EXPECT_EQ(records, 10);
}

} // namespace
} // namespace r7
