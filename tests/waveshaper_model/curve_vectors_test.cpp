// The curve against vectors that were computed apart from it: tests/data/curve_vectors.txt says how they are
// written.
#include "waveshaper/bezier_curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace r7 {
namespace {

constexpr bool kWide = sizeof(PointCoordinate) == sizeof(double);
constexpr std::string_view kPointNames[kCurvePoints] = {
    "zero_point",         "positive_mid_c1_point", "positive_mid_c2_point",
    "positive_mid_point", "positive_end_c1_point", "positive_end_c2_point",
    "positive_end_point",
};

using RecordBytes = std::array<std::byte, sizeof(_QM_R7_Bezier_Sequence)>;
using Words = std::vector<std::string>;

/// The lines of one block of the file, each without its key.
struct Vector {
    std::string name;
    std::vector<Words> moves;
    std::map<std::string, Words, std::less<>> lines;
};

std::vector<Vector> read_vectors()
{
    std::vector<Vector> vectors;
    std::ifstream file(R7_TEST_DATA "/curve_vectors.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream stream(line);
        std::string key;
        stream >> key;
        const Words words{std::istream_iterator<std::string>(stream), {}};
        if (key == "curve")
            vectors.emplace_back().name = words.at(0);
        else if (key == "move")
            vectors.back().moves.push_back(words);
        else
            vectors.back().lines[key] = words;
    }
    return vectors;
}

double number(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    EXPECT_TRUE(error == std::errc() && end == text.data() + text.size()) << text;
    return value;
}

CurvePoints listed_points(const Vector& vector)
{
    CurvePoints points;
    const Words& words = vector.lines.at(kWide ? "points64" : "points32");
    for (std::size_t i = 0; i < kCurvePoints; ++i) {
        const std::string_view word = words.at(i);
        const std::size_t comma = word.find(',');
        points[i] = {static_cast<PointCoordinate>(number(word.substr(0, comma))),
                     static_cast<PointCoordinate>(number(word.substr(comma + 1)))};
    }
    return points;
}

void move(BezierCurve& curve, const Words& words)
{
    const auto* const name = std::find(kPointNames, std::end(kPointNames), words.at(0));
    curve.set_point_to_in_amplitude_to_out_amplitude(static_cast<CurvePoint>(name - kPointNames),
                                                     static_cast<float>(number(words.at(1))),
                                                     static_cast<float>(number(words.at(2))));
}

std::string hexadecimal(const _QM_R7_Bezier_Sequence& record)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const std::byte byte : std::bit_cast<RecordBytes>(record)) {
        text += kDigits[std::to_integer<unsigned>(byte) >> 4];
        text += kDigits[std::to_integer<unsigned>(byte) & 15];
    }
    return text;
}

TEST(CurveVectors, MovesLeadToTheListedPoints)
{
    for (const Vector& vector : read_vectors()) {
        if (vector.moves.empty()) continue;
        BezierCurve curve;
        for (const Words& words : vector.moves) move(curve, words);
        const CurvePoints listed = listed_points(vector);
        for (std::size_t i = 0; i < kCurvePoints; ++i) {
            EXPECT_EQ(curve.points()[i].x, listed[i].x) << vector.name << ' ' << kPointNames[i];
            EXPECT_EQ(curve.points()[i].y, listed[i].y) << vector.name << ' ' << kPointNames[i];
        }
    }
}

TEST(CurveVectors, PointsGiveTheListedCoefficientsAndRecord)
{
    const std::vector<Vector> vectors = read_vectors();
    EXPECT_GE(vectors.size(), 9U);
    for (const Vector& vector : vectors) {
        BezierCurve curve;
        curve.set_points(listed_points(vector));
        curve.update_coeffs();
        const auto expect_listed = [&](std::string_view name, std::size_t index, double value) {
            EXPECT_EQ(value, number(vector.lines.find(name)->second.at(index)))
                << vector.name << ' ' << name << '[' << index << ']';
        };
        const CurveCoefficients& k = curve.coefficients();
        if (kWide) {
            expect_listed("pos_M", 0, k.pos_M);
            expect_listed("pos_Intercept", 0, k.pos_Intercept);
            for (const auto& field : kSegmentPairFields<CurveCoefficients>)
                for (const std::size_t i : {0U, 1U}) expect_listed(field.name, i, (k.*field.pair)[i]);
        }
        auto record = std::bit_cast<_QM_R7_Bezier_Sequence>(RecordBytes{}); // the padding is zero, too
        curve.export_sequence_data(record);
        EXPECT_EQ(hexadecimal(record), vector.lines.at(kWide ? "record64" : "record32").at(0)) << vector.name;
    }
}

} // namespace
} // namespace r7
