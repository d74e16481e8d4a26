// The committed images: there at both densities, of the right sizes, told apart without colour, without a
// seam.
#include "tests/resources/described_panel.h"
#include "tests/resources/picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace r7::art {
namespace {

const std::vector<std::string> kLampNames = {
    "tiny-off-led",  "tiny-red-led",       "tiny-green-led",       "tiny-amber-led",
    "tiny-blue-led", "tiny-dark-blue-led", "tiny-light-green-led", "tiny-light-blue-led",
    "tiny-pink-led", "tiny-purple-led",    "tiny-yellow-led"};
const std::vector<std::string> kKnobNames = {"Red Knob", "big-black-rubber-knob", "Small Rubber Knob"};
const std::vector<std::string> kSwitchNames = {"Push Button", "Matched Red Switch"};
const std::vector<std::string> kTiltNames = {" Left", " Flat", " Right"};
const std::vector<std::string> kPatternNames = {"blue-bar", "LCD-grid"};

std::vector<std::string> all_names()
{
    std::vector<std::string> names = {"r7-bg", "status-bar", "small-blue-dot_on", "small-blue-dot_off"};
    for (const auto& list : {kLampNames, kKnobNames, kPatternNames})
        names.insert(names.end(), list.begin(), list.end());
    for (const std::string& family : kSwitchNames)
        for (const std::string& tilt : kTiltNames) names.push_back(family + tilt);
    return names;
}

TEST(Images, AreThereAtOneAndTwoPixelsAPoint)
{
    for (const std::string& name : all_names()) {
        const Picture once = image_named(name), twice = image_named(name + "@2x");
        ASSERT_FALSE(once.pixels.empty()) << name;
        EXPECT_EQ(twice.width, 2 * once.width) << name;
        EXPECT_EQ(twice.height, 2 * once.height) << name;
    }
}

// A file with a physical size would be shown at that instead of a point a pixel.
TEST(Images, ClaimNoPhysicalSize)
{
    for (const std::string& name : all_names())
        for (const char* density : {"", "@2x"}) {
            std::ifstream file(R7_RESOURCES "/images/" + name + density + ".png", std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            ASSERT_GT(bytes.size(), 8u) << name;
            EXPECT_EQ(bytes.find("pHYs"), std::string::npos) << name << density;
        }
}

TEST(Images, FitTheFramesOfTheirViews)
{
    const InterfaceDescription panel = described_panel();
    const Picture background = image_named("r7-bg");
    EXPECT_EQ(background.width, panel.panel_size.width);
    EXPECT_EQ(background.height, panel.panel_size.height);
    EXPECT_TRUE(std::ranges::all_of(background.pixels, [](const Pixel& p) { return p[3] == 1.0; }));

    const struct {
        const char *outlet, *image;
    } centred[] = {
        {"envelope_sensitivity", "big-black-rubber-knob"},
        {"filter_resonance", "big-black-rubber-knob"},
        {"delay_depth_knob", "Red Knob"},
        {"output_level", "Red Knob"},
        {"wave_shaper_one_a", "Small Rubber Knob"},
        {"wave_shaper_two_d", "Small Rubber Knob"},
        {"start_vowel_light", "tiny-red-led"},
        {"delay_on_indicator_light", "tiny-green-led"},
    };
    for (const auto& [outlet, image] : centred) {
        const Picture picture = image_named(image);
        const Rect frame = panel.find(outlet)->frame;
        const double x = (frame.width - picture.width) * 0.5, y = (frame.height - picture.height) * 0.5;
        EXPECT_GE(x, 0.0) << outlet;
        EXPECT_GE(y, 0.0) << outlet;
        EXPECT_EQ(x, std::floor(x)) << outlet;
        EXPECT_EQ(y, std::floor(y)) << outlet;
    }
    for (const ViewDescription& view : panel.views) {
        if (view.class_name != "QmR7PushModeKnobView") continue;
        const std::string& family = kSwitchNames[view.outlet.starts_with("wave_shaper_")];
        for (const std::string& tilt : kTiltNames) {
            const Picture picture = image_named(family + tilt);
            EXPECT_EQ(picture.width, view.frame.width) << view.outlet << tilt;
            EXPECT_EQ(picture.height, view.frame.height) << view.outlet << tilt;
        }
    }
}

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

// Lamps of one light need telling apart by everybody; here any two are.
TEST(Images, LampsAreToldApartWithoutColour)
{
    for (const char* density : {"", "@2x"})
        for (std::size_t i = 0; i < kLampNames.size(); ++i)
            for (std::size_t j = 0; j < i; ++j) {
                const Picture a = image_named(kLampNames[i] + density);
                const Picture b = image_named(kLampNames[j] + density);
                for (const Eye eye : {Eye::grey, Eye::protan, Eye::deutan})
                    EXPECT_GE(difference(a, b, eye), 0.12) << kLampNames[i] << " and " << kLampNames[j]
                                                           << density << " to eye " << static_cast<int>(eye);
            }
}

TEST(Images, SwitchesShowWhichWayTheyTilt)
{
    for (const std::string& family : kSwitchNames)
        for (std::size_t i = 0; i < kTiltNames.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_GE(difference(image_named(family + kTiltNames[i]), image_named(family + kTiltNames[j]),
                                     Eye::grey),
                          0.12)
                    << family << kTiltNames[i] << kTiltNames[j];
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
                // Sharp edges come at one distance, across the seam too.
                std::vector<int> edges;
                for (int i = 0; i < count; ++i)
                    if (steps[static_cast<std::size_t>(i)] > 0.1) edges.push_back(i);
                for (std::size_t i = 2; i < edges.size(); ++i)
                    EXPECT_EQ(edges[i] - edges[i - 2], edges[0] + count - edges[edges.size() - 2])
                        << name << density << " rows " << rows;
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
