// The committed images: there at both densities, of the right sizes, told apart without colour, without a
// seam.
#include "tests/resources/described_panel.h"
#include "tests/resources/picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace r7::art {
namespace {

const std::vector<std::string> kLampNames = {
    "tiny-off-led",  "tiny-red-led",       "tiny-green-led",       "tiny-amber-led",
    "tiny-blue-led", "tiny-dark-blue-led", "tiny-light-green-led", "tiny-light-blue-led",
    "tiny-pink-led", "tiny-purple-led",    "tiny-yellow-led"};
const std::vector<std::string> kKnobNames = {"Red Knob", "big-black-rubber-knob", "Small Rubber Knob"};
const std::vector<std::string> kSwitchNames = {"Push Button", "Matched Red Switch"};
const std::vector<std::string> kPatternNames = {"blue-bar", "LCD-grid"};

TEST(Images, KnobsAreRoundAboutTheMiddleOfTheirPicture)
{
    for (const std::string& name : kKnobNames) {
        const Picture knob = image_named(name + "@2x");
        ASSERT_EQ(knob.width, knob.height) << name;
        double count = 0.0, x = 0.0, y = 0.0;
        int left = knob.width, right = 0, top = knob.height, bottom = 0;
        for (int row = 0; row < knob.height; ++row)
            for (int column = 0; column < knob.width; ++column) {
                if (knob.at(column, row)[3] < 0.99) continue; // the shadow is translucent
                count += 1.0;
                x += column + 0.5;
                y += row + 0.5;
                left = std::min(left, column), right = std::max(right, column + 1);
                top = std::min(top, row), bottom = std::max(bottom, row + 1);
            }
        ASSERT_GT(count, 0.0) << name;
        EXPECT_NEAR(x / count, knob.width * 0.5, 0.1) << name;
        EXPECT_NEAR(y / count, knob.height * 0.5, 0.1) << name;
        EXPECT_EQ(left + right, knob.width) << name;
        EXPECT_EQ(top + bottom, knob.height) << name;
    }
}

// Those of one lamp or switch, and here any two lamps, need telling apart by everybody.
TEST(Images, OfOneControlAreToldApartWithoutColour)
{
    std::vector<std::vector<std::string>> families = {kLampNames};
    for (const std::string& family : kSwitchNames)
        families.push_back({family + " Left", family + " Flat", family + " Right"});
    for (const auto& names : families)
        for (const char* density : {"", "@2x"})
            for (std::size_t i = 0; i < names.size(); ++i)
                for (std::size_t j = 0; j < i; ++j) {
                    const Picture a = image_named(names[i] + density), b = image_named(names[j] + density);
                    for (const Eye eye : {Eye::grey, Eye::protan, Eye::deutan})
                        EXPECT_GE(difference(a, b, eye), 0.12) << names[i] << " and " << names[j] << density
                                                               << " to eye " << static_cast<int>(eye);
                }
}

// The greatest step of a component between two neighbouring rows (or columns), from `first` to `first + 1`.
double step_between(const Picture& tile, int first, bool rows)
{
    double step = 0.0;
    const int count = rows ? tile.height : tile.width, across = rows ? tile.width : tile.height;
    for (int i = 0; i < across; ++i) {
        const Pixel& a = rows ? tile.at(i, first) : tile.at(first, i);
        const Pixel& b = rows ? tile.at(i, (first + 1) % count) : tile.at((first + 1) % count, i);
        for (std::size_t k = 0; k < 4; ++k) step = std::max(step, std::abs(a[k] - b[k]));
    }
    return step;
}

TEST(Images, PatternsTileWithoutASeam)
{
    for (const std::string& name : kPatternNames)
        for (const char* density : {"", "@2x"})
            for (const bool rows : {true, false}) {
                const Picture tile = image_named(name + density);
                const int count = rows ? tile.height : tile.width;
                std::vector<double> steps;
                steps.reserve(static_cast<std::size_t>(count));
                for (int i = 0; i < count; ++i) steps.push_back(step_between(tile, i, rows));
                const double greatest = *std::max_element(steps.begin(), steps.end() - 1);
                EXPECT_LE(steps.back(), greatest + 1.0 / 255.0) << name << density << " rows " << rows;
            }
}

TEST(Images, CurvesStandOutOfTheGlass)
{
    const InterfaceDescription panel = described_panel();
    const Picture background = image_named("r7-bg");
    const Rect display = panel.find("post_tone_control_display")->frame;
    const auto column = static_cast<int>(display.x + display.width * 0.5) + 3;
    const Pixel glass = background.at(column, background.height - static_cast<int>(display.y) - 30);

    double filled = 0.0;
    const Picture grid = image_named("LCD-grid");
    for (const Pixel& pixel : grid.pixels) {
        Pixel over{0.0, 0.0, 0.0, 1.0};
        for (std::size_t i = 0; i < 3; ++i) over[i] = pixel[i] * pixel[3] + glass[i] * (1.0 - pixel[3]);
        filled += luminance(over) / static_cast<double>(grid.pixels.size());
    }
    EXPECT_GE(contrast(filled, luminance(glass)), 3.0);
    for (const Pixel& pixel : image_named("blue-bar").pixels)
        EXPECT_GE(contrast(luminance(pixel), luminance(glass)), 4.5);
}

} // namespace
} // namespace r7::art
