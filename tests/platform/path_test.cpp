// Paths: ovals, the arc rule, flattening.
#include "platform/path.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace r7 {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Point point_on(const Path::Element& curve, Point from, double t)
{
    const double u = 1.0 - t, a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    const auto& [p1, p2, p3] = curve.points;
    return {a * from.x + b * p1.x + c * p2.x + d * p3.x, a * from.y + b * p1.y + c * p2.y + d * p3.y};
}

// Degrees that the curves of a path turn about (0, 0), counterclockwise.
double swept(const Path& path)
{
    double sum = 0.0;
    Point at{};
    for (const Path::Element& element : path.elements()) {
        for (int i = 0; i < 8 && element.verb == Path::Verb::curve; ++i) {
            const Point a = point_on(element, at, i / 8.0), b = point_on(element, at, (i + 1) / 8.0);
            EXPECT_NEAR(std::hypot(a.x, a.y), 7.0, 0.003);
            sum += std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y);
        }
        at = element.end();
    }
    return sum * 180.0 / 3.14159265358979;
}

TEST(Path, ArcsSweepTheDifferenceOfTheirAnglesModuloOneTurn)
{
    struct Row {
        double start, end, swept;
        Path::Direction direction = Path::Direction::clockwise;
    };
    constexpr auto kCounterclockwise = Path::Direction::counterclockwise;
    const Row rows[] = {
        {270, 270, 0},
        {270, 234, -36},
        {270, 450, -180},
        {270, 271, -359},
        {270, -90, -360},
        {270, 630, -360},
        {270, 270 - 3600000.0, -360},
        {270, 270 + 3600090.0, -270},
        {270, -1e300, -360},
        {270, kInfinity, -360},
        {270, -kInfinity, -360},
        {0, 360, 360, kCounterclockwise},
        {30, -30, 300, kCounterclockwise},
        {725, 90, 85, kCounterclockwise},
    };
    for (const Row& row : rows) {
        Path path;
        path.append_arc({0, 0}, 7.0, row.start, row.end, row.direction);
        EXPECT_NEAR(swept(path), row.swept, 1e-6) << row.start << " -> " << row.end;
        EXPECT_LE(path.elements().size(), 5u) << "ten thousand turns cost no more than one";
        const double start = std::fmod(row.start, 360.0) * 3.14159265358979 / 180.0;
        EXPECT_NEAR(path.elements()[0].end().x, 7.0 * std::cos(start), 1e-9);
        EXPECT_NEAR(path.elements()[0].end().y, 7.0 * std::sin(start), 1e-9);
    }
    for (const auto& [start, end] : {std::pair(kNaN, 90.0), {0.0, kNaN}, {kInfinity, 90.0}}) {
        Path path;
        path.append_arc({0, 0}, 7.0, start, end, Path::Direction::clockwise);
        EXPECT_TRUE(path.is_empty()) << start << " -> " << end;
    }
}

TEST(Path, FlatteningStaysWithinTheTolerance)
{
    std::mt19937 random(20260722);
    for (int round = 0; round < 200; ++round) {
        const double reach = std::pow(10.0, 1.0 + round % 3), tolerance = round % 2 ? 0.1 : 0.02;
        const auto number = [&] { return std::uniform_real_distribution(-reach, reach)(random); };
        Path path, flat;
        path.line_width = 2.5;
        path.move_to({number(), number()});
        path.curve_to({number(), number()}, {number(), number()}, {number(), number()});
        path.flatten_into(flat, tolerance);
        EXPECT_EQ(flat.line_width, 2.5);
        // The lines divide the parameter evenly; each must be near the curve over its own share.
        const std::size_t lines = flat.elements().size() - 1;
        for (std::size_t i = 0; i < lines; ++i) {
            const Point a = flat.elements()[i].end(), b = flat.elements()[i + 1].end();
            const double t = (static_cast<double>(i) + 0.5) / static_cast<double>(lines);
            const Point p = point_on(path.elements()[1], path.elements()[0].end(), t);
            const double twice_area = std::abs((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x));
            ASSERT_LE(twice_area, tolerance * std::hypot(b.x - a.x, b.y - a.y)) << "round " << round;
        }
    }
}

} // namespace
} // namespace r7
