// The waveshaper's editor and display: what they paint, what they pick, and that they allocate nothing.
#include "tests/support/counted_allocations.h"
#include "tests/support/recording_graphics.h"
#include "waveshaper/bezier_wave_shaper_response_view.h"
#include "waveshaper/bezier_wave_shaper_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace r7 {

/// What was painted into the images that the views made, in words. In the place of a drawing back end, an
/// image is as high as its number here, to be told by that.
static std::vector<std::string> pictures;

ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    RecordingGraphics graphics;
    paint(graphics);
    pictures.push_back(graphics.words());
    return fake_image(size.width, static_cast<double>(pictures.size() - 1));
}

namespace {

using enum CurvePoint;
using Display = QM_BezierWaveShaperResponseView;

/// The view brought up to date and painted, as its window would.
struct Painting {
    RecordingGraphics graphics;
    explicit Painting(View& view)
    {
        view.update_geometry();
        view.drawRect(graphics, view.bounds());
    }
    std::string words() const { return graphics.words(); }
    const DrawCall& call(std::size_t index) const { return graphics.calls.at(index); }
};

struct Owner final : ActionTarget {
    int told = 0;
    static void tell(ActionTarget& target, View&) { ++static_cast<Owner&>(target).told; }
};

/// An editor at (20, 30) in its window, whose graph shows -2 to 2 on both axes in 400 x 400 points from (5,
/// 5).
struct EditorRig {
    std::shared_ptr<Owner> owner = std::make_shared<Owner>();
    QM_BezierWaveShaperView view{{20, 30, 410, 410}};

