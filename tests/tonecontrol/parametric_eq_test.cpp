// How the editor is painted; the sessions play its gestures.
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

TEST(ToneEditor, TheOwnersColoursOnlyChooseTheScheme)
{
    ToneRig<Editor> rig;
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
    ToneRig<Editor> rig;
    rig.view->setCurveColor_fill(kWhite, kWhite);
    for (const auto& [width, quarters, end] : cases) {
        rig.view->setSlopeHigh(width);
        const Path& arcs = rig.drawn().calls.back().path;
        const Point corner = rig.view->handle(kToneHigh).origin(); // of 24 points a side
        EXPECT_NEAR(arcs.current_point().x, corner.x + 12 + end.x, 1e-9) << width;
        EXPECT_NEAR(arcs.current_point().y, corner.y + 12 + end.y, 1e-9) << width;
        EXPECT_EQ(arcs.elements().size(), kStarts + kOtherQuarters + quarters) << width;
    }
}

TEST(ToneEditor, LabelsStandWhereItsOwnRangePutsThem)
{
    ToneRig<Editor> rig;
    rig.view->set_maximum_frequency(22050);
    rig.view->awakeFromNib();
    const auto& labels = pictures.back();
    EXPECT_EQ(labels.size(), 1u + 1u + 11u + 9u) << "margins, title, frequencies, gains";
    const double x = ToneMapping({30, 30, 600, 400}).location_for_frequency(20000) - 10.0;
    EXPECT_TRUE(labels.contains("draw_text 20k in " + text_of(x) + ",2,20,25 center 0,0,0,1 size 9"));
    EXPECT_TRUE(labels.contains("draw_text  40 in 5,405,20,25 center 0,0,0,1 size 9")) << "a dB low";
}

} // namespace r7
