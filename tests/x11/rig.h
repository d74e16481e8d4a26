// Windows and a loop on the display that the tests run on, and the other side: another program, a mouse, a
// keyboard.
#pragma once

#include "platform/graphics.h"
#include "platform/run_loop.h"
#include "platform/x11/connection.h"
#include "platform/x11/x11_window.h"

#include <gtest/gtest.h>
#include <xcb/xfixes.h>
#include <xcb/xtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <sstream>
#include <utility>
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
    /// What the display answers to a request.
    template <auto kReply, auto kRequest>
    auto ask(auto... arguments) const
    {
        using Reply = std::remove_pointer_t<decltype(kReply(nullptr, {}, nullptr))>;
        return XcbPointer<Reply>(kReply(get(), kRequest(get(), arguments...), nullptr));
    }
    xcb_window_t focus() const { return ask<xcb_get_input_focus_reply, xcb_get_input_focus>()->focus; }

    // Mouse and keyboard.
    void move_to(int x, int y) const { input(XCB_MOTION_NOTIFY, 0, x, y); }
    void move_by(int x, int y) const { input(XCB_MOTION_NOTIFY, 1, x, y); }
    /// After a while, by the display's clock.
    void press(int button, std::uint32_t milliseconds = 0) const
    {
        input(XCB_BUTTON_PRESS, button, 0, 0, milliseconds);
    }
    void release(int button) const { input(XCB_BUTTON_RELEASE, button); }
    /// Presses or releases the first key of a modifier, numbered as in XCB_MAP_INDEX_SHIFT and on.
    void hold(int modifier, bool down) const
    {
        const auto map = ask<xcb_get_modifier_mapping_reply, xcb_get_modifier_mapping>();
        const xcb_keycode_t* key =
            xcb_get_modifier_mapping_keycodes(map.get()) + modifier * map->keycodes_per_modifier;
        for (int i = 1; *key == 0 && i < map->keycodes_per_modifier; ++i) ++key;
        ASSERT_NE(*key, 0) << "no key is modifier " << modifier;
        input(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, *key);
    }
    std::pair<int, int> pointer() const
    {
        const auto at = ask<xcb_query_pointer_reply, xcb_query_pointer>(root());
        return {at->root_x, at->root_y};
    }
    /// The pointer's picture, as the XFIXES extension reads it back.
    struct Cursor {
        int width, height, hot_x, hot_y;
        Pixels pixels; // with alpha
        bool operator==(const Cursor&) const = default;
    };
    Cursor cursor() const
    {
        ask<xcb_xfixes_query_version_reply, xcb_xfixes_query_version>(4U, 0U);
        const auto reply = ask<xcb_xfixes_get_cursor_image_reply, xcb_xfixes_get_cursor_image>();
        const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
        return {reply->width, reply->height, reply->xhot, reply->yhot,
                Pixels(pixels, pixels + reply->width * reply->height)};
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
        message.type = atom("WM_PROTOCOLS");
        message.data.data32[0] = atom("WM_DELETE_WINDOW");
        xcb_send_event(get(), 0, window, 0, reinterpret_cast<const char*>(&message));
        focus();
    }
    void set_property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::string_view bytes) const
    {
        xcb_change_property(get(), XCB_PROP_MODE_REPLACE, window, name, type, 8,
                            static_cast<std::uint32_t>(bytes.size()), bytes.data());
        focus();
    }
    xcb_atom_t atom(std::string_view name) const { return connection_->atom(name); }
    xcb_window_t owner(std::string_view selection) const
    {
        return ask<xcb_get_selection_owner_reply, xcb_get_selection_owner>(atom(selection))->owner;
    }
    /// Pixels of a window and what lies over it, or none where it cannot be seen.
    Pixels pixels_of(xcb_window_t window, const xcb_rectangle_t& area) const
    {
        const auto image = ask<xcb_get_image_reply, xcb_get_image>(XCB_IMAGE_FORMAT_Z_PIXMAP, window, area.x,
                                                                   area.y, area.width, area.height, ~0U);
        if (!image) return {};
        return pixels_from(xcb_get_image_data(image.get()), std::size_t{area.width} * area.height);
    }

private:
    void input(std::uint8_t type, int detail, int x = 0, int y = 0, std::uint32_t delay = 0) const
    {
        xcb_test_fake_input(get(), type, static_cast<std::uint8_t>(detail), delay, root(),
                            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
        focus(); // answered when the server has done all before
    }

    X11OpenStatus status_ = X11OpenStatus::open;
    std::unique_ptr<X11Connection> connection_ = X11Connection::open({}, XCB_WINDOW_NONE, status_);
};