    EditorRig()
    {
        view.set_amplitude_in_scale_out_scale(2, 2);
        view.set_color_background(Color::device_white(0, 0.6));
        view.set_callback_onObject(&Owner::tell, owner);
        view.set_toggle_callback_onObject(&Owner::tell, owner);
        view.awakeFromNib();
    }
    void move(CurvePoint which, float in, float out)
    {
        view.set_point_to_in_amplitude_to_out_amplitude(which, in, out);
    }
    Point amplitudes(CurvePoint which) const
    {
        const auto [x, y] = view.curve().point(which);
        return {x, y};
    }
    Point place(CurvePoint which) const { return view.position_for_amplitudes(amplitudes(which)); }
    void press(Point at) { view.mouseDown({.location_in_window = {at.x + 20, at.y + 30}}); }
    /// A digit for each point that is picked, the zero point's first.
    std::string picks() const
    {
        std::string digits;
        for (std::size_t i = 0; i < kCurvePoints; ++i)
            digits += view.is_moving(static_cast<CurvePoint>(i)) ? '1' : '0';
        return digits;
    }
};

void expect_near(Point actual, Point expected)
{
    EXPECT_NEAR(actual.x, expected.x, 2e-3);
    EXPECT_NEAR(actual.y, expected.y, 2e-3);
}

TEST(WaveShaperViews, AllocateNothingAfterTheirCreation)
{
    EditorRig rig;
    Display display({0, 0, 120, 90});
    _QM_R7_Bezier_Sequence record{};
    const std::size_t before = allocations();
    for (int round = 0; round < 50; ++round) {
        rig.press(rig.place(positive_mid_c1_point));
        rig.view.mouseDragged({.delta_x = 1.0 * round, .delta_y = 3.0 * round - 75.0});
        rig.view.make_db_scale();
        rig.view.set_sine_pregain(static_cast<float>(round));
        rig.view.export_sequence_data(record);
        display.set_from_sequence_data(record);
        display.update_input_level(round);
        rig.view.set_from_sequence_data(record);
        rig.view.update_geometry();
        display.update_geometry();
    }
    EXPECT_EQ(allocations(), before);
    display.set_mode_string("B"); // a new label is a new image, so the counter must count
    EXPECT_GT(allocations(), before);
    const std::size_t labelled = allocations();
    for (const char* mode : {"-", "B"}) display.set_mode_string(mode);
    EXPECT_EQ(allocations(), labelled) << "a label that was shown is kept";
}

TEST(WaveShaperEditor, IsPressedAtItsPointsAndElseAtItsButtons)
{
    const struct {
        Point end, at; // where the end point is, in amplitudes, and where the press is
        const char* picked;
        int toggles;
    } kRows[] = {
        {{1, 0}, {302.5, 202.5}, "0000001", 0}, {{1, 0}, {307.5, 205}, "0000000", 0},
        {{1, 0}, {305, 207.5}, "0000000", 0},   {{1, 0}, {205, 205}, "0000000", 0}, // the zero point
        {{1, 0}, {370, 15}, "0000000", 1},      {{1, 0}, {400, 15}, "0000000", 0},
        {{1, 0}, {370, 35}, "0000000", 0},      {{1.7, -1.8}, {375, 25}, "0000001", 0},
    };
    for (const auto& row : kRows) {
        EditorRig rig;
        rig.move(positive_end_point, static_cast<float>(row.end.x), static_cast<float>(row.end.y));
        rig.press(row.at);
        EXPECT_EQ(rig.picks(), row.picked) << row.at.x;
        EXPECT_EQ(rig.owner->told, row.toggles) << row.at.x;
        // Whoever is asked to close the editor finds the coefficients computed.
        EXPECT_NEAR(rig.view.curve().coefficients().pos_M, row.toggles ? -5 : 1, 1e-5);
    }
}

TEST(WaveShaperEditor, LandsAllPickedPointsOnOneTargetAndTellsOfEach)
{
    EditorRig rig;
    constexpr CurvePoint kPoints[] = {positive_mid_c1_point, positive_mid_c2_point, positive_end_c1_point,
                                      positive_end_point};
    for (int i = 0; i < 12; ++i)
        for (const CurvePoint point : kPoints) rig.move(point, 0, 0.5F);
    rig.press(rig.place(positive_mid_c1_point));
    ASSERT_EQ(rig.picks(), "0110101");
    rig.view.mouseDragged({.delta_y = -10});
    for (const CurvePoint point : kPoints) EXPECT_EQ(rig.amplitudes(point).y, static_cast<double>(0.6F));
    EXPECT_EQ(rig.owner->told, 4);
}

TEST(WaveShaperEditor, PaintsInOrderWhatLiesWhereItIsHit)
{
    pictures.clear();
    EditorRig rig;
    rig.view.set_color_points_control_points(nullptr, nullptr);
    const auto spot = [](std::string color, std::string width, std::string from) {
        return "; stroke " + color + " width " + width + " from " + from + "; fill " + color + " from " +
               from + "; fill 1,1,1,0.4 from " + from;
    };
    const std::string expected =
        "stroke 0.75,0.75,0.75,0.5 width 2 from 5,105; clip_to 5,5,400,400; "
        "fill_rect 0,0,0,0.6 in 5,5,400,400 over; draw_image 30x0 at 370,15 over 1; "
        "draw_image 30x3 at 370,75 over 1; draw_image 30x1 at 370,45 over 1; "
        "fill 1,0,0,0.35 from -109.159271,205.000015; fill 0,0,1,0.35 from -109.159271,205.000015; "
        "fill 0,1,0,0.35 from -109.159271,205; stroke 0,0,1,1 width 2.5 from 205,205; "
        "stroke 1,1,1,0.5 width 0.5 from 205,205; stroke 1,1,0,1 width 0.5 from 205,205" +
        spot("1,1,0,1", "1", "224.166672,221.666672") + spot("1,0,0,1", "1", "307.5,305") +
        spot("0,0,1,1", "2", "207.5,205");
    EXPECT_EQ(Painting(rig.view).words(), expected);
    rig.view.make_db_scale();
    EXPECT_EQ(Painting(rig.view).call(5).words, "draw_image 30x2 at 370,45 over 1");
    rig.view.make_db_scale();

    rig.move(positive_mid_c1_point, 0, 0.9F);
    rig.view.send_update_signal();
    const Painting painting(rig.view);
    Point at[kCurvePoints];
    for (std::size_t i = 0; i < kCurvePoints; ++i) at[i] = rig.place(static_cast<CurvePoint>(i));
    const auto curve = painting.call(9).path.elements();
    ASSERT_EQ(curve.size(), 4U);
    EXPECT_EQ(curve[1].points, (std::array{at[1], at[2], at[3]}));
    EXPECT_EQ(curve[2].points, (std::array{at[4], at[5], at[6]}));
    expect_near(curve[3].end(), {1305, 1305});
    const std::array handles{at[0], at[1], at[2], at[4], at[5], at[6]};
    EXPECT_TRUE(std::ranges::equal(painting.call(11).path.elements(), handles, {}, &Path::Element::end));
    const auto ovals = painting.call(12).path.elements(); // of six elements each, which begin at the right
    for (std::size_t i = 0; i < 4; ++i)
        expect_near(ovals[6 * i].end(), {handles[i + 1].x + 2.5, handles[i + 1].y});
}

TEST(WaveShaperDisplay, ShowsItsModeAndFromTheFirstRecordOnTheResponse)
{
    pictures.clear();
    Display view({10, 20, 410, 410});
    view.set_color_background(Color::device_white(0, 1));
    EXPECT_EQ(Painting(view).graphics.calls.size(), 2U);
    view.set_from_sequence_data({});
    view.set_mode_string("C");
    view.set_mode_string(nullptr);
    const std::string expected = "fill_rect 0,0,0,1 in 5,5,400,400 over; "
                                 "stroke 0.8,0.15,0.1,1 width 2 from 5,205; "
                                 "stroke 1,1,1,0.5 width 0.5 from 5,205; "
                                 "draw_image 10x1 at 200,0 over 1";
    EXPECT_EQ(Painting(view).words(), expected);
    EXPECT_EQ(pictures.at(1), "fill_rect 0,0,0,1 in 0,0,10,15 over; "
                              "draw_text C in 0,0,10,15 center 0.333000004,0.333000004,1,1 size 9");
}

TEST(WaveShaperViews, TraceTheSineThroughTheGains)
{
    const struct {
        bool editor;
        std::size_t call;
        double level;
        float pregain, postgain;
        double peak; // points above the middle
    } kRows[] = {
        {true, 7, 1, 1, 1, 100},    {true, 6, 1, 1, 1, 100},    {true, 8, 1, 4, 0.5F, 50},
        {true, 7, 1, 0.5F, 3, 150}, {false, 1, 0.5, 4, 1, 100}, {false, 1, 0.5, 1, 3, 150},
        {false, 1, -1, 1, 1, -100},
    };
    EditorRig rig;
    rig.view.set_amplitude_in_scale_out_scale(3.1415927F, 2);
    // Level beyond full scale, so that it matters which gain comes first.
    rig.move(positive_end_c2_point, 0, 1);
    rig.view.update_coeffs();
    _QM_R7_Bezier_Sequence record{};
    rig.view.export_sequence_data(record);
    Display display({10, 20, 410, 410});
    display.set_from_sequence_data(record);
    for (const auto& row : kRows) {
        rig.view.set_sine_pregain(row.pregain), display.set_sine_pregain(row.pregain);
        rig.view.set_sine_postgain(row.postgain), display.set_sine_postgain(row.postgain);
        display.update_input_level(row.level);
        const Path path = Painting(row.editor ? static_cast<View&>(rig.view) : display).call(row.call).path;
        const auto sine = path.elements();
        ASSERT_EQ(sine.size(), row.editor ? 514U : 512U);
        expect_near(sine[0].end(), {5, 205});
        expect_near(sine[128].end(), {105, 205 - row.peak});
        expect_near(sine[384].end(), {305, 205 + row.peak});
        if (row.editor) expect_near(sine[513].end(), {5, sine[0].end().y}); // and back to its start
        // Stored in single precision, each coordinate by itself.
        EXPECT_TRUE(std::ranges::all_of(sine, [](const Path::Element& element) {
            const auto [x, y] = element.end();
            return x == static_cast<float>(x) && y == static_cast<float>(y);
        }));
    }
}

} // namespace
} // namespace r7
