// The label font: measures, outlines, and what stands for characters that it lacks.
#include "platform/freetype/font.h"

#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace r7 {
namespace {

Path outline_of(char32_t code_point, double size = 1.0, Point origin = {})
{
    Path path;
    Font::label().append_outline(code_point, origin, size, path);
    return path;
}

TEST(Font, LabelsFitTheRectanglesThatTheEditorsDrawThemInto)
{
    EXPECT_LT(width_of_text("0 dB", 9.0), 20.0);
    EXPECT_LT(width_of_text("Frequency (Hz)", 9.0), 70.0);
    EXPECT_LT(width_of_text("-40", 9.0), 20.0);
    EXPECT_LT(Font::label().line_height(9.0), 15.0);
}

TEST(Font, MeasuresAreLinearInTheSizeAndAddUp)
{
    const Font& font = Font::label();
    for (const char32_t c : {U' ', U'R', U'7', U'\u00B0', U'\u0416'}) {
        EXPECT_GT(font.advance(c, 9.0), 0.0);
        EXPECT_DOUBLE_EQ(font.advance(c, 18.0), 2.0 * font.advance(c, 9.0));
    }
    EXPECT_DOUBLE_EQ(font.line_height(20.0), 2.0 * (font.ascent(10.0) + font.descent(10.0)));
    EXPECT_DOUBLE_EQ(width_of_text("R\xC2\xB0", 9.0), font.advance(U'R', 9.0) + font.advance(U'\u00B0', 9.0));
}

TEST(Font, OutlinesAreClosedAndStandOnTheBaseline)
{
    for (char32_t c = 0x20; c < 0x100; ++c) {
        if (c >= 0x7F && c < 0xA0) continue;
        const Path outline = outline_of(c);
        int open = 0;
        for (const Path::Element& element : outline.elements()) {
            if (element.verb == Path::Verb::move) ++open;
            if (element.verb == Path::Verb::close) --open;
            EXPECT_TRUE(open == 0 || open == 1) << "code point " << std::uint32_t{c};
        }
        EXPECT_EQ(open, 0) << "code point " << std::uint32_t{c};
    }
    const Path capital = outline_of(U'E', 100.0, {10.0, 20.0});
    double lowest = 1e9, highest = -1e9;
    for (const Path::Element& element : capital.elements()) {
        if (element.verb == Path::Verb::close) continue;
        lowest = std::min(lowest, element.end().y);
        highest = std::max(highest, element.end().y);
    }
    EXPECT_DOUBLE_EQ(lowest, 20.0);
    EXPECT_NEAR(highest, 20.0 + 72.9, 0.1); // the height of a capital
}

TEST(Font, CharactersThatItLacksShowAsTheMissingCharacterBox)
{
    const Path box = outline_of(U'\uFFFD');
    ASSERT_FALSE(box.is_empty());
    for (const char32_t c : {char32_t{0}, U'\n', char32_t{0x7F}, char32_t{0x100}, char32_t{0x10FFFF}}) {
        const Path path = outline_of(c);
        EXPECT_TRUE(std::ranges::equal(path.elements(), box.elements())) << std::uint32_t{c};
    }
    const Path letter = outline_of(U'A');
    EXPECT_FALSE(std::ranges::equal(letter.elements(), box.elements()));
    EXPECT_TRUE(outline_of(U' ').is_empty());
}

} // namespace
} // namespace r7
