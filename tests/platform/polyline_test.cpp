// Simplification and clipping of lines and polygons.
#include "platform/cairo/polyline.h"

#include <gtest/gtest.h>

#include <random>

namespace r7 {
namespace {

using Line = std::vector<Point>;

double distance_to_segment(Point p, Point a, Point b)
{
    const Point way{b.x - a.x, b.y - a.y};
    const double length = std::max(way.x * way.x + way.y * way.y, 1e-300);
    const double t = std::clamp(((p.x - a.x) * way.x + (p.y - a.y) * way.y) / length, 0.0, 1.0);
    return std::hypot(p.x - a.x - way.x * t, p.y - a.y - way.y * t);
}

int winding_number(const Line& polygon, Point p)
{
    int winding = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
        if ((a.y <= p.y) == (b.y <= p.y)) continue;
        if (a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x) > p.x) winding += b.y > a.y ? 1 : -1;
    }
    return winding;
}

struct Polyline : testing::Test {
    std::mt19937 random{20260722};
    const Box box{-10, -8, 12, 9};
    double number(double from, double to) { return std::uniform_real_distribution(from, to)(random); }
    Point point(double reach) { return {number(-reach, reach), number(-reach, reach)}; }
};

TEST_F(Polyline, SimplifyKeepsEveryDroppedVertexWithinTheTolerance)
{
    constexpr double kTolerance = 0.05;
    std::size_t vertices = 0;
    for (int round = 0; round < 300; ++round) {
        // From smooth curves to noise, with steps of very different lengths.
        const double noise = std::pow(10.0, number(-4, 0)), bend = number(0, 0.3);
        Line line{point(10)};
        for (double angle = 0; line.size() < 300; angle += number(-0.02, bend)) {
            const double step = std::pow(10.0, number(-2, 0.5));
            line.push_back({line.back().x + std::cos(angle) * step + number(-noise, noise),
                            line.back().y + std::sin(angle) * step + number(-noise, noise)});
        }
        Line simple = line;
        simplify(simple, kTolerance);
        vertices += simple.size();
        ASSERT_EQ(simple.front(), line.front());
        std::size_t next = 1;
        for (std::size_t i = 1; i < line.size(); ++i) {
            ASSERT_LE(distance_to_segment(line[i], simple[next - 1], simple[next]), kTolerance + 1e-9)
                << "round " << round << ", vertex " << i;
            if (line[i] == simple[next] && i + 1 < line.size()) ++next;
        }
        ASSERT_EQ(next + 1, simple.size()) << "what is kept is a part of the line, in its order";
    }
    EXPECT_LT(vertices, 300u * 300u * 2 / 3);

    Line spike{{0, 0}, {5, 0}, {20, 0}, {5, 0}, {0, 0}, {0, 0}};
    simplify(spike, kTolerance);
    EXPECT_EQ(spike, (Line{{0, 0}, {20, 0}, {0, 0}})) << "a turning back stays";
}

TEST_F(Polyline, ClippedPolygonsWindAsBeforeInsideTheBox)
{
    Line scratch;
    for (int round = 0; round < 300; ++round) {
        const double reach = std::pow(10.0, number(0.5, 6));
        Line polygon(3 + random() % 9);
        for (Point& vertex : polygon) vertex = random() % 3 ? point(reach) : point(12);
        Line clipped = polygon;
        clip_polygon(clipped, box, scratch);
        for (const Point p : clipped)
            ASSERT_TRUE(p.x >= box.left && p.x <= box.right && p.y >= box.top && p.y <= box.bottom);
        for (int i = 0; i < 50; ++i) {
            const Point inside{number(-9.99, 11.99), number(-7.99, 8.99)};
            ASSERT_EQ(winding_number(clipped, inside), winding_number(polygon, inside)) << "round " << round;
        }
    }
}

} // namespace
} // namespace r7
