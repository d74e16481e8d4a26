// What the zoomed curve editor paints, and when.
#include "tests/waveshaper/rig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace r7 {

ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    RecordingGraphics graphics;
    paint(graphics);
    pictures.push_back(graphics.words());
    return fake_image(size.width, static_cast<double>(pictures.size() - 1));
}

namespace {

using enum CurvePoint;

/// Where parts of the picture stand among the calls.
enum Step : std::size_t {
    kMarkerLines = 0,
    kSine3 = 6,
    kSine1 = 7,
    kSine2 = 8,
    kCurve = 9,
    kHandles = 11,
    kControlPoints = 12,
    kEndPoint = 15,
    kZeroPoint = 18,
};

void expect_near(Point actual, Point expected)
{
    EXPECT_NEAR(actual.x, expected.x, 2e-3);
    EXPECT_NEAR(actual.y, expected.y, 2e-3);
}

/// The middle of one of a path's ovals, which begin at their right.
Point middle_of_oval(const Path& path, std::size_t index = 0)
{
    const Point right = path.elements()[6 * index].end();
    return {right.x - 2.5, right.y};
}

TEST(WaveShaperEditorDrawing, PaintsInOrderInItsColours)
{
    pictures.clear();
    EditorRig rig;
    rig.view.set_color_points_control_points(nullptr, nullptr);
    std::vector<std::string> expected = {
        "stroke 0.75,0.75,0.75,0.5 width 2 from 5,105",
        "clip_to 5,5,400,400",
        "fill_rect 0,0,0,0.6 in 5,5,400,400 over",
        "draw_image 30x0 at 370,15 over 1",
        "draw_image 30x3 at 370,75 over 1",
        "draw_image 30x1 at 370,45 over 1",
        "fill 1,0,0,0.35 from -109.159271,205.000015",
        "fill 0,0,1,0.35 from -109.159271,205.000015",
        "fill 0,1,0,0.35 from -109.159271,205",
        "stroke 0,0,1,1 width 2.5 from 205,205",
        "stroke 1,1,1,0.5 width 0.5 from 205,205",
        "stroke 1,1,0,1 width 0.5 from 205,205",
        "stroke 1,1,0,1 width 1 from 224.166672,221.666672",
        "fill 1,1,0,1 from 224.166672,221.666672",
        "fill 1,1,1,0.4 from 224.166672,221.666672",
        "stroke 1,0,0,1 width 1 from 307.5,305",
        "fill 1,0,0,1 from 307.5,305",
        "fill 1,1,1,0.4 from 307.5,305",
        "stroke 0,0,1,1 width 2 from 207.5,205",
        "fill 0,0,1,1 from 207.5,205",
        "fill 1,1,1,0.4 from 207.5,205",
    };
    EXPECT_EQ(words_of(painted(rig.view)), expected);
    rig.view.make_db_scale();
    EXPECT_EQ(painted(rig.view).at(5).words, "draw_image 30x2 at 370,45 over 1");

    const std::string blue = "fill 0,0,1,0.333000004 from 0,0; stroke 0,0,1,1 width 2 from 0,0; ";
    const std::string cyan = "fill 0,1,1,0.333000004 from 0,0; stroke 0,1,1,1 width 2 from 0,0; ";
    expected = {blue + "stroke 1,1,1,1 width 2 from 10,2.5", blue + "fill 1,1,1,1 from 10,4.5",
                cyan + "fill 1,1,1,1 from 20,4.5", blue + "stroke 1,1,1,1 width 2 from 10,2.5"};
    EXPECT_EQ(pictures, expected);
}

TEST(WaveShaperEditorDrawing, PlotsCurveHandlesAndPointsWhereTheyAreHit)
{
    EditorRig rig;
    rig.view.set_point_to_in_amplitude_to_out_amplitude(positive_mid_c1_point, 0, 0.9F);
    rig.view.send_update_signal();
    const std::vector<DrawCall> list = painted(rig.view);

    std::array<Point, kCurvePoints> at;
    for (std::size_t i = 0; i < kCurvePoints; ++i) at[i] = rig.place(static_cast<CurvePoint>(i));
    const auto curve = list[kCurve].path.elements();
    ASSERT_EQ(curve.size(), 4U);
    EXPECT_EQ(curve[0].end(), at[0]);
    EXPECT_EQ(curve[1].points, (std::array{at[1], at[2], at[3]}));
    EXPECT_EQ(curve[2].points, (std::array{at[4], at[5], at[6]}));
    expect_near(curve[3].end(), {1305, 1305});

    const std::array handles{at[0], at[1], at[2], at[4], at[5], at[6]};
    EXPECT_TRUE(std::ranges::equal(list[kHandles].path.elements(), handles, {}, &Path::Element::end));
    for (std::size_t i = 0; i < 4; ++i)
        expect_near(middle_of_oval(list[kControlPoints].path, i), handles[i + 1]);
    expect_near(middle_of_oval(list[kEndPoint].path), at[6]);
    expect_near(middle_of_oval(list[kZeroPoint].path), at[0]);

    constexpr Point kMarks[] = {{5, 105}, {405, 105}, {5, 305}, {405, 305},
                                {105, 5}, {105, 405}, {305, 5}, {305, 405}};
    EXPECT_TRUE(std::ranges::equal(list[kMarkerLines].path.elements(), kMarks, {}, &Path::Element::end));
}

TEST(WaveShaperEditorDrawing, TracesEachSineThroughTheGainsAndBackToItsStart)
{
    const struct {
        Step step;
        float pregain, postgain;
        double peak; // points above the middle
    } kRows[] = {{kSine1, 1, 1, 100},   {kSine2, 1, 1, 50},     {kSine3, 1, 1, 100},
                 {kSine2, 4, 0.5F, 50}, {kSine1, 0.5F, 3, 150}, {kSine1, 0, 1, 0}};
    for (const auto& row : kRows) {
        EditorRig rig;
        rig.view.set_amplitude_in_scale_out_scale(3.1415927F, 2);
        // Level beyond full scale, so that it matters which gain comes first.
        rig.view.set_point_to_in_amplitude_to_out_amplitude(positive_end_c2_point, 0, 1);
        rig.view.update_coeffs();
        rig.view.set_sine_pregain(row.pregain);
        rig.view.set_sine_postgain(row.postgain);
        const std::vector<DrawCall> list = painted(rig.view);
        const auto sine = list[row.step].path.elements();
        ASSERT_EQ(sine.size(), 514U);
        expect_near(sine[0].end(), {5, 205});
        expect_near(sine[128].end(), {105, 205 - row.peak});
        expect_near(sine[384].end(), {305, 205 + row.peak});
        expect_near(sine[512].end(), {405, 205});
        expect_near(sine[513].end(), {5, sine[0].end().y});
        // Stored in single precision, each coordinate by itself.
        EXPECT_TRUE(std::ranges::all_of(sine, [](const Path::Element& element) {
            const auto [x, y] = element.end();
            return x == static_cast<float>(x) && y == static_cast<float>(y);
        }));
    }
}

TEST(WaveShaperEditorDrawing, FollowsEveryChangeAtTheNextPaint)
{
    _QM_R7_Bezier_Sequence record{};
    BezierCurve other;
    other.set_point_to_in_amplitude_to_out_amplitude(positive_end_point, 2, 0.5F);
    other.update_coeffs();
    other.export_sequence_data(record);
    const struct {
        void (*change)(EditorRig&, const _QM_R7_Bezier_Sequence&);
        Point end_point;
    } kRows[] = {
        {[](auto& rig, const auto&) { rig.view.mouseDown(rig.at(rig.place(positive_end_point))); },
         {305, 305}},
        {[](auto& rig, const auto&) { rig.view.mouseDragged(rig.motion(10, 10)); }, {315, 295}},
        {[](auto& rig, const auto&) { rig.view.make_db_scale(); }, {425, 385}},
        {[](auto& rig, const auto&) { rig.view.make_db_scale(); }, {315, 295}},
        {[](auto& rig, const auto&) { rig.view.set_amplitude_in_scale_out_scale(4, 4); }, {260, 250}},
        {[](auto& rig, const auto&) { rig.view.set_to_linear(); }, {255, 255}},
        {[](auto& rig, const auto& sent) { rig.view.set_from_sequence_data(sent); }, {305, 230}},
    };
    EditorRig rig;
    for (const auto& row : kRows) {
        row.change(rig, record);
        expect_near(middle_of_oval(painted(rig.view).at(kEndPoint).path), row.end_point);
    }
    EXPECT_EQ(rig.owner->updates, 2); // for the drag and the reset; a record tells nobody
}

} // namespace
} // namespace r7
