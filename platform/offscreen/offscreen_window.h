// A top-level window without a display: for sessions, snapshots and tests.
#pragma once

#include "platform/cairo/back_buffer.h"
#include "platform/window.h"

#include <filesystem>

namespace r7 {

/// A window whose picture is painted when somebody looks at it.
class OffscreenWindow final : public WindowBackend {
public:
    /// `frame` in screen points; `scale` is pixels for a point.
    OffscreenWindow(const Rect& frame, double scale);
    ~OffscreenWindow() override;

    Window& window() { return *window_; }
    /// The picture, brought up to date.
    const BackBuffer& picture();
    /// The cursor shown now, or none.
    const CursorRef& cursor() const { return cursor_; }

    void window_needs_paint(const Rect&) override {}
    void show_cursor(const CursorRef& cursor) override { cursor_ = cursor; }

private:
    std::shared_ptr<Window> window_;
    BackBuffer back_buffer_;
    CursorRef cursor_;
};

} // namespace r7
