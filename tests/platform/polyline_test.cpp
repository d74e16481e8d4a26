// Simplification of lines.
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

TEST(Polyline, SimplifyKeepsEveryDroppedVertexWithinTheTolerance)
{
    std::mt19937 random(20260722);
    const auto number = [&](double from, double to) {
        return std::uniform_real_distribution(from, to)(random);
    };
    constexpr double kTolerance = 0.05;
    std::size_t vertices = 0;
    for (int round = 0; round < 300; ++round) {
        // From smooth curves to noise, with steps of very different lengths.
        const double noise = std::pow(10.0, number(-4, 0)), bend = number(0, 0.3);
        Line line{{number(-10, 10), number(-10, 10)}};
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

} // namespace
} // namespace r7
