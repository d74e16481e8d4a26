// Sends pixels to a window or a pixmap of the display.
#pragma once

#include "platform/cairo/back_buffer.h"
#include "platform/x11/connection.h"

#include <cstdint>
#include <span>
#include <vector>

namespace r7 {

/// Copies rectangles of a picture in memory to the same place of one drawable.
class X11PixelSender final {
public:
    X11PixelSender(X11Connection& connection, xcb_drawable_t drawable, std::uint8_t depth);
    ~X11PixelSender();
    X11PixelSender(const X11PixelSender&) = delete;
    X11PixelSender& operator=(const X11PixelSender&) = delete;

    /// Queues the rectangle, in as few requests as the display takes it. `pixels` are rows of 32-bit pixels
    /// from the top, `stride` bytes from one to the next; `rect` lies in them and is not empty.
    void send(std::span<const std::uint8_t> pixels, std::size_t stride, const PixelRect& rect);

private:
    X11Connection& connection_;
    xcb_drawable_t drawable_;
    xcb_gcontext_t context_;
    std::uint8_t depth_;
    std::size_t most_bytes_; // of pixels in a request
    std::vector<std::uint8_t> rows_;
};

} // namespace r7
