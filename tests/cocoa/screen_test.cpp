// What the display itself has of the view.
#include "tests/cocoa/cocoa_rig.h"

namespace r7 {
namespace {

struct CocoaScreen : CocoaTest {
    xcb_connection_t* display() const { return hand.display().get(); }

    /// A part of what a window has, with all bits of the pixels; empty where it cannot be seen.
    std::vector<std::uint32_t> pixels_of(xcb_window_t window, Point upper_left, Size size) const
    {
        const auto at = [](double value) { return static_cast<std::int16_t>(value); };
        const auto extent = [](double value) { return static_cast<std::uint16_t>(value); };
        const auto asked = xcb_get_image(display(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, at(upper_left.x),
                                         at(upper_left.y), extent(size.width), extent(size.height), ~0U);
        const XcbPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(display(), asked, nullptr));
        if (!image) return {};
        std::vector<std::uint32_t> pixels(xcb_get_image_data_length(image.get()) / 4);
        std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * 4);
        return pixels;
    }

    /// The window of 32 bits and that size that can be seen, or none.
    xcb_window_t transparent_window(Size size) const
    {
        const auto asked = xcb_query_tree(display(), hand.display().root());
        const XcbPointer<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(display(), asked, nullptr));
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
            const XcbPointer<xcb_get_geometry_reply_t> geometry(
                xcb_get_geometry_reply(display(), xcb_get_geometry(display(), window), nullptr));
            const XcbPointer<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
                display(), xcb_get_window_attributes(display(), window), nullptr));
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
    EXPECT_TRUE(eventually([&] { return hand.display().focus() == overlay; }));
    for (int paints = 0; paints < 2; ++paints) {
        const std::vector<std::uint32_t> black_at_six_tenths{153U << 24};
        EXPECT_TRUE(eventually([&] {
            return pixels_of(overlay, {10.0, 10.0}, {1.0, 1.0}) == black_at_six_tenths;
        })) << std::hex
            << pixels_of(overlay, {10.0, 10.0}, {1.0, 1.0}).at(0);
        play("press zoomed_wave_shaper_display at 367 297\ndrag -40 0\nrelease"); // paints it anew
    }
    play("click zoomed_wave_shaper_display at 530 25");
    EXPECT_EQ(transparent_window(kEditor), XCB_WINDOW_NONE);
}

TEST_F(CocoaScreen, AutomationOnAnotherThreadTurnsAKnob)
{
    const OutletRow* const knob = outlet_row_named("output_level");
    const Size size = view_in(twin->panel(), *knob)->bounds().size();
    const Point upper_left = hand.pixel_of(knob, Point{0.0, size.height - 1.0});
    const auto picture = [&] { return pixels_of(hand.display().root(), upper_left, size); };
    const auto before = picture();
    ASSERT_EQ(host.tell("automate 35 1.5"), "done");
    EXPECT_TRUE(eventually([&] { return picture() != before; }));
    ASSERT_EQ(host.tell("automate 35 1"), "done");
    EXPECT_TRUE(eventually([&] { return picture() == before; })) << "it was painted whole, and is again";
}

} // namespace
} // namespace r7
