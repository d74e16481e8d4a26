// What the display itself has of the view.
#include "tests/cocoa/cocoa_rig.h"

#include <span>

namespace r7 {
namespace {

// Where the panel shows a waveshaper's mode, from the upper left.
constexpr Rect kModes[] = {{780.0, 290.0, 40.0, 25.0}, {780.0, 426.0, 40.0, 25.0}};

using Pixels = std::vector<std::uint32_t>; // premultiplied ARGB, rows from the top

// By how much a picture strays from another: outside the range of what that has within a pixel of each place.
struct Strays {
    int on_flats = 0; // where that is one colour
    int at_edges = 0;
};

Strays strays(const Pixels& actual, const Pixels& expected, int width, std::span<const Rect> but)
{
    Strays most;
    const int height = static_cast<int>(expected.size()) / width;
    const auto component = [&](const Pixels& pixels, int x, int y, int shift) {
        return static_cast<int>(pixels[static_cast<std::size_t>(y * width + x)] >> shift & 0xFF);
    };
    for (int y = 1; y < height - 1; ++y) {
        for (int x = 1; x < width - 1; ++x) {
            const Point here{static_cast<double>(x), static_cast<double>(y)};
            if (std::ranges::any_of(but, [&](const Rect& rect) { return contains(rect, here); })) continue;
            bool flat = true;
            int most_here = 0;
            for (const int shift : {0, 8, 16}) {
                int low = 255, high = 0;
                for (int i = 0; i < 9; ++i) {
                    const int near = component(expected, x + i % 3 - 1, y + i / 3 - 1, shift);
                    low = std::min(low, near);
                    high = std::max(high, near);
                }
                const int shown = component(actual, x, y, shift);
                flat = flat && low == high;
                most_here = std::max({most_here, low - shown, shown - high});
            }
            int& kind = flat ? most.on_flats : most.at_edges;
            kind = std::max(kind, most_here);
        }
    }
    return most;
}

// What one sees of `below` through `above`.
Pixels composed(const Pixels& above, Pixels below)
{
    for (std::size_t i = 0; i < below.size(); ++i) {
        const std::uint32_t through = 255 - (above[i] >> 24);
        std::uint32_t seen = above[i];
        for (const int shift : {0, 8, 16, 24})
            seen += ((below[i] >> shift & 0xFF) * through + 127) / 255 << shift;
        below[i] = seen;
    }
    return below;
}

struct CocoaScreen : CocoaTest {
    const testing_x11::Display& display() const { return hand.display(); }

    /// A part of what a window has, with all bits of the pixels; empty where it cannot be seen.
    Pixels pixels_of(xcb_window_t window, Point upper_left, Size size) const
    {
        const auto at = [](double value) { return static_cast<std::int16_t>(value); };
        const auto extent = [](double value) { return static_cast<std::uint16_t>(value); };
        const auto image = display().ask<xcb_get_image_reply, xcb_get_image>(
            XCB_IMAGE_FORMAT_Z_PIXMAP, window, at(upper_left.x), at(upper_left.y), extent(size.width),
            extent(size.height), ~0U);
        if (!image) return {};
        Pixels pixels(xcb_get_image_data_length(image.get()) / 4);
        std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * 4);
        return pixels;
    }

    /// The panel's upper left corner, or more of it, on the display and off it.
    Pixels shown(Size size) const
    {
        const Rect frame = twin->window().window().frame();
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(display().get())).data;
        return pixels_of(screen.root, {frame.x, screen.height_in_pixels - frame.top()}, size);
    }
    Pixels painted(Size size) const
    {
        const BackBuffer& picture = twin->window().picture();
        Pixels pixels;
        for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y) {
            const auto* row =
                reinterpret_cast<const std::uint32_t*>(picture.pixels().data() + y * picture.stride());
            pixels.insert(pixels.end(), row, row + static_cast<std::ptrdiff_t>(size.width));
        }
        return pixels;
    }
    /// Expects the same flats, to `rounding`, and nearly the same edges, but for the texts, whose font is
    /// another.
    template <typename Shown>
    void expect_like_twin(Size size, int rounding, std::span<const Rect> texts, Shown shown) const
    {
        constexpr int kSamplings = 40; // of an edge, and of an image that lies between pixels
        const Pixels expected = painted(size);
        Strays most;
        EXPECT_TRUE(eventually([&] {
            most = strays(shown(), expected, static_cast<int>(size.width), texts);
            return most.on_flats <= rounding && most.at_edges <= kSamplings;
        })) << "strays by "
            << most.on_flats << " on flats, by " << most.at_edges << " at edges";
    }

    /// The window of 32 bits and that size that can be seen, or none.
    xcb_window_t transparent_window(Size size) const
    {
        const auto tree = display().ask<xcb_query_tree_reply, xcb_query_tree>(display().root());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
            const auto geometry = display().ask<xcb_get_geometry_reply, xcb_get_geometry>(window);
            const auto attributes =
                display().ask<xcb_get_window_attributes_reply, xcb_get_window_attributes>(window);
            if (geometry && geometry->depth == 32 && geometry->width == size.width &&
                geometry->height == size.height && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
                return window;
        }
        return XCB_WINDOW_NONE;
    }
};

