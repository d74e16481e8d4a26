// What the painted text takes, when it builds its image, and what can be seen of it.
#include "tests/painted_text/painted_text_rig.h"
#include "tests/painted_text/recording_gl_state.h"
#include "tests/painted_text/scratch_file.h"

#include <cmath>
#include <limits>

namespace r7 {
namespace {

using PaintedText = QmR7PaintedTextView;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(PaintedText, CombinedSetterLeavesWhatIsOutOfItsRange)
{
    const float below_300 = std::nextafter(300.0f, 0.0f), above_least = std::nextafter(0.001f, 1.0f);
    const struct {
        float size, height, shade;
        float size_after, height_after, shade_after;
    } cases[] = {
        {20, 30, 40, 20, 30, 40},
        {0, 0, 0, 9, 11, 18},
        {-1, -1, -1, 9, 11, 18},
        {4, 300, 200, 4, 11, 18},
        {4, below_300, 199.5f, 4, below_300, 199.5f},
        {4, 1e-20f, 0.001f, 4, 1e-20f, 18},
        {4, 5, above_least, 4, 5, above_least},
        {kNaN, kNaN, kNaN, 9, 11, 18},
    };
    for (const auto& c : cases) {
        PaintedTextRig rig;
        const auto set = [&](std::optional<std::string_view> text, const ColorRef& color) {
            rig.view->set_text_font_size_paint_color_height_scale_shade_scale(text, c.size, color, c.height,
                                                                              c.shade);
            EXPECT_EQ(rig.view->font_size(), c.size_after);
            EXPECT_EQ(rig.view->height_field_scale(), c.height_after);
            EXPECT_EQ(rig.view->shaded_image_scale(), c.shade_after);
            EXPECT_FALSE(rig.redraw_requested().is_empty());
        };
        EXPECT_EQ(rig.view->paint_color(), (Rgba{0, 0, 1, 1}));
        set("text", Color::device_rgba(0.1, 0.2, 0.3, 0.4));
        set(std::nullopt, nullptr);
        EXPECT_EQ(rig.view->text_string(), "text");
        EXPECT_EQ(rig.view->paint_color(), (Rgba{0.1, 0.2, 0.3, 0.4}));
    }
}

TEST(PaintedText, ASizeThatIsNoneIsTheOnlyValueThatBuildsNothing)
{
    const struct {
        void (*set)(PaintedText&);
        bool builds;
    } cases[] = {
        {[](PaintedText& view) { view.set_font_size(0); }, false},
        {[](PaintedText& view) { view.set_font_size(-3); }, false},
        {[](PaintedText& view) { view.set_font_size(kNaN); }, false},
        {[](PaintedText& view) { view.set_font_size(9); }, true},
        {[](PaintedText& view) { view.set_text_string(std::nullopt); }, true},
        {[](PaintedText& view) { view.set_paint_color(Color::pattern(view.image())); }, true},
        {[](PaintedText& view) { view.set_height_field_scale(kNaN); }, true},
        {[](PaintedText& view) { view.set_shaded_image_scale(-kInfinity); }, true},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        PaintedTextRig rig;
        rig.view->set_text_string("a");
        rig.redraw_requested();
        const ImageRef before = rig.view->image();
        cases[i].set(*rig.view);
        EXPECT_EQ(rig.view->image() != before, cases[i].builds) << i;
        EXPECT_EQ(!rig.redraw_requested().is_empty(), cases[i].builds) << i;
    }
}

TEST(PaintedText, NewBoundsShowTheOldTextImageUntilASetterIsUsed)
{
    PaintedTextRig rig;
    rig.view->set_text_string("text");
    rig.pixels();
    const ImageRef first = rig.view->image();
    rig.view->set_frame({10, 10, 100, 30});
    EXPECT_EQ(rig.view->image(), first) << "until it is drawn";
    rig.pixels();
    const ImageRef second = rig.view->image();
    EXPECT_NE(second, first);
    EXPECT_EQ(second->size(), (Size{200, 60}));
    rig.pixels();
    EXPECT_EQ(rig.view->image(), second) << "once is enough";
    rig.view->set_font_size(10);
    EXPECT_EQ(rig.view->image()->size(), (Size{100, 30}));
}

TEST(PaintedText, IsCentredAtTheTopInItsColourAndLitFromTheTopLeft)
{
    PaintedTextRig rig;
    rig.view->set_text_font_size_paint_color_height_scale_shade_scale("H", 40, Color::device_rgba(1, 0, 0, 1),
                                                                      11, 18);
    const auto pixels = rig.pixels();
    int left = 220, right = 0, top = 80, bottom = 0;
    for (int i = 0; i < 220 * 80; ++i) {
        const std::uint32_t pixel = pixels[static_cast<std::size_t>(i)];
        EXPECT_EQ(pixel & 0xFF00FFFF, 0xFF000000) << "red alone at " << i;
        if (pixel == 0xFF000000) continue;
        left = std::min(left, i % 220), right = std::max(right, i % 220);
        top = std::min(top, i / 220), bottom = std::max(bottom, i / 220);
    }
    EXPECT_NEAR(left + right, 220, 3);
    EXPECT_NEAR(top, 18, 2) << "the letter's, under the top of its line";
    EXPECT_NEAR(bottom - top, 29, 2) << "a capital of 40 points";
    const auto red = [&](int x) {
        return pixels[static_cast<std::size_t>(220 * (top + 8) + x)] >> 16 & 0xFF;
    };
    EXPECT_GT(red(left + 1), 2 * red(left + 3)) << "across a stem";
}

TEST(PaintedText, OfAnySortInAViewOfAnySizeDoesNoHarm)
{
    const std::string text = "text", word(10000, 'W');
    std::string words = word;
    for (std::size_t i = 0; i < words.size(); i += 11) words[i] = ' ';
    const struct {
        std::string text;
        float font_size = 9;
        Size size{200, 60};
        bool shows = false;
        bool has_image = true;
    } cases[] = {
        {""},
        {words, 9, {200, 60}, true},
        {word, 9, {200, 60}, true},
        {"\xFF\xC0\xAF\xED\xA0\x80 \xF0\x9F", 20, {200, 60}, true},
        {text, 1e-30f},
        {text, 1e30f},
        {text, kInfinity},
        {text, 9, {4096, 20}, false},
        {text, 9, {0.5, 0.25}, false},
        {text, 9, {0, 0}, false, false},
        {text, 9, {-5, 60}, false, false},
        {text, 9, {4097, 60}, false, false},
        {text, 9, {1e300, 1e300}, false, false},
        {text, 9, {kNaN, kNaN}, false, false},
    };
    GLScript script;
    const auto open = [&](const GLPixelFormat&) { return std::make_unique<RecordingGLState>(script); };
    for (const auto& c : cases) {
        PaintedTextRig rig(c.size), with_context(c.size, open);
        for (auto* view : {rig.view.get(), with_context.view.get()}) {
            view->set_font_size(c.font_size);
            view->set_text_string(c.text);
            RecordingGraphics graphics;
            for (const Rect& dirty : {view->bounds(), kInfiniteRect}) view->drawRect(graphics, dirty);
            EXPECT_EQ(view->image() != nullptr, c.has_image) << c.text.substr(0, 9) << c.size.width;
        }
        EXPECT_EQ(rig.shows_something(), c.shows) << c.text.substr(0, 9) << c.font_size;
    }
}

} // namespace
} // namespace r7
