// The controls' pictures, bounds and redraws; the sessions play their gestures.
#include "controls/indicator_light_view.h"
#include "controls/push_mode_knob_view.h"
#include "controls/round_target_cursor.h"
#include "platform/window.h"
#include "tests/support/recording_graphics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <set>

namespace r7 {

// In the place of a back end: each picture that is read is a point wider than the one before, from 1 on.
ImageRef Image::from_png_file(const std::filesystem::path& path)
{
    static int pictures = 0;
    return path.extension() == ".xml" ? nullptr : fake_image(++pictures, 8);
}
ImageRef Image::painted(Size size, const std::function<void(Graphics&)>&)
{
    return fake_image(size.width, size.height);
}

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <typename Control>
struct Rig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 200, 150});
    std::shared_ptr<Control> control = std::make_shared<Control>(Rect{30, 20, 100, 80});

    Rig() { window->set_content_view(control); }
    /// Whether `change` makes the control ask for a redraw.
    bool redraws(auto&& change)
    {
        window->take_dirty_region();
        change(*control);
        return !window->take_dirty_region().is_empty();
    }
    std::string drawn()
    {
        RecordingGraphics graphics;
        control->update_geometry();
        control->drawRect(graphics, control->bounds());
        return graphics.words();
    }
};

TEST(Knob, TakesItsRangeInOrderAndKeepsItsValueWithin)
{
    const double rows[][8] = {
        // minimum, maximum, default and value as given to a knob at 0, and as they then are
        {0, 2, 1, 7, 0, 2, 1, 2},          {1, 2, 5, -7, 1, 2, 2, 1},
        {0, -1, 5, 0, -1, -1, -1, -1},     {-3, -2, -9, kNaN, -3, -2, -3, kNaN},
        {kNaN, 3, 0, kNaN, 3, 3, 3, kNaN}, {0, kNaN, 7, 5, kNaN, kNaN, 7, 5},
    };
    for (const auto& row : rows) {
        QmKnobView knob({});
        knob.set_values_minimum_maximum_default_value(row[0], row[1], row[2]);
        EXPECT_FALSE(knob.current_value() < row[4] || knob.current_value() > row[5]);
        knob.set_current_value(row[3]);
        const double stored[] = {knob.minimum_value(), knob.maximum_value(), knob.default_value(),
                                 knob.current_value()};
        for (int i = 0; i < 4; ++i) EXPECT_EQ(text_of(stored[i]), text_of(row[4 + i])) << i;
    }
}

TEST(Knob, MarkerSweepsClockwiseFromLowerLeftAndShowsWhetherItIsHeld)
{
    const ImageRef on = fake_image(8, 8), off = fake_image(6, 4), none;
    const struct {
        double value, inset;
        ImageRef on, off;
        bool held;
        const char* marker;
    } rows[] = {
        {0.0, 0.25, none, off, false, "draw_image 6x4 at 36.3933983,32.3933983 over 1"},
        {0.5, 0.25, none, off, true, "draw_image 6x4 at 47,58 over 1"},
        {1.0, 0.00, on, off, true, "draw_image 8x8 at 60.1421356,26.8578644 over 1"},
        {0.5, 0.25, on, none, false, "fill 0,0,0,1 from 51.5,60"}, // the right end of a dot
        {kNaN, 0.25, none, off, false, "draw_image 6x4 at nan,nan over 1"},
    };
    Rig<QmKnobView> rig;
    EXPECT_EQ(rig.drawn(), "");
    rig.control->set_knob_image(fake_image(40, 30)); // taken as round: the marker goes round 50,45
    for (const auto& row : rows) {
        EXPECT_TRUE(rig.redraws([&](QmKnobView& knob) { knob.set_current_value(row.value); }));
        rig.control->set_percent_inset_for_marker(row.inset);
        rig.control->set_marker_image_on_off(row.on, row.off);
        row.held ? rig.control->mouseDown({}) : rig.control->mouseUp({});
        EXPECT_EQ(rig.drawn(), std::string("draw_image 40x30 at 30,25 over 1; ") + row.marker);
    }
}

TEST(ModeKnob, SelectionIsTheEntryAtTheValueRoundedDown)
{
    constexpr double kMost = 2147483647.0, kLeast = -2147483648.0;
    const double rows[][2] = {
        {0, 10},    {1.999, 20},          {2.7, 30},       {3, 3},           {-0.5, -1},
        {kNaN, 10}, {kMost + 0.5, kMost}, {kMost + 1, 10}, {kLeast, kLeast}, {kLeast - 0.5, 10},
    };
    QmModeKnobView knob({});
    knob.set_menu_map({10, 20, 30});
    for (const std::int32_t selection : {20, 30, 10}) {
        knob.mouseDown({.click_count = 2});
        EXPECT_EQ(knob.current_menu_selection(), selection) << "a double click goes on, and round the end";
    }
    knob.set_values_minimum_maximum_default_value(-1e300, 1e300, 0);
    for (const auto& [value, selection] : rows) {
        knob.set_current_value(value);
        EXPECT_EQ(knob.current_menu_selection(), selection) << value;
    }
    knob.set_menu_map({});
    EXPECT_EQ(knob.current_menu_selection(), -1) << "the only position of an empty map";
}

