// The other side of the tests, over XCB and XTEST.
#include "tests/x11/display.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <array>
#include <csignal>
#include <cstring>
#include <utility>

namespace r7::testing_x11 {

Display::Display(const std::string& name)
{
    X11OpenStatus status = X11OpenStatus::open;
    connection_ = X11Connection::open(name, XCB_WINDOW_NONE, status);
    if (!connection_) throw std::runtime_error("no display");
}

xcb_window_t Display::focus() const
{
    const XcbPointer<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_WINDOW_NONE};
}

void Display::move_to(int root_x, int root_y) const
{
    xcb_test_fake_input(get(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root(),
                        static_cast<std::int16_t>(root_x), static_cast<std::int16_t>(root_y), 0);
    sync();
}

void Display::button_event(std::uint8_t type, int button) const
{
    xcb_test_fake_input(get(), type, static_cast<std::uint8_t>(button), XCB_CURRENT_TIME, root(), 0, 0, 0);
    sync();
}

void Display::click(int button) const
{
    press(button);
    release(button);
}

void Display::hold_modifier(int modifier, bool down) const
{
    const XcbPointer<xcb_get_modifier_mapping_reply_t> map(
        xcb_get_modifier_mapping_reply(get(), xcb_get_modifier_mapping(get()), nullptr));
    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(map.get());
    const int first = modifier * map->keycodes_per_modifier;
    int i = first;
    while (keys[i] == 0 && i < first + map->keycodes_per_modifier - 1) ++i;
    ASSERT_NE(keys[i], 0) << "no key is modifier " << modifier;
    xcb_test_fake_input(get(), down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keys[i], XCB_CURRENT_TIME, root(), 0,
                        0, 0);
    sync();
}

xcb_window_t Display::make_window(const Rect& pixels, bool with_alpha) const
{
    const xcb_screen_t* screen = &connection_->screen();
    xcb_visualid_t visual = screen->root_visual;
    std::uint8_t depth = screen->root_depth;
    if (with_alpha) {
        for (auto i = xcb_screen_allowed_depths_iterator(screen); i.rem; xcb_depth_next(&i)) {
            if (i.data->depth != 32 || i.data->visuals_len == 0) continue;
            visual = xcb_depth_visuals(i.data)->visual_id;
            depth = 32;
        }
        EXPECT_EQ(depth, 32);
    }
    const xcb_colormap_t colors = xcb_generate_id(get());
    xcb_create_colormap(get(), XCB_COLORMAP_ALLOC_NONE, colors, root(), visual);
    const std::array<std::uint32_t, 4> values{screen->white_pixel, 0, 1, colors};
    const xcb_window_t window = xcb_generate_id(get());
    xcb_create_window(get(), depth, window, root(), static_cast<std::int16_t>(pixels.x),
                      static_cast<std::int16_t>(pixels.y), static_cast<std::uint16_t>(pixels.width),
                      static_cast<std::uint16_t>(pixels.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
                      values.data());
    xcb_map_window(get(), window);
    sync();
    return window;
}

void Display::destroy(xcb_window_t window) const
{
    xcb_destroy_window(get(), window);
    sync();
}

void Display::show(xcb_window_t window, bool shown) const
{
    shown ? xcb_map_window(get(), window) : xcb_unmap_window(get(), window);
    sync();
}

void Display::place(xcb_window_t window, int x, int y) const
{
    const std::array<std::uint32_t, 2> values{static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    xcb_configure_window(get(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
    sync();
}

void Display::fill(xcb_window_t window, const PixelRect& part, std::uint32_t color) const
{
    const xcb_gcontext_t context = xcb_generate_id(get());
    xcb_create_gc(get(), context, window, XCB_GC_FOREGROUND, &color);
    const xcb_rectangle_t rectangle{static_cast<std::int16_t>(part.x), static_cast<std::int16_t>(part.y),
                                    static_cast<std::uint16_t>(part.width),
                                    static_cast<std::uint16_t>(part.height)};
    xcb_poly_fill_rectangle(get(), window, context, 1, &rectangle);
    xcb_free_gc(get(), context);
    sync();
}

void Display::ask_to_close(xcb_window_t window) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("WM_PROTOCOLS");
    message.data.data32[0] = atom("WM_DELETE_WINDOW");
    xcb_send_event(get(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
    sync();
}

void Display::set_resources(std::string_view text) const
{
    xcb_change_property(get(), XCB_PROP_MODE_REPLACE, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    sync();
}

Pixels Display::pixels_of(xcb_window_t window, int width, int height) const
{
    const XcbPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(
        get(),
        xcb_get_image(get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), ~0U),
        nullptr));
    if (!image) return {};
    Pixels pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * 4);
    for (std::uint32_t& pixel : pixels) pixel &= 0xffffff;
    return pixels;
}

std::string Display::property(xcb_window_t window, xcb_atom_t name) const
{
    const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        get(), xcb_get_property(get(), 0, window, name, XCB_ATOM_ANY, 0, 1024), nullptr));
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

PrivateServer::PrivateServer(const std::string& screen)
{
    const std::string command = "echo $$; exec setpriv --pdeathsig KILL Xvfb -displayfd 3 -screen 0 " +
                                screen + " -noreset -nolisten tcp -extension Composite 3>&1 >/dev/null 2>&1";
    output_ = popen(command.c_str(), "r");
    const auto number = [this] {
        std::array<char, 16> line{};
        if (!output_ || !std::fgets(line.data(), line.size(), output_)) throw std::runtime_error("no Xvfb");
        return std::stoi(line.data());
    };
    process_ = number();
    name_.append(":").append(std::to_string(number()));
}

PrivateServer::~PrivateServer()
{
    kill_it();
}

void PrivateServer::kill_it()
{
    if (!output_) return;
    ::kill(process_, SIGKILL);
    pclose(std::exchange(output_, nullptr));
}

} // namespace r7::testing_x11
