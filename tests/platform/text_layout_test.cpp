// Breaking and placing of text.
#include "platform/cairo/text_layout.h"
#include "platform/freetype/font.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace r7 {
namespace {

constexpr double kSize = 9.0;

Path laid_out(std::string_view text, const Rect& rect, TextAlignment alignment)
{
    Path path;
    append_text(text, rect, kSize, alignment, path);
    return path;
}

// The outlines of one line whose lower left corner is given.
void append_line(std::string_view ascii, Point origin, Path& path)
{
    for (const char c : ascii) {
        Font::label().append_outline(static_cast<unsigned char>(c), origin, kSize, path);
        origin.x += Font::label().advance(static_cast<unsigned char>(c), kSize);
    }
}

TEST(TextLayout, BreaksLinesAtBlanksWhereTheyAreTooWide)
{
    const double exact = width_of_text("one two", kSize), narrow = width_of_text("three", kSize) * 0.9;
    struct Row {
        std::string text;
        double width;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {"one two", exact, {"one two"}},
        {"one two", exact - 0.01, {"one", "two"}},
        {"one two three", exact, {"one two", "three"}},
        {"one   two", exact - 0.01, {"one", "two"}},
        {"one two  ", exact, {"one two  "}},
        {"three", narrow, {"three"}},
        {"a three b", narrow, {"a", "three", "b"}},
        {" three", narrow, {" three"}},
        {"three ", narrow, {"three "}},
        {"a b", 0.0, {"a", "b"}},
        {"a b", -5.0, {"a", "b"}},
        {"", 100.0, {}},
    };
    for (const Row& row : rows) {
        for (const auto alignment : {TextAlignment::left, TextAlignment::center}) {
            const Rect rect{7, 3, row.width, 20};
            Path expected;
            double y = rect.top() - Font::label().ascent(kSize);
            for (const std::string& line : row.lines) {
                const double rest = rect.width - width_of_text(line, kSize);
                append_line(line, {alignment == TextAlignment::left ? 7.0 : 7.0 + rest / 2, y}, expected);
                y -= Font::label().line_height(kSize);
            }
            const Path path = laid_out(row.text, rect, alignment);
            ASSERT_EQ(path.elements().size(), expected.elements().size()) << row.text;
            for (std::size_t i = 0; i < path.elements().size(); ++i) {
                EXPECT_NEAR(path.elements()[i].end().x, expected.elements()[i].end().x, 1e-9) << row.text;
                EXPECT_NEAR(path.elements()[i].end().y, expected.elements()[i].end().y, 1e-9) << row.text;
            }
        }
    }
}

TEST(TextLayout, AxisLabelsFitTheirRectangles)
{
    for (const auto& [text, width] :
         {std::pair("0 dB", 20.0), {" 40", 20.0}, {"-40", 20.0}, {"Frequency (Hz)", 70.0}})
        EXPECT_LE(width_of_text(text, kSize), width) << text;
}

TEST(TextLayout, NothingIsLaidOutWithoutPlaceOrSize)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    for (const double size : {0.0, -9.0, kNaN, std::numeric_limits<double>::infinity()}) {
        Path path;
        append_text("text", {0, 0, 50, 20}, size, TextAlignment::left, path);
        EXPECT_TRUE(path.is_empty()) << size;
    }
    EXPECT_TRUE(laid_out("text", {0, kNaN, 50, 20}, TextAlignment::left).is_empty());
}

} // namespace
} // namespace r7
