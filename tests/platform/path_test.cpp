// Paths: ovals, the arc rule, flattening.
#include "platform/path.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace r7 {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kClockwise = Path::Direction::clockwise;
constexpr auto kCounterclockwise = Path::Direction::counterclockwise;

Point point_on(const Path::Element& curve, Point from, double t)
{
    const double u = 1.0 - t, a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    const auto& [p1, p2, p3] = curve.points;
    return {a * from.x + b * p1.x + c * p2.x + d * p3.x, a * from.y + b * p1.y + c * p2.y + d * p3.y};
}

// Degrees that the curves of an arc about (0, 0) turn, counterclockwise, by steps that are small enough not
// to be mistaken.
double swept(const Path& path)
{
    double sum = 0.0;
    Point at{};
    for (const Path::Element& element : path.elements()) {
        if (element.verb == Path::Verb::curve) {
            Point before = at;
            for (int i = 1; i <= 8; ++i) {
                const Point here = point_on(element, at, i / 8.0);
                sum +=
                    std::atan2(before.x * here.y - before.y * here.x, before.x * here.x + before.y * here.y);
                before = here;
            }
        }
        at = element.end();
    }
    return sum * 180.0 / 3.14159265358979;
}

TEST(Path, ArcsSweepTheDifferenceOfTheirAnglesModuloOneTurn)
{
    struct Row {
        double start, end;
        Path::Direction direction;
        double swept;
    };
    const Row rows[] = {
        {270, 270, kClockwise, 0},
        {270, 234, kClockwise, -36},
        {270, 450, kClockwise, -180},
        {270, 90, kClockwise, -180},
        {270, 324, kClockwise, -306},
        {270, 271, kClockwise, -359},
        {270, -90, kClockwise, -360},
        {270, -180, kClockwise, -360},
        {270, 630, kClockwise, -360},
        {270, 270 - 3600000.0, kClockwise, -360},
        {270, 270 + 3600090.0, kClockwise, -270},
        {270, -1e300, kClockwise, -360},
        {270, kInfinity, kClockwise, -360},
        {270, -kInfinity, kClockwise, -360},
        {0, 360, kCounterclockwise, 360},
        {0, 0, kCounterclockwise, 0},
        {-30, 30, kCounterclockwise, 60},
        {30, -30, kCounterclockwise, 300},
        {725, 90, kCounterclockwise, 85},
        {10, 1000, kCounterclockwise, 360},
    };
    for (const Row& row : rows) {
        Path path;
        path.append_arc({0, 0}, 7.0, row.start, row.end, row.direction);
        EXPECT_NEAR(swept(path), row.swept, 1e-6) << row.start << " -> " << row.end;
        EXPECT_LE(path.elements().size(), 5u) << "ten thousand turns cost no more than one";
        ASSERT_FALSE(path.is_empty());
        EXPECT_EQ(path.elements()[0].verb, Path::Verb::move);
        const double radians = std::fmod(row.start, 360.0) * 3.14159265358979 / 180.0;
        EXPECT_NEAR(path.elements()[0].points[0].x, 7.0 * std::cos(radians), 1e-9);
        EXPECT_NEAR(path.elements()[0].points[0].y, 7.0 * std::sin(radians), 1e-9);
    }
}

TEST(Path, AnArcWithoutAPlaceAddsNothing)
{
    for (const auto& [start, end] : {std::pair(kNaN, 90.0), {0.0, kNaN}, {kInfinity, 90.0}, {kNaN, kNaN}}) {
        Path path;
        path.move_to({3, 4});
        path.append_arc({0, 0}, 7.0, start, end, kClockwise);
        EXPECT_EQ(path.elements().size(), 1u) << start << " -> " << end;
        EXPECT_EQ(path.current_point(), (Point{3, 4}));
    }
}

TEST(Path, ALineLeadsToAnArcAndACloseLeadsBack)
{
    Path path;
    path.move_to({0, -9});
    path.append_arc({0, 0}, 7.0, 270, 180, kClockwise);
    ASSERT_EQ(path.elements().size(), 3u);
    EXPECT_EQ(path.elements()[1].verb, Path::Verb::line);
    EXPECT_NEAR(path.elements()[1].points[0].y, -7.0, 1e-12);
    path.close();
    EXPECT_EQ(path.current_point(), (Point{0, -9}));
    path.remove_all_points();
    EXPECT_TRUE(path.is_empty());
    EXPECT_EQ(path.current_point(), (Point{}));
}

TEST(Path, OvalsAreClosedCubicsOnTheEllipse)
{
    Path path;
    path.append_oval({10, 20, 60, 30});
    ASSERT_EQ(path.elements().size(), 6u);
    EXPECT_EQ(path.elements()[0].points[0], (Point{70, 35}));
    EXPECT_EQ(path.elements()[5].verb, Path::Verb::close);
    Point at = path.elements()[0].end();
    for (std::size_t i = 1; i <= 4; ++i) {
        for (double t = 0.0; t <= 1.0; t += 0.05) {
            const Point p = point_on(path.elements()[i], at, t);
            EXPECT_NEAR(std::hypot((p.x - 40) / 30, (p.y - 35) / 15), 1.0, 3e-4);
        }
        at = path.elements()[i].end();
    }
}

TEST(Path, FlatteningStaysWithinTheTolerance)
{
    std::mt19937 random(20260722);
    const auto number = [&](double reach) { return std::uniform_real_distribution(-reach, reach)(random); };
    for (int round = 0; round < 200; ++round) {
        const double reach = std::pow(10.0, 1.0 + round % 4), tolerance = round % 2 ? 0.1 : 0.02;
        Path path, flat;
        path.line_width = 2.5;
        path.move_to({number(reach), number(reach)});
        path.curve_to({number(reach), number(reach)}, {number(reach), number(reach)},
                      {number(reach), number(reach)});
        path.flatten_into(flat, tolerance);
        EXPECT_EQ(flat.line_width, 2.5);
        ASSERT_EQ(flat.current_point(), path.current_point());

        // The lines divide the parameter evenly; each must be near the curve over its own share.
        const std::size_t lines = flat.elements().size() - 1;
        if (lines == 512) continue; // wider than all screens
        for (std::size_t i = 0; i < lines; ++i) {
            const Point a = flat.elements()[i].end(), b = flat.elements()[i + 1].end();
            for (double part : {0.2, 0.5, 0.8}) {
                const double t = (static_cast<double>(i) + part) / static_cast<double>(lines);
                const Point p = point_on(path.elements()[1], path.elements()[0].end(), t);
                const double length = std::hypot(b.x - a.x, b.y - a.y);
                const double off = std::abs((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) / length;
                ASSERT_LE(off, tolerance) << "round " << round;
            }
        }
    }
}

TEST(Path, FlatteningACurveThatIsNotFiniteGivesOneLine)
{
    for (const double bad : {kNaN, kInfinity, 1e308}) {
        Path path, flat;
        path.move_to({0, 0});
        path.curve_to({bad, 1}, {-bad, 1}, {5, 5});
        path.flatten_into(flat, 0.1);
        EXPECT_EQ(flat.elements().size(), 2u);
        EXPECT_EQ(flat.current_point(), (Point{5, 5}));
    }
}

} // namespace
} // namespace r7
