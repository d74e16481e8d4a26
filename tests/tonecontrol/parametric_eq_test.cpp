// The editor: its handles in the user's hands, and how it is painted.
#include "tests/tonecontrol/tone_rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace r7 {

namespace {

/// What was painted into each of the pictures that the editors made, in turn.
std::vector<std::set<std::string>> pictures;

const auto kWhite = Color::device_white(1, 1);

struct EditorRig : ToneRig<Editor> {
    Point center(ToneBand band) { return {view->handle(band).x + 12, view->handle(band).y + 12}; }
    void press(Point at) { view->mouseDown({.location_in_window = at}); }
};

} // namespace

// In the place of a drawing back end.
ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    RecordingGraphics graphics;
    paint(graphics);
    auto& words = pictures.emplace_back();
    for (const DrawCall& call : graphics.calls) words.insert(call.words);
    return fake_image(size.width, size.height);
}

TEST(ToneEditor, DragsAHandleInFrequencyAndLevelOrInWidth)
{
    using enum Modifiers;
    const struct {
        bool secondary;
        double dx, dy;
        Modifiers modifiers;
        float along, up, wider;
    } cases[] = {
        {false, 10, -5, none, 10, 2, 0},         {false, 10, -5, control, 1, 0.2f, 0},
        {true, 10, -5, none, 1, 0.2f, 0},        {false, 5, -5, option, 0, 0, 0.1f},
        {false, 5, 5, option, 0, 0, 0},          {true, 0, -50, option | control, 0, 0, 0.05f},
        {false, 1e4, 0, option, 0, 0, 1e9f},     {false, -1e4, 0, option, 0, 0, 0},
        {false, 1e4, -1e4, none, 1e9f, 1e9f, 0}, {false, -1e4, 1e4, none, -1e9f, -1e9f, 0},
    };
    for (std::size_t band = 0; band < kToneBands; ++band)
        for (const auto& row : cases) {
            EditorRig rig;
            const auto* const value = &kValues[3 * band];
            const ToneMapping& mapping = rig.view->mapping();
            const float x = mapping.location_for_frequency(value[0].value) + row.along;
            const float expected[] = {std::clamp(mapping.frequency_for_location(x), 10.0f, 20050.0f),
                                      std::clamp(value[1].value + row.up, -40.0f, 40.0f),
                                      std::min(value[2].value + row.wider, 1.0f)};
            const MouseEvent drag{.delta_x = row.dx, .delta_y = row.dy, .modifiers = row.modifiers};
            rig.press(rig.center(ToneBand(band)));
            row.secondary ? rig.view->rightMouseDragged(drag) : rig.view->mouseDragged(drag);
            rig.view->mouseUp({});
            rig.view->mouseDragged(drag);
            for (std::size_t i = 0; i < kToneBands * 3; ++i) {
                const float now = i / 3 == band ? expected[i % 3] : kValues[i].value;
                EXPECT_NEAR((*rig.view.*kValues[i].get)(), now, 1e-5 * std::abs(now)) << band << ", " << i;
            }
            EXPECT_EQ(rig.updates->calls, 1);
        }
}

TEST(ToneEditor, AHandleIsGrabbedBeforeThoseOfLaterBandsAndBeforeAButton)
{
    constexpr Point kCloseButton{645, 49};
    EditorRig rig;
    rig.view->rightMouseDown({.location_in_window = kCloseButton});
    EXPECT_EQ(rig.toggles->calls, 0);
    rig.press(kCloseButton);
    EXPECT_EQ(rig.toggles->calls, 1);
    EXPECT_EQ(rig.window->first_responder(), rig.view.get());
    EXPECT_TRUE(rig.window->accepts_mouse_moved_events);
    rig.view->setFreqHigh(22500);
    rig.view->setLevelHigh(-38);
    rig.press(rig.center(kToneHigh));
    EXPECT_TRUE(rig.view->is_moving(kToneHigh));
    EXPECT_EQ(rig.toggles->calls, 1);
    rig.view->mouseUp({});

    rig.view->setFreqHigh(1234);
    rig.view->setLevelHigh(11);
    const Rect square = rig.view->handle(kToneMid);
    rig.press({square.right(), square.y});
    EXPECT_TRUE(rig.view->mouse_is_down() && !rig.view->is_moving(kToneMid)) << "the right edge is outside";
    rig.press({square.x, square.y});
    EXPECT_TRUE(rig.view->is_moving(kToneMid) && !rig.view->is_moving(kToneHigh));
}

