// How the editor is painted: its two schemes, the arcs of the widths, the labels.
#include "tests/tonecontrol/tone_rig.h"

#include <gtest/gtest.h>

#include <set>

namespace r7 {

namespace {

/// In the place of a drawing back end: an image that keeps the calls that painted it.
struct Picture final : Image {
    explicit Picture(Size size) : size_(size) {}
    Size size() const override { return size_; }

    RecordingGraphics graphics;
    Size size_;
};

/// In the order in which they were painted.
std::vector<std::shared_ptr<Picture>> painted_pictures;

const auto kWhite = Color::device_white(1, 1);

} // namespace

ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    const auto& picture = painted_pictures.emplace_back(std::make_shared<Picture>(size));
    paint(picture->graphics);
    return picture;
}

TEST(ToneEditorDrawing, TheOwnersColoursOnlyChooseTheScheme)
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
    const auto words = rig.drawn().words();
    const auto arcs = words.rfind(" from ");
    EXPECT_EQ(words.substr(0, arcs), below + "fill 0.2,0.2,1,0.4 from 30,30; stroke 0,0,1,1 width 2.5" +
                                         from + "; stroke 1,0.2,0,0.5 width 3");
}

TEST(ToneEditorDrawing, AnArcRunsClockwiseFromBelowAndIsNeverMoreThanARing)
{
    const struct {
        float width;
        std::size_t quarters;
        Point end_about_center;
    } cases[] = {
        {0.25f, 1, {-7, 0}},           {0.5f, 2, {0, 7}}, {1, 4, {0, -7}}, {1e4f, 4, {0, -7}},
        {-std::log(0.0f), 4, {0, -7}},
    };
    constexpr std::size_t kStarts = 5 * 2, kOtherQuarters = 3 + 3 + 2 + 4;
    for (const auto& [width, quarters, end] : cases) {
        ToneRig<Editor> rig;
        rig.view->setCurveColor_fill(kWhite, kWhite);
        rig.view->setSlopeHigh(width);
        const Path arcs = rig.drawn().calls.back().path;
        const Rect handle = rig.view->handle(kToneHigh);
        EXPECT_NEAR(arcs.current_point().x, handle.x + 12 + end.x, 1e-9) << width;
        EXPECT_NEAR(arcs.current_point().y, handle.y + 12 + end.y, 1e-9) << width;
        EXPECT_EQ(arcs.elements().size(), kStarts + kOtherQuarters + quarters) << width;
    }
}

TEST(ToneEditorDrawing, LabelsStandWhereTheEditorsOwnRangePutsThem)
{
    ToneRig<Editor> rig;
    rig.view->set_maximum_frequency(22050);
    rig.view->awakeFromNib();
    std::set<std::string> labels;
    for (const DrawCall& call : painted_pictures.back()->graphics.calls) labels.insert(call.words);
    EXPECT_EQ(labels.size(), 1u + 1u + 11u + 9u) << "margins, title, frequencies, gains";
    const double x = ToneMapping({30, 30, 600, 400}).location_for_frequency(20000) - 10.0;
    EXPECT_TRUE(labels.contains("draw_text 20k in " + text_of(x) + ",2,20,25 center 0,0,0,1 size 9"));
    EXPECT_TRUE(labels.contains("draw_text  40 in 5,405,20,25 center 0,0,0,1 size 9")) << "a dB low";
}

} // namespace r7
