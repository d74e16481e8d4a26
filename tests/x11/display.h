// The other side of the tests: another program on the display, and somebody at its mouse and keyboard.
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/x11_window.h"

#include <sys/types.h>

#include <cstdio>
#include <string>
#include <vector>

namespace r7::testing_x11 {

/// Pixels as an image of the display has them, without what lies above the colours.
using Pixels = std::vector<std::uint32_t>;

/// A connection of its own. Everything done through it has reached the server when the call returns.
class Display final {
public:
    /// The display by its name; empty: the environment's.
    explicit Display(const std::string& name = {});

    xcb_connection_t* get() const { return connection_->get(); }
    xcb_window_t root() const { return connection_->screen().root; }
    xcb_atom_t atom(std::string_view name) const { return connection_->atom(name); }

    // Mouse and keyboard.
    void move_to(int root_x, int root_y) const;
    void press(int button) const { button_event(XCB_BUTTON_PRESS, button); }
    void release(int button) const { button_event(XCB_BUTTON_RELEASE, button); }
    void click(int button) const;
    /// Presses or releases the first key of a modifier, numbered as in XCB_MAP_INDEX_SHIFT and on.
    void hold_modifier(int modifier, bool down) const;

    // Another program's windows.
    /// A mapped window without a manager, of the screen's visual or of one with alpha.
    xcb_window_t make_window(const Rect& pixels, bool with_alpha = false) const;
    void destroy(xcb_window_t window) const;
    void show(xcb_window_t window, bool shown) const;
    void place(xcb_window_t window, int x, int y) const;
    void fill(xcb_window_t window, const PixelRect& part, std::uint32_t color) const;
    void ask_to_close(xcb_window_t window) const;
    void set_resources(std::string_view text) const;

    Pixels pixels_of(xcb_window_t window, int width, int height) const;
    /// The bytes of a property, or nothing where there is none.
    std::string property(xcb_window_t window, xcb_atom_t name) const;
    xcb_window_t focus() const;

private:
    void button_event(std::uint8_t type, int button) const;

    // Until the server has done everything asked so far.
    void sync() const { focus(); }

    std::unique_ptr<X11Connection> connection_;
};

/// A server of one test's own, to be killed.
class PrivateServer final {
public:
    /// `screen` as the server's option of that name has it.
    explicit PrivateServer(const std::string& screen);
    ~PrivateServer();
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    const std::string& name() const { return name_; }
    void kill_it();

private:
    std::FILE* output_ = nullptr; // null once killed
    pid_t process_ = -1;
    std::string name_;
};

} // namespace r7::testing_x11
