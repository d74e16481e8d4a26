// Which image a lamp shows, and where.
#include "controls/indicator_light_view.h"

#include "tests/controls/control_rig.h"

namespace r7 {
namespace {

TEST(Light, OnWithoutItsImageShowsOff)
{
    const ImageRef small = fake_image(10, 10), large = fake_image(120, 90), none;
    ControlRig<QmIndicatorLightView> rig;
    EXPECT_FALSE(rig.control->indicator_state());
    const auto shown = [&](const ImageRef& on, const ImageRef& off, bool state) {
        rig.control->set_indicator_image_on_off(on, off);
        rig.redraw_requested();
        rig.control->set_indicator_state(state);
        EXPECT_TRUE(rig.redraw_requested());
        return rig.drawn();
    };
    EXPECT_EQ(shown(small, large, true), "draw_image 10x10 at 45,35 over 1");
    EXPECT_EQ(shown(small, large, false), "draw_image 120x90 at -10,-5 over 1") << "overhangs on all sides";
    EXPECT_EQ(shown(none, small, true), "draw_image 10x10 at 45,35 over 1");
    EXPECT_EQ(shown(small, none, false), "");
}

// A star for each of the states -1 to 11 that shows its image, a dash for one that shows nothing.
std::string lit(auto& rig)
{
    std::string stars;
    for (int state = -1; state <= 11; ++state) {
        rig.control->set_indicator_state(state);
        EXPECT_TRUE(rig.redraw_requested());
        const std::string size = std::to_string(2 * state), x = std::to_string(50 - state);
        const std::string own = "draw_image " + size + "x80 at " + x + ",0 over 1", shown = rig.drawn();
        stars += shown == own ? '*' : shown.empty() ? '-' : '?';
    }
    return stars;
}

TEST(Light, StatesThreeToFiveNeedTheSecondImage)
{
    ImageRef i[11], none;
    for (int state = 1; state <= 10; ++state) i[state] = fake_image(2 * state, 80);

    ControlRig<QmR7FiveStateIndicatorLightView> five;
    EXPECT_EQ(five.control->indicator_state(), 1);
    five.control->set_indicator_image_one_two_three_four_five(i[1], none, i[3], none, i[5]);
    EXPECT_FALSE(five.redraw_requested());
    EXPECT_EQ(lit(five), "--*----------");
    five.control->set_indicator_image_one_two_three_four_five(none, i[2], none, none, none);
    EXPECT_EQ(lit(five), "--***-*------") << "no image leaves what is there";

    ControlRig<QmR7TenStateIndicatorLightView> ten;
    const auto set = [&](auto... images) {
        ten.control->set_indicator_image_one_two_three_four_five_six_seven_eight_nine_ten(images...);
    };
    set(i[1], none, i[3], i[4], i[5], i[6], i[7], none, i[9], i[10]);
    EXPECT_EQ(lit(ten), "--*----**-**-");
    set(none, i[2], none, none, none, none, none, i[8], none, none);
    EXPECT_EQ(lit(ten), "--**********-");
}

} // namespace
} // namespace r7
