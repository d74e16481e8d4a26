// UTF-8: code points of every length, and what is none.
#include "platform/freetype/utf8.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace r7 {
namespace {

// Decodes a copy that ends where the text ends, so that a read past the end is seen by the sanitizer.
std::u32string decoded(const std::string& text)
{
    const auto copy = std::make_unique<char[]>(text.size());
    text.copy(copy.get(), text.size());
    std::u32string result;
    for (std::string_view rest(copy.get(), text.size()); !rest.empty();) result += decode_utf8(rest);
    return result;
}

TEST(Utf8, CodePointsOfEveryLength)
{
    EXPECT_EQ(decoded("a\x7F\xC2\x80\xC3\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBFz"),
              U"a\x7F\x80\xFF\u0800\uFFFF\U00010000\U0010FFFFz");
    EXPECT_EQ(decoded(std::string("\0b", 2)), std::u32string(U"\0b", 2));
}

TEST(Utf8, EachByteThatIsNoneIsOneReplacementCharacter)
{
    const struct
    {
        const char* what;
        std::string bytes;
        std::u32string expected;
    } cases[] = {
        {"continuation alone", "\x80x", U"\uFFFDx"},
        {"cut short at the end", "x\xE2\x82", U"x\uFFFD\uFFFD"},
        {"cut short by another", "\xE2\x82x", U"\uFFFD\uFFFDx"},
        {"lead at the end", "\xC3", U"\uFFFD"},
        {"overlong, 2 bytes", "\xC1\xBF", U"\uFFFD\uFFFD"},
        {"overlong, 3 bytes", "\xE0\x9F\xBF", U"\uFFFD\uFFFD\uFFFD"},
        {"overlong, 4 bytes", "\xF0\x8F\xBF\xBF", U"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"surrogate", "\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},
        {"above the last", "\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"no lead at all", "\xFF\xF8", U"\uFFFD\uFFFD"},
    };
    for (const auto& c : cases) EXPECT_EQ(decoded(c.bytes), c.expected) << c.what;
}

} // namespace
} // namespace r7
