// What a window on an X11 display is opened with, and why it cannot be.
#pragma once

#include "platform/geometry.h"
#include "platform/image.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace r7 {

struct X11WindowOptions {
    Size size{};              ///< points; at least 1 by 1
    double scale = 0.0;       ///< pixels for a point, above 0; 0: the desktop's
    std::string title{};      ///< UTF-8; of a top-level window
    std::string class_name{}; ///< both parts of WM_CLASS; without zero bytes
    /// The window's picture in lists and bars, in several sizes; those that are null, or too large for a
    /// request of the display, are left out.
    std::vector<ImageRef> icons{};
    std::string display{};    ///< name of the display; empty: the one that the environment names
    std::uint32_t parent = 0; ///< the window to be embedded in, by its number; 0: a top-level window

    /// The longest time between the presses of a multiple click, by the display's clock; none: the desktop's,
    /// or 400 ms where it has none.
    std::optional<std::chrono::milliseconds> click_interval{};

    /// The user asks to close the window, which stays as it is. May destroy the window.
    std::function<void()> close_requested{};
    /// The display is gone, or the window's parent. Called once, from serve(); from then on the window shows
    /// nothing, hears nothing and has no file. May destroy the window.
    std::function<void()> connection_lost{};
};

enum class X11OpenStatus {
    open,
    no_display,       ///< there is none of that name, or it lets nobody in
    no_usable_visual, ///< the screen has no pixels of 32 bits, blue lowest, in this machine's byte order
    unusable_parent,  ///< there is no such window, or it takes no child
    too_large,        ///< more than 32,767 pixels a side
};

} // namespace r7