TEST_F(CocoaScreen, AnOverlayTakesTheKeysAndLetsThePanelThrough)
{
    constexpr Size kEditor{560.0, 400.0};
    play("click wave_shaper_one_display\nclick wave_shaper_one_display clicks 2");
    const xcb_window_t overlay = transparent_window(kEditor);
    ASSERT_NE(overlay, XCB_WINDOW_NONE);
    EXPECT_TRUE(eventually([&] { return display().focus() == overlay; }));
    for (int paints = 0; paints < 2; ++paints) {
        const Pixels black_at_six_tenths{153U << 24};
        EXPECT_TRUE(eventually([&] {
            return pixels_of(overlay, {10.0, 10.0}, {1.0, 1.0}) == black_at_six_tenths;
        })) << std::hex
            << pixels_of(overlay, {10.0, 10.0}, {1.0, 1.0}).at(0);
        play("press zoomed_wave_shaper_display at 367 297\ndrag -40 0\nrelease"); // paints it anew
    }
    play("click zoomed_wave_shaper_display at 530 25");
    EXPECT_EQ(transparent_window(kEditor), XCB_WINDOW_NONE);
}

TEST_F(CocoaScreen, PanelAndEditorsLookAsTheyDoOffTheScreen)
{
    const Size panel = twin->panel().bounds().size();
    expect_like_twin(panel, 0, kModes, [&] { return shown(panel); });

    const struct {
        Size size;
        std::string_view display, open, close;
        std::vector<Rect> texts;
    } editors[] = {{{560.0, 400.0},
                    "click wave_shaper_two_display",
                    "click wave_shaper_two_display clicks 2",
                    "click zoomed_wave_shaper_display at 530 25",
                    {}},
                   {{640.0, 360.0},
                    "click pre_tone_control_display",
                    "click pre_tone_control_display clicks 2",
                    "click pre_tone_control at 620 40",
                    {{0.0, 0.0, 30.0, 360.0}, {0.0, 330.0, 640.0, 30.0}}}};
    for (const auto& [size, display, open, close, texts] : editors) {
        const Pixels below = shown(size);
        play(std::string(display) + '\n' + std::string(open));
        const xcb_window_t overlay = transparent_window(size);
        ASSERT_NE(overlay, XCB_WINDOW_NONE) << display;
        const auto seen = [&] { return composed(pixels_of(overlay, {0.0, 0.0}, size), below); };
        expect_like_twin(size, 2, texts, seen); // each layer is rounded to whole levels
        play(close);
    }
}

TEST_F(CocoaScreen, WhatCannotBeDrawnHarmsNothing)
{
    for (const auto& [parameter, value] : {std::pair(36u, "nan"),
                                           {37u, "inf"},
                                           {39u, "1e30"},
                                           {40u, "-inf"},
                                           {0u, "nan"},
                                           {7u, "inf"},
                                           {15u, "-1e30"},
                                           {31u, "nan"}}) {
        ASSERT_EQ(host.tell("automate " + std::to_string(parameter) + ' ' + value), "done");
        twin->unit().automate(parameter, std::strtof(value, nullptr));
    }
    const Size panel = twin->panel().bounds().size();
    const Pixels before = painted(panel);
    twin->advance(std::chrono::milliseconds(100));
    EXPECT_NE(painted(panel), before);
    expect_like_twin(panel, 0, kModes, [&] { return shown(panel); });
}

TEST_F(CocoaScreen, AutomationOnAnotherThreadTurnsAKnob)
{
    const OutletRow* const knob = outlet_row_named("output_level");
    const Size size = view_in(twin->panel(), *knob)->bounds().size();
    const Point upper_left = hand.pixel_of(knob, Point{0.0, size.height - 1.0});
    const auto picture = [&] { return pixels_of(display().root(), upper_left, size); };
    const auto before = picture();
    ASSERT_EQ(host.tell("automate 35 1.5"), "done");
    EXPECT_TRUE(eventually([&] { return picture() != before; }));
    ASSERT_EQ(host.tell("automate 35 1"), "done");
    EXPECT_TRUE(eventually([&] { return picture() == before; })) << "it was painted whole, and is again";
}

} // namespace
} // namespace r7
