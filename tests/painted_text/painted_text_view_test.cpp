// What the painted text takes, when it builds its image, and what can be seen of it.
#include "tests/painted_text/painted_text_rig.h"

#include <array>
#include <cmath>
#include <limits>

namespace r7 {
namespace {

using PaintedText = QmR7PaintedTextView;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(PaintedText, CombinedSetterLeavesWhatIsOutOfItsRange)
{
    using Scales = std::array<float, 3>; // font size, height, shade
    const float below_300 = std::nextafter(300.0f, 0.0f), above_least = std::nextafter(0.001f, 1.0f);
    const std::pair<Scales, Scales> given_and_kept[] = {
        {{20, 30, 40}, {20, 30, 40}},
        {{0, 0, 0}, {9, 11, 18}},
        {{-1, -1, -1}, {9, 11, 18}},
        {{4, 300, 200}, {4, 11, 18}},
        {{4, below_300, 199.5f}, {4, below_300, 199.5f}},
        {{4, 1e-20f, 0.001f}, {4, 1e-20f, 18}},
        {{4, 5, above_least}, {4, 5, above_least}},
        {{kNaN, kNaN, kNaN}, {9, 11, 18}},
    };
    for (const auto& [given, kept] : given_and_kept) {
        PaintedTextRig rig;
        rig.view->set_text_string("text");
        rig.redraw_requested();
        rig.view->set_text_font_size_paint_color_height_scale_shade_scale(std::nullopt, given[0], nullptr,
                                                                          given[1], given[2]);
        EXPECT_EQ(
            (Scales{rig.view->font_size(), rig.view->height_field_scale(), rig.view->shaded_image_scale()}),
            kept);
        EXPECT_EQ(rig.view->text_string(), "text");
        EXPECT_EQ(rig.view->paint_color(), (Rgba{0, 0, 1, 1}));
        EXPECT_TRUE(rig.redraw_requested());
    }
}

TEST(PaintedText, ASizeThatIsNoneIsTheOnlyValueThatBuildsNothing)
{
    using Setter = void (*)(PaintedText&);
    const std::pair<Setter, bool> setters_that_build[] = {
        {[](PaintedText& view) { view.set_font_size(0); }, false},
        {[](PaintedText& view) { view.set_font_size(-3); }, false},
        {[](PaintedText& view) { view.set_font_size(kNaN); }, false},
        {[](PaintedText& view) { view.set_font_size(9); }, true},
        {[](PaintedText& view) { view.set_text_string(std::nullopt); }, true},
        {[](PaintedText& view) { view.set_paint_color(Color::pattern(view.image())); }, true},
        {[](PaintedText& view) { view.set_height_field_scale(kNaN); }, true},
        {[](PaintedText& view) { view.set_shaded_image_scale(-kInfinity); }, true},
    };
    PaintedTextRig rig;
    rig.view->set_text_string("a");
    for (const auto& [set, builds] : setters_that_build) {
        rig.redraw_requested();
        const ImageRef before = rig.view->image();
        set(*rig.view);
        EXPECT_EQ(rig.view->image() != before, builds);
        EXPECT_EQ(rig.redraw_requested(), builds);
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
    constexpr Size kUsual{200, 60};
    const struct {
        std::string text;
        float font_size;
        Size size;
        bool shows, has_image;
    } cases[] = {
        {"", 9, kUsual, false, true},
        {words, 9, kUsual, true, true},
        {word, 9, kUsual, true, true},
        {"\xFF\xC0\xAF\xED\xA0\x80 \xF0\x9F", 20, kUsual, true, true},
        {text, 1e-30f, kUsual, false, true},
        {text, 1e30f, kUsual, false, true},
        {text, kInfinity, kUsual, false, true},
        {text, 9, {4096, 20}, false, true},
        {text, 9, {0.5, 0.25}, false, true},
        {text, 9, {0, 0}, false, false},
        {text, 9, {-5, 60}, false, false},
        {text, 9, {4097, 60}, false, false},
        {text, 9, {1e300, 1e300}, false, false},
        {text, 9, {kNaN, kNaN}, false, false},
    };
    for (const auto& c : cases) {
        PaintedTextRig rig(c.size);
        rig.view->set_font_size(c.font_size);
        rig.view->set_text_string(c.text);
        EXPECT_EQ(rig.shows_something(), c.shows) << c.text.substr(0, 9) << c.font_size;
        EXPECT_EQ(rig.view->image() != nullptr, c.has_image) << c.text.substr(0, 9) << c.size.width;
    }
}

} // namespace
} // namespace r7
