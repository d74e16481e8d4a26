// Cursors of the display, made from pictures.
#pragma once

#include "platform/cursor.h"
#include "platform/x11/connection.h"

#include <xcb/render.h>

namespace r7 {

/// Makes cursors at one scale, and keeps the last one.
class X11CursorCache final {
public:
    X11CursorCache(X11Connection& connection, double scale) : connection_(connection), scale_(scale) {}

    /// The display's cursor for `cursor`, owned by the cache until it makes another. XCB_CURSOR_NONE for a
    /// null cursor or image, and where the display cannot show pictures as cursors.
    xcb_cursor_t find(const CursorRef& cursor);

private:
    xcb_cursor_t make(const Cursor& cursor);

    X11Connection& connection_;
    double scale_;
    bool asked_for_format_ = false;
    xcb_render_pictformat_t format_ = 0; // pixels with alpha
    CursorRef made_from_;
    xcb_cursor_t made_ = XCB_CURSOR_NONE;
};

} // namespace r7
