// The other side of the tests: another program on the display, and somebody at its mouse and keyboard.
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/x11_window.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <array>
#include <cstring>
#include <vector>

namespace r7::testing_x11 {

/// Pixels as an image of the display has them, without what lies above the colours.
using Pixels = std::vector<std::uint32_t>;

inline Pixels pixels_from(const void* bytes, std::size_t count)
{
    Pixels pixels(count);
    std::memcpy(pixels.data(), bytes, count * 4);
    for (std::uint32_t& pixel : pixels) pixel &= 0xffffff;
    return pixels;
}

/// A connection of its own. Everything done through it has reached the server when the call returns.
class Display final {
public:
    xcb_connection_t* get() const { return connection_->get(); }
    xcb_window_t root() const { return connection_->screen().root; }
    xcb_window_t focus() const
    {
        const XcbPointer<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
        return reply->focus;
    }

    // Mouse and keyboard.
    void move_to(int x, int y) const { input(XCB_MOTION_NOTIFY, 0, x, y); }
    void press(int button) const { input(XCB_BUTTON_PRESS, button); }
    void release(int button) const { input(XCB_BUTTON_RELEASE, button); }
    void click(int button) const
    {
        press(button);
        release(button);
    }
    /// Presses or releases the first key of a modifier, numbered as in XCB_MAP_INDEX_SHIFT and on.
    void hold(int modifier, bool down) const
    {
        const XcbPointer<xcb_get_modifier_mapping_reply_t> map(
            xcb_get_modifier_mapping_reply(get(), xcb_get_modifier_mapping(get()), nullptr));
        const xcb_keycode_t* key =
            xcb_get_modifier_mapping_keycodes(map.get()) + modifier * map->keycodes_per_modifier;
        for (int i = 1; *key == 0 && i < map->keycodes_per_modifier; ++i) ++key;
        ASSERT_NE(*key, 0) << "no key is modifier " << modifier;
        input(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, *key);
    }

    // Another program's windows.
    /// A mapped window without a manager, of the screen's visual or of one with alpha.
    xcb_window_t make_window(const xcb_rectangle_t& area, bool with_alpha = false) const
    {
        const xcb_screen_t* screen = &connection_->screen();
        xcb_visualid_t visual = screen->root_visual;
        std::uint8_t depth = screen->root_depth;
        for (auto i = xcb_screen_allowed_depths_iterator(screen); with_alpha && i.rem; xcb_depth_next(&i)) {
            if (i.data->depth != 32 || i.data->visuals_len == 0) continue;
            visual = xcb_depth_visuals(i.data)->visual_id;
            depth = 32;
        }
        const xcb_colormap_t colors = xcb_generate_id(get());
        xcb_create_colormap(get(), XCB_COLORMAP_ALLOC_NONE, colors, root(), visual);
        const std::array<std::uint32_t, 4> values{screen->white_pixel, 0, 1, colors};
        const xcb_window_t window = xcb_generate_id(get());
        xcb_create_window(get(), depth, window, root(), area.x, area.y, area.width, area.height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                              XCB_CW_COLORMAP,
                          values.data());
        show(window, true);
        return window;
    }
    void destroy(xcb_window_t window) const
    {
        xcb_destroy_window(get(), window);
        focus();
    }
    void show(xcb_window_t window, bool shown) const
    {
        shown ? xcb_map_window(get(), window) : xcb_unmap_window(get(), window);
        focus();
    }
    void place(xcb_window_t window, int x, int y) const
    {
        const std::array<std::int32_t, 2> values{x, y};
        xcb_configure_window(get(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
        focus();
    }
    void ask_to_close(xcb_window_t window) const
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = connection_->atom("WM_PROTOCOLS");
        message.data.data32[0] = connection_->atom("WM_DELETE_WINDOW");
        xcb_send_event(get(), 0, window, 0, reinterpret_cast<const char*>(&message));
        focus();
    }
    void set_resources(std::string_view text) const
    {
        xcb_change_property(get(), XCB_PROP_MODE_REPLACE, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING,
                            8, static_cast<std::uint32_t>(text.size()), text.data());
        focus();
    }
    /// Its pixels, or none where it cannot be seen.
    Pixels pixels_of(xcb_window_t window, std::uint16_t width, std::uint16_t height) const
    {
        const auto asked = xcb_get_image(get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, width, height, ~0U);
        const XcbPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(get(), asked, nullptr));
        if (!image) return {};
        return pixels_from(xcb_get_image_data(image.get()), std::size_t{width} * height);
    }

private:
    void input(std::uint8_t type, int detail, int x = 0, int y = 0) const
    {
        xcb_test_fake_input(get(), type, static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME, root(),
                            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
        focus(); // answered when the server has done all before
    }

    X11OpenStatus status_ = X11OpenStatus::open;
    std::unique_ptr<X11Connection> connection_ = X11Connection::open({}, XCB_WINDOW_NONE, status_);
};

} // namespace r7::testing_x11
