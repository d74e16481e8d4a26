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
    const double length = way.x * way.x + way.y * way.y;
    const double t = length > 0.0 ? ((p.x - a.x) * way.x + (p.y - a.y) * way.y) / length : 0.0;
    const double u = std::clamp(t, 0.0, 1.0);
    return std::hypot(p.x - a.x - way.x * u, p.y - a.y - way.y * u);
}

// How often a closed polygon winds around a point.
int winding_number(const Line& polygon, Point p)
{
    int winding = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
        if ((a.y <= p.y) == (b.y <= p.y)) continue;
        const double x = a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x);
        if (x > p.x) winding += b.y > a.y ? 1 : -1;
    }
    return winding;
}

struct PolylineTest : testing::Test {
    std::mt19937 random{20260722};
    double number(double from, double to) { return std::uniform_real_distribution(from, to)(random); }
    Point point(double reach) { return {number(-reach, reach), number(-reach, reach)}; }
};

TEST_F(PolylineTest, SimplifyKeepsEveryDroppedVertexWithinTheTolerance)
{
    constexpr double kTolerance = 0.05;
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
        ASSERT_EQ(simple.front(), line.front());
        ASSERT_EQ(simple.back(), line.back());
        std::size_t next = 1;
        for (std::size_t i = 1; i < line.size(); ++i) {
            ASSERT_LE(distance_to_segment(line[i], simple[next - 1], simple[next]), kTolerance + 1e-9)
                << "round " << round << ", vertex " << i;
            if (line[i] == simple[next] && next + 1 < simple.size()) ++next;
        }
        ASSERT_EQ(next + 1, simple.size()) << "what is kept is a part of the line, in its order";
    }
}

TEST_F(PolylineTest, SimplifyDropsWhatNobodySees)
{
    Line straight, circle;
    for (int i = 0; i <= 1000; ++i) {
        straight.push_back({i * 0.3, 7.0 - i * 0.1});
        circle.push_back({100 * std::cos(i * 0.006), 100 * std::sin(i * 0.006)});
    }
    simplify(straight, 0.05);
    EXPECT_EQ(straight.size(), 2u);
    simplify(circle, 0.05);
    EXPECT_GT(circle.size(), 60u); // chords of a sagitta of 0.05: 99 of them
    EXPECT_LT(circle.size(), 150u);

    Line spike{{0, 0}, {5, 0}, {20, 0}, {5, 0}, {0, 0}, {0, 0}};
    simplify(spike, 0.05);
    EXPECT_EQ(spike, (Line{{0, 0}, {20, 0}, {0, 0}})) << "a turning back stays";
}

TEST_F(PolylineTest, ClippedPolygonsWindAsBeforeInsideTheBox)
{
    const Box box{-10, -8, 12, 9};
    Line scratch;
    for (int round = 0; round < 300; ++round) {
        const double reach = std::pow(10.0, number(0.5, 6));
        Line polygon(3 + random() % 9);
        for (Point& vertex : polygon) vertex = random() % 3 ? point(reach) : point(12);
        Line clipped = polygon;
        clip_polygon(clipped, box, scratch);
        for (const Point vertex : clipped) {
            ASSERT_TRUE(vertex.x >= box.left && vertex.x <= box.right) << vertex.x;
            ASSERT_TRUE(vertex.y >= box.top && vertex.y <= box.bottom) << vertex.y;
        }
        for (int i = 0; i < 50; ++i) {
            const Point inside{number(-9.99, 11.99), number(-7.99, 8.99)};
            ASSERT_EQ(winding_number(clipped, inside), winding_number(polygon, inside)) << "round " << round;
        }
    }
}

TEST_F(PolylineTest, ClippedSegmentsAreTheirPartInTheBox)
{
    const Box box{-10, -8, 12, 9};
    const auto is_inside = [&](Point p, double margin) {
        return p.x >= box.left - margin && p.x <= box.right + margin && p.y >= box.top - margin &&
               p.y <= box.bottom + margin;
    };
    int cut = 0;
    for (int round = 0; round < 2000; ++round) {
        const Point a = point(30), b = random() % 4 ? point(30) : Point{a.x, number(-30, 30)};
        Point from = a, to = b;
        const bool any = clip_segment(from, to, box);
        if (any) {
            ASSERT_TRUE(is_inside(from, 1e-9) && is_inside(to, 1e-9));
            ASSERT_LT(distance_to_segment(from, a, b) + distance_to_segment(to, a, b), 1e-9);
            ASSERT_EQ(from == a, is_inside(a, 0.0));
            ASSERT_EQ(to == b, is_inside(b, 0.0));
            cut += from != a;
        }
        for (double t = 0.0; t <= 1.0; t += 0.01) {
            const Point p{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
            if (!is_inside(p, -1e-9)) continue;
            ASSERT_TRUE(any && distance_to_segment(p, from, to) < 1e-9) << "round " << round;
        }
    }
    EXPECT_GT(cut, 100);
}

} // namespace
} // namespace r7
