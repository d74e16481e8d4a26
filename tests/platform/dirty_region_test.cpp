// Merging of redraw requests.
#include "platform/dirty_region.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace r7 {
namespace {

TEST(DirtyRegion, CoversEveryRequestWithFewRectanglesThatDoNotOverlap)
{
    std::mt19937 random(20260722);
    const auto number = [&](double to) { return std::uniform_real_distribution(0.0, to)(random); };
    bool overflowed = false;
    for (int round = 0; round < 300; ++round) {
        DirtyRegion region;
        std::vector<Rect> asked;
        const double size = round % 2 ? 5.0 : 80.0;
        for (int i = 0; i < 40; ++i) {
            // Sixteenths of points, so that sums are exact.
            const auto sixteenths = [&](double to) { return std::round(number(to) * 16) / 16; };
            asked.push_back({sixteenths(960), sixteenths(600), sixteenths(size) + 1, sixteenths(size) + 1});
            region.add(asked.back());
            ASSERT_LE(region.rects().size(), DirtyRegion::kMostRects);
            overflowed |= i > 20 && region.rects().size() == 1;
        }
        for (const Rect& rect : asked) {
            bool covered = false;
            for (const Rect& whole : region.rects()) covered |= enclosing(whole, rect) == whole;
            ASSERT_TRUE(covered) << "round " << round;
        }
        for (const Rect& a : region.rects())
            for (const Rect& b : region.rects())
                ASSERT_TRUE(&a == &b || intersection(a, b).is_empty()) << "round " << round;
    }
    EXPECT_TRUE(overflowed);
}

TEST(DirtyRegion, KeepsApartWhatDoesNotTouch)
{
    DirtyRegion region;
    region.add({0, 0, 10, 10});
    region.add({100, 0, 10, 10});
    EXPECT_EQ(region.rects().size(), 2u);
    region.add({5, 5, 98, 2}); // bridges them
    ASSERT_EQ(region.rects().size(), 1u);
    EXPECT_EQ(region.rects()[0], (Rect{0, 0, 110, 10}));
    region.clear();
    EXPECT_TRUE(region.is_empty());
}

TEST(DirtyRegion, IgnoresWhatIsNoRectangle)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    DirtyRegion region;
    for (const Rect& rect : {Rect{0, 0, 0, 10},
                             {0, 0, 10, -1},
                             {kNaN, 0, 10, 10},
                             {0, 0, kNaN, 10},
                             {0, 0, kInfinity, 10},
                             {0, -kInfinity, 10, 10}})
        region.add(rect);
    EXPECT_TRUE(region.is_empty());
}

} // namespace
} // namespace r7