TEST(PushSwitch, PicturesFillItAndAreReplacedEachByItsOwnFile)
{
    const std::filesystem::path resources = R7_RESOURCES;
    const std::optional picture = resources / "lightball.tiff", missing = resources / "missing.png",
                        text = resources / "QmR7View.xml", none = std::optional<std::filesystem::path>();
    const struct {
        std::optional<std::filesystem::path> left, flat, right;
        const char* shown[3]; // with the left half held, at rest, and with the right half held
    } rows[] = {
        {picture, picture, picture, {"1x8", "2x8", "3x8"}},
        {missing, missing, none, {"1x8", "2x8", "3x8"}},
        {picture, text, none, {"4x8", "none", "3x8"}},
        // A file for the right slot lets the left picture go, even if it is missing.
        {none, picture, missing, {"none", "5x8", "3x8"}},
    };
    Rig<QmR7PushModeKnobView> rig;
    rig.control->set_frame({30, 20, 400, 80}); // the halves stay those of the first frame
    for (const auto& row : rows) {
        rig.control->set_image_urls_left_flat_right(row.left, row.flat, row.right);
        for (const int i : {0, 1, 2}) {
            const MouseEvent press{.location_in_window = {40.0 + 40 * i, i == 1 ? 0.0 : 50.0}};
            EXPECT_TRUE(rig.redraws([&](View& view) { view.mouseDown(press); }));
            EXPECT_EQ(rig.drawn(),
                      std::string("draw_image_in_rect ") + row.shown[i] + " in 0,0,400,80 over 1");
        }
    }
}

TEST(Light, StatesThreeToFiveNeedTheSecondImage)
{
    const ImageRef large = fake_image(120, 90), none;
    Rig<QmIndicatorLightView> lamp;
    lamp.control->set_indicator_image_on_off(none, large);
    EXPECT_TRUE(lamp.redraws([](QmIndicatorLightView& light) { light.set_indicator_state(true); }));
    EXPECT_EQ(lamp.drawn(), "draw_image 120x90 at -10,-5 over 1") << "off in the place of on";

    // A star for each of the states -1 to 11 that shows its image, a dash for one that shows nothing.
    const auto lit = [](auto& rig) {
        std::string stars;
        for (int state = -1; state <= 11; ++state) {
            EXPECT_TRUE(rig.redraws([&](auto& light) { light.set_indicator_state(state); }));
            const std::string drawn = rig.drawn();
            const bool own = drawn.starts_with("draw_image " + std::to_string(state) + "x80");
            stars += own ? '*' : drawn.empty() ? '-' : '?';
        }
        return stars;
    };
    ImageRef i[11];
    for (int state = 1; state <= 10; ++state) i[state] = fake_image(state, 80);
    Rig<QmR7FiveStateIndicatorLightView> five;
    five.control->set_indicator_image_one_two_three_four_five(i[1], none, i[3], none, i[5]);
    EXPECT_EQ(lit(five), "--*----------");
    five.control->set_indicator_image_one_two_three_four_five(none, i[2], none, none, none);
    EXPECT_EQ(lit(five), "--***-*------") << "no image leaves what is there";
    Rig<QmR7TenStateIndicatorLightView> ten;
    ten.control->set_indicator_image_one_two_three_four_five_six_seven_eight_nine_ten(
        i[1], none, i[3], i[4], i[5], i[6], i[7], i[8], i[9], i[10]);
    EXPECT_EQ(lit(ten), "--*----*****-");
}

TEST(RoundTarget, HasACursorForEachOfElevenStepsOfItsArc)
{
    // Where the steps begin, and where their arcs end, in degrees.
    constexpr float kFrom[] = {-1e30f, 0.05f, 0.15f, 0.25f, 0.35f, 0.45f,
                               0.55f,  0.65f, 0.75f, 0.85f, 0.95f, 1e30f};
    constexpr double kEnds[] = {270, 234, 198, 162, 126, 450, 90, 54, 18, 324, 271};
    std::set<CursorRef> cursors{QM_R7_Cursors::round_target_cursor(),
                                QM_R7_Cursors::round_target_cursor_at_fraction(static_cast<float>(kNaN))};
    for (std::size_t step = 0; step < 11; ++step) {
        Path arc;
        arc.append_arc({12, 12}, 7, 270, kEnds[step], Path::Direction::clockwise);
        for (const float fraction : {kFrom[step], std::nextafter(kFrom[step + 1], 0.0f)}) {
            RecordingGraphics target;
            paint_round_target(target, fraction);
            EXPECT_EQ(target.words(),
                      "fill 1,1,1,0.330000013 from 24,12; stroke 1,0,0,0.85 width 2.5 from 12,5; "
                      "stroke 0,0,0,0.899999976 width 2 from 15,12");
            EXPECT_TRUE(std::ranges::equal(target.calls.at(1).path.elements(), arc.elements())) << fraction;
            cursors.insert(QM_R7_Cursors::round_target_cursor_at_fraction(fraction));
        }
    }
    EXPECT_EQ(cursors.size(), 12u);
}

} // namespace
} // namespace r7
