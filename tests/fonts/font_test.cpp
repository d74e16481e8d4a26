// The label font: measures, outlines, and what stands for characters and bytes that are none.
#include "platform/freetype/font.h"
#include "platform/freetype/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace r7 {
namespace {

Path outline_of(char32_t code_point)
{
    Path path;
    Font::label().append_outline(code_point, {}, 1.0, path);
    return path;
}

TEST(Font, MeasuresAreLinearInTheSize)
{
    const Font& font = Font::label();
    for (const char32_t c : {U' ', U'R', U'7', U'\u00B0', U'\u0416'})
        EXPECT_DOUBLE_EQ(font.advance(c, 18.0), 2.0 * font.advance(c, 9.0));
    EXPECT_DOUBLE_EQ(font.line_height(20.0), 2.0 * (font.ascent(10.0) + font.descent(10.0)));
}

TEST(Font, CharactersThatItLacksShowAsTheMissingCharacterBox)
{
    const Path box = outline_of(U'\uFFFD'), letter = outline_of(U'A');
    ASSERT_FALSE(box.is_empty());
    EXPECT_FALSE(std::ranges::equal(letter.elements(), box.elements()));
    EXPECT_TRUE(outline_of(U' ').is_empty());
    for (const char32_t c : {char32_t{0}, U'\n', char32_t{0x7F}, char32_t{0x100}, char32_t{0x10FFFF}})
        EXPECT_TRUE(std::ranges::equal(outline_of(c).elements(), box.elements())) << std::uint32_t{c};
}

TEST(Utf8, EachByteThatIsNoCodePointIsOneReplacementCharacter)
{
    const std::pair<std::string, std::u32string> kCases[] = {
        {"a\x7F\xC2\x80\xC3\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBFz",
         U"a\x7F\x80\xFF\u0800\uFFFF\U00010000\U0010FFFFz"},
        {{"\0b", 2}, {U"\0b", 2}},
        {"\x80x\xE2\x82", U"\uFFFDx\uFFFD\uFFFD"},         // continuation alone, cut short at the end
        {"\xE2\x82x", U"\uFFFD\uFFFDx"},                   // cut short by another
        {"\xC1\xBF", U"\uFFFD\uFFFD"},                     // overlong, 2 bytes
        {"\xE0\x9F\xBF", U"\uFFFD\uFFFD\uFFFD"},           // overlong, 3 bytes
        {"\xF0\x8F\xBF\xBF", U"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong, 4 bytes
        {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},           // surrogate
        {"\xF4\x90\x80\x80\xFF", U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"}, // above the last, no lead
    };
    for (const auto& [bytes, expected] : kCases) {
        // A copy that ends where the text ends, so that a read past the end is seen by the sanitizer.
        const auto copy = std::make_unique<char[]>(bytes.size());
        bytes.copy(copy.get(), bytes.size());
        std::u32string decoded;
        for (std::string_view rest(copy.get(), bytes.size()); !rest.empty();) decoded += decode_utf8(rest);
        EXPECT_EQ(decoded, expected);
    }
}

} // namespace
} // namespace r7
