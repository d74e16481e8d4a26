// The round target's layers, steps and identity.
#include "controls/round_target_cursor.h"

#include "tests/support/recording_graphics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

namespace r7 {
namespace {

TEST(RoundTarget, IsADiscAnArcOfElevenStepsAndTwoRingsWithACursorEach)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const std::string disc = "fill 1,1,1,0.330000013 from 24,12; ";
    const std::string rings = "stroke 0,0,0,0.899999976 width 2 from 15,12";
    RecordingGraphics plain;
    paint_round_target(plain, std::nullopt);
    EXPECT_EQ(plain.words(), disc + rings);

    std::set<CursorRef> cursors{QM_R7_Cursors::round_target_cursor(), QM_R7_Cursors::round_target_cursor()};
    const struct {
        float from; // where the step begins
        double end_degrees;
    } rows[] = {{-kInfinity, 270}, {0.05f, 234}, {0.15f, 198}, {0.25f, 162}, {0.35f, 126}, {0.45f, 450},
                {0.55f, 90},       {0.65f, 54},  {0.75f, 18},  {0.85f, 324}, {0.95f, 271}, {kInfinity, 271}};
    for (std::size_t step = 0; step < 11; ++step) {
        Path arc;
        arc.append_arc({12, 12}, 7, 270, rows[step].end_degrees, Path::Direction::clockwise);
        for (const float fraction : {rows[step].from, std::nextafter(rows[step + 1].from, 0.0f)}) {
            RecordingGraphics target;
            paint_round_target(target, fraction);
            EXPECT_EQ(target.words(), disc + "stroke 1,0,0,0.85 width 2.5 from 12,5; " + rings);
            EXPECT_TRUE(std::ranges::equal(target.calls.at(1).path.elements(), arc.elements())) << fraction;
            cursors.insert(QM_R7_Cursors::round_target_cursor_at_fraction(fraction));
        }
    }
    EXPECT_EQ(cursors.size(), 12u);
    EXPECT_EQ(QM_R7_Cursors::round_target_cursor_at_fraction(std::numeric_limits<float>::quiet_NaN()),
              QM_R7_Cursors::round_target_cursor_at_fraction(0.0f));
    for (const CursorRef& cursor : cursors) {
        EXPECT_EQ(cursor->image->size(), (Size{24, 24}));
        EXPECT_EQ(cursor->hot_spot, (Point{12, 12}));
    }
}

} // namespace
} // namespace r7
