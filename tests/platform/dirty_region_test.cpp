// Merging of redraw requests.
#include "platform/dirty_region.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace r7 {
namespace {

TEST(DirtyRegion, CoversEveryRequestWithFewRectanglesThatDoNotOverlap)
{
    std::mt19937 random(20260722);
    for (int round = 0; round < 300; ++round) {
        DirtyRegion region;
        std::array<Rect, 40> asked{};
        for (Rect& rect : asked) {
            const auto below = [&](int n) { return 1.0 + std::uniform_int_distribution(0, n)(random); };
            const int size = round % 2 ? 5 : 80;
            rect = {below(960), below(600), below(size), below(size)};
            region.add(rect);
        }
        ASSERT_LE(region.rects().size(), DirtyRegion::kMostRects);
        for (const Rect& rect : asked)
            ASSERT_TRUE(
                std::ranges::any_of(region.rects(), [&](auto& r) { return enclosing(r, rect) == r; }));
        for (const Rect& a : region.rects())
            for (const Rect& b : region.rects()) ASSERT_TRUE(&a == &b || intersection(a, b).is_empty());
    }
}

TEST(DirtyRegion, KeepsApartWhatDoesNotTouchAndIgnoresWhatIsNoRectangle)
{
    DirtyRegion region;
    for (const Rect& rect : {Rect{0, 0, 0, 9}, {0, 0, 9, -1}, {std::nan(""), 0, 9, 9}, {0, 0, 9, 1 / 0.0}})
        region.add(rect);
    EXPECT_TRUE(region.is_empty());
    region.add({0, 0, 10, 10});
    region.add({100, 0, 10, 10});
    EXPECT_EQ(region.rects().size(), 2u);
    region.add({5, 5, 98, 2}); // bridges them
    ASSERT_EQ(region.rects().size(), 1u);
    EXPECT_EQ(region.rects()[0], (Rect{0, 0, 110, 10}));
}

} // namespace
} // namespace r7
