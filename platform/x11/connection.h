// The connection to a display: the screen, the format of its pixels, and replies that free themselves.
#pragma once

#include "platform/cairo/pixels.h"
#include "platform/x11/window_options.h"

#include <xcb/xcb.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply or an event, which are the caller's to free.
template <typename T>
using XcbPointer = std::unique_ptr<T, FreeDeleter>;

/// The visual whose pixels are laid out as those of a BackBuffer, and its depth.
struct X11Visual {
    xcb_visualid_t id = 0;
    std::uint8_t depth = 0;
};

/// A connection of one window's own: closing it destroys all that was made over it.
class X11Connection final {
public:
    /// Connects to a display, and chooses the screen that has `parent`, or the display's preferred one. Null,
    /// with the reason in `status`, where that fails.
    static std::unique_ptr<X11Connection> open(const std::string& display, xcb_window_t parent,
                                               X11OpenStatus& status);
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    xcb_connection_t* get() const { return connection_; }
    bool is_broken() const { return xcb_connection_has_error(connection_) != 0; }
    const xcb_screen_t& screen() const { return *screen_; }
    const X11Visual& visual() const { return visual_; }
    /// Pixels for a point, as the desktop has them.
    double desktop_scale() const;
    /// The part of the screen that is seen on the monitor at this place, pixels from its top left corner; the
    /// whole screen where the display tells nothing of monitors, or shows none there.
    PixelRect monitor_at(int x, int y) const;
    /// The longest time between the presses of a double click, if the desktop says one. From then on a change
    /// of it comes as a PropertyNotify event, the only ones that this connection selects.
    std::optional<std::chrono::milliseconds> double_click_time() const;
    /// The display's number for a name; XCB_ATOM_NONE once the connection is broken.
    xcb_atom_t atom(std::string_view name) const;
    /// The bytes of a property; none where the window has none of that type, or its items are not bytes.
    std::string property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const;

private:
    explicit X11Connection(xcb_connection_t* connection) : connection_(connection) {}

    xcb_connection_t* connection_;
    const xcb_screen_t* screen_ = nullptr;
    X11Visual visual_;
};

} // namespace r7