/// Writes down events as "drag 15,139 by 5,-10 x1" and paints a picture without symmetry.
class Listener final : public View {
public:
    using View::View;

    int paints = 0;
    double mark_x = 10.0;
    /// What was heard since the last call.
    std::string heard() { return std::exchange(heard_, {}); }
    bool has_heard(std::string_view word) const { return heard_.find(word) != std::string::npos; }
    void drawRect(Graphics& graphics, const Rect&) override
    {
        ++paints;
        const ColorRef ground = Color::device_rgba(0.2, 0.4, 0.6, 1.0),
                       mark = Color::device_rgba(1.0, 0.5, 0.0, 1.0);
        graphics.fill_rect(bounds(), ground.get(), Compositing::copy);
        graphics.fill_rect({mark_x, 20.0, 30.0, 5.0}, mark.get(), Compositing::copy);
    }
    void mouseDown(const MouseEvent& e) override { note("down", e); }
    void mouseDragged(const MouseEvent& e) override { note("drag", e); }
    void mouseUp(const MouseEvent& e) override { note("up", e); }

private:
    void note(std::string_view what, const MouseEvent& e)
    {
        std::ostringstream line;
        line << what << ' ' << e.location_in_window.x << ',' << e.location_in_window.y << " by " << e.delta_x
             << ',' << e.delta_y << " x" << e.click_count << '\n';
        heard_ += line.str();
    }

    std::string heard_;
};

/// An opened window of 200 by 150 points and its view.
struct Shown {
    std::shared_ptr<X11Window> x11;
    std::shared_ptr<Listener> view;
    bool is_embedded = false;
    int lost = 0;

    explicit Shown(RunLoop& loop, X11WindowOptions options = {})
    {
        if (options.size == Size{}) options.size = {200.0, 150.0};
        options.connection_lost = [this] { ++lost; };
        is_embedded = options.parent != 0;
        x11 = X11Window::open(options).window;
        if (!x11) throw std::runtime_error("no window");
        view = std::make_shared<Listener>(Rect{0.0, 0.0, options.size.width, options.size.height});
        x11->window().set_content_view(view);
        loop.add(x11);
    }
    Shown(const Shown&) = delete;

    Pixels on_screen(const Display& display) const
    {
        return display.pixels_of(x11->native_id(), {0, 0, static_cast<std::uint16_t>(x11->picture().width()),
                                                    static_cast<std::uint16_t>(x11->picture().height())});
    }
    /// What the screen ought to show.
    Pixels painted() const
    {
        const auto& bytes = x11->picture().pixels();
        return pixels_from(bytes.data(), bytes.size() / 4);
    }
};

/// What a settings manager publishes, lowest bytes first: a text, a colour and the time of a double click.
inline std::string desktop_settings(std::string_view milliseconds)
{
    using namespace std::string_literals;
    return "\0\0\0\0\7\0\0\0\3\0\0\0\1\0\15\0Net/ThemeName\0\0\0\7\0\0\0\5\0\0\0Plain\0\0\0"
           "\2\0\11\0Net/Color\0\0\0\7\0\0\0\1\2\3\4\5\6\7\0\0\0\23\0Net/DoubleClickTime\0\7\0\0\0"s.append(
               milliseconds);
}

struct X11Test : testing::Test {
    SteadyClock clock;
    RunLoop loop{clock};
    Display display;

    /// Turns the loop until that is so; false where it does not become so.
    bool turn_until(const std::function<bool()>& is_so)
    {
        for (int turns = 0; turns < 300; ++turns) {
            if (is_so()) return true;
            loop.turn(std::chrono::milliseconds(50));
        }
        return is_so();
    }
    /// Puts a top-level window there, and turns until the window knows it and is painted.
    [[nodiscard]] bool settle(const Shown& shown, int x = 300, int y = 200)
    {
        if (!shown.is_embedded) display.place(shown.x11->native_id(), x, y);
        const double scale = shown.x11->scale();
        const Point origin{x / scale, (kScreenHeight - y - shown.x11->picture().height()) / scale};
        return turn_until([&] {
            return shown.x11->window().frame().origin() == origin &&
                   shown.on_screen(display) == shown.painted();
        });
    }
    /// The button is let go even where a test failed.
    void TearDown() override { display.release(1); }

    static constexpr int kScreenWidth = 2400, kScreenHeight = 2100; // as with_xvfb.sh has it
};

} // namespace r7::testing_x11