TEST(ToneEditor, ScrollsWidthsBetweenZeroAndOne)
{
    constexpr float rows[][3] = {{0.98f, 2, 0.98f}, {0.95f, 1, 1}, {0.04f, -1, 0.04f}, {0.5f, -3, 0.45f}};
    EditorRig rig;
    for (const auto& [from, notches, to] : rows) {
        rig.view->setSlopeHigh(from);
        rig.view->scrollWheel({.location_in_window = rig.center(kToneHigh), .delta_y = notches});
        EXPECT_EQ(rig.view->slopeHigh(), to);
    }
    EXPECT_EQ(rig.updates->calls, 2) << "for those that were taken";
}

TEST(ToneEditor, TheOwnersColoursOnlyChooseTheScheme)
{
    EditorRig rig;
    rig.view->awakeFromNib();
    const std::string from = " from " + text_of(rig.view->handle(kToneLow).right()) + ",260";
    const std::string below =
        "fill_rect 0,0,0,0.666 in 30,30,630,400 over; draw_image 30x15 at 630,30 over 1; "
        "draw_image 30x15 at 630,60 over 1; draw_image 660x430 at 0,0 over 1; "
        "clip_to 30,30,600,400; ";
    EXPECT_EQ(rig.drawn().words(), below + "fill 0,0,1,0.4 from 30,30; stroke 0,0,1,0.4 width 2.5" + from);

    rig.view->setCurveColor_fill(kWhite, kWhite);
    EXPECT_TRUE(rig.drawn().words().starts_with(below +
                                                "fill 0.2,0.2,1,0.4 from 30,30; stroke 0,0,1,1 width 2.5" +
                                                from + "; stroke 1,0.2,0,0.5 width 3 from "));
}

TEST(ToneEditor, AnArcRunsClockwiseFromBelowAndIsNeverMoreThanARing)
{
    constexpr std::size_t kStarts = 5 * 2, kOtherQuarters = 3 + 3 + 2 + 4;
    const struct {
        float width;
        std::size_t quarters;
        Point end;
    } cases[] = {{0.25f, 1, {-7, 0}}, {0.5f, 2, {0, 7}}, {1, 4, {0, -7}}, {-std::log(0.0f), 4, {0, -7}}};
    EditorRig rig;
    rig.view->setCurveColor_fill(kWhite, kWhite);
    for (const auto& [width, quarters, end] : cases) {
        rig.view->setSlopeHigh(width);
        const Path& arcs = rig.drawn().calls.back().path;
        const Point center = rig.center(kToneHigh);
        EXPECT_NEAR(arcs.current_point().x, center.x + end.x, 1e-9) << width;
        EXPECT_NEAR(arcs.current_point().y, center.y + end.y, 1e-9) << width;
        EXPECT_EQ(arcs.elements().size(), kStarts + kOtherQuarters + quarters) << width;
    }
}

TEST(ToneEditor, LabelsStandWhereItsOwnRangePutsThem)
{
    EditorRig rig;
    rig.view->set_maximum_frequency(22050);
    rig.view->awakeFromNib();
    const auto& labels = pictures.back();
    EXPECT_EQ(labels.size(), 1u + 1u + 11u + 9u) << "margins, title, frequencies, gains";
    const double x = ToneMapping({30, 30, 600, 400}).location_for_frequency(20000) - 10.0;
    EXPECT_TRUE(labels.contains("draw_text 20k in " + text_of(x) + ",2,20,25 center 0,0,0,1 size 9"));
    EXPECT_TRUE(labels.contains("draw_text  40 in 5,405,20,25 center 0,0,0,1 size 9")) << "a dB low";
}

} // namespace r7
