// Breaking and placing of text.
#include "platform/cairo/text_layout.h"
#include "platform/freetype/font.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

namespace r7 {
namespace {

constexpr double kSize = 9.0;

TEST(TextLayout, BreaksLinesAtBlanksWhereTheyAreTooWide)
{
    const double exact = width_of_text("one two", kSize), narrow = width_of_text("three", kSize) * 0.9;
    const std::tuple<std::string, double, std::vector<std::string>> rows[] = {
        {"one two", exact, {"one two"}},
        {"one two", exact - 0.01, {"one", "two"}},
        {"one two three", exact, {"one two", "three"}},
        {"one   two", exact - 0.01, {"one", "two"}},
        {"one two  ", exact, {"one two  "}},
        {"a three b", narrow, {"a", "three", "b"}},
        {" three ", narrow, {" three "}},
        {"a b", -5.0, {"a", "b"}},
        {"", 100.0, {}},
        {"0 dB", 20.0, {"0 dB"}},
        {" 40", 20.0, {" 40"}},
        {"Frequency (Hz)", 70.0, {"Frequency (Hz)"}},
    };
    const Font& font = Font::label();
    for (const auto& [text, width, lines] : rows) {
        for (const auto alignment : {TextAlignment::left, TextAlignment::center}) {
            const Rect rect{7, 3, width, 20};
            Path expected, path;
            Point pen{0, rect.top() - font.ascent(kSize)};
            for (const std::string& line : lines) {
                const double rest = rect.width - width_of_text(line, kSize);
                pen.x = alignment == TextAlignment::left ? 7.0 : 7.0 + rest / 2;
                for (const char c : line) {
                    font.append_outline(static_cast<unsigned char>(c), pen, kSize, expected);
                    pen.x += font.advance(static_cast<unsigned char>(c), kSize);
                }
                pen.y -= font.line_height(kSize);
            }
            append_text(text, rect, kSize, alignment, path);
            ASSERT_EQ(path.elements().size(), expected.elements().size()) << text;
            for (std::size_t i = 0; i < path.elements().size(); ++i) {
                const Point a = path.elements()[i].end(), b = expected.elements()[i].end();
                EXPECT_LT(std::hypot(a.x - b.x, a.y - b.y), 1e-9) << text;
            }
        }
    }
}

} // namespace
} // namespace r7
