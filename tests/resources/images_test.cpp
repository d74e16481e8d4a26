// The committed images: there at both densities, round, told apart without colour, without a seam.
#include "tests/resources/committed.h"
#include "tests/resources/eyes.h"

namespace r7::art {
namespace {

TEST(Images, KnobsAreRoundAboutTheMiddleOfTheirPicture)
{
    for (const char* name : {"Red Knob@2x", "big-black-rubber-knob@2x", "Small Rubber Knob@2x"}) {
        const r7::Canvas knob = image_named(name);
        const int size = knob.width();
        ASSERT_EQ(size, knob.height()) << name;
        // The shadow is translucent.
        const auto is_knob = [&](int x, int y) { return knob.alpha(x, y) > 252; };
        EXPECT_TRUE(is_knob(size / 2, size / 2)) << name;
        int odd = 0;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) odd += is_knob(x, y) != is_knob(size - 1 - x, size - 1 - y);
        EXPECT_LE(odd, size / 8) << name << " differs from itself, turned by a half";
    }
}

// Those of one lamp or switch, and here any two lamps, need telling apart by everybody.
TEST(Images, OfOneControlAreToldApartWithoutColour)
{
    const std::vector<std::string> families[] = {
        {"tiny-off-led", "tiny-red-led", "tiny-green-led", "tiny-amber-led", "tiny-blue-led",
         "tiny-dark-blue-led", "tiny-light-green-led", "tiny-light-blue-led", "tiny-pink-led",
         "tiny-purple-led", "tiny-yellow-led"},
        {"Push Button Left", "Push Button Flat", "Push Button Right"},
        {"Matched Red Switch Left", "Matched Red Switch Flat", "Matched Red Switch Right"}};
    for (const auto& names : families)
        for (const char* density : {"", "@2x"})
            for (std::size_t i = 0; i < names.size(); ++i)
                for (std::size_t j = 0; j < i; ++j) {
                    const r7::Canvas a = image_named(names[i] + density), b = image_named(names[j] + density);
                    EXPECT_GE(difference(a, b), 0.12) << names[i] << " and " << names[j] << density;
                }
}

TEST(Images, PatternsTileWithoutASeam)
{
    for (const std::string name : {"blue-bar", "blue-bar@2x", "LCD-grid", "LCD-grid@2x"})
        for (const bool rows : {true, false}) {
            const r7::Canvas tile = image_named(name);
            const int count = rows ? tile.height() : tile.width(),
                      across = rows ? tile.width() : tile.height();
            const auto at = [&](int i, int j) {
                return rows ? tile.at(j, i % count) : tile.at(i % count, j);
            };
            int greatest_within = 0, greatest_at_seam = 0;
            for (int i = 0; i < count; ++i)
                for (int j = 0; j < across; ++j) {
                    int& greatest = i + 1 < count ? greatest_within : greatest_at_seam;
                    greatest = std::max(greatest, step_between(at(i, j), at(i + 1, j)));
                }
            EXPECT_LE(greatest_at_seam, greatest_within + 1) << name << " rows " << rows;
        }
}

TEST(Images, CurvesStandOutOfTheGlass)
{
    const r7::Canvas background = image_named("r7-bg"), grid = image_named("LCD-grid"),
                     bar = image_named("blue-bar");
    const Rect display = described_panel().find("post_tone_control_display")->frame;
    const Pixel glass = background.at(static_cast<int>(display.x + display.width * 0.5) + 3,
                                      static_cast<int>(display.y) + 29);
    double filled = 0.0;
    for (int y = 0; y < grid.height(); ++y)
        for (int x = 0; x < grid.width(); ++x) {
            const Pixel p = grid.at(x, y);
            const auto over = [&](int above, int below) { return above + below * (255 - p.alpha) / 255; };
            filled += luminance(
                {over(p.red, glass.red), over(p.green, glass.green), over(p.blue, glass.blue), 255});
        }
    EXPECT_GE(contrast(filled / (grid.width() * grid.height()), luminance(glass)), 3.0);
    double dullest = 1.0;
    for (int y = 0; y < bar.height(); ++y)
        for (int x = 0; x < bar.width(); ++x) dullest = std::min(dullest, luminance(bar.at(x, y)));
    EXPECT_GE(contrast(dullest, luminance(glass)), 4.5);
}

} // namespace
} // namespace r7::art
