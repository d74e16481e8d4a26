// The overlay window.
#include "host/overlay_window.h"

namespace r7 {

QM_R7_Overlay_Window::QM_R7_Overlay_Window(const Rect& content_rect, WindowStyle, WindowBacking,
                                           WindowCreation)
    : Window(content_rect, WindowStyle::borderless, WindowBacking::buffered, WindowCreation::immediate)
{
    background_color = Color::device_white(0.0, 0.0);
    is_opaque = false;
    has_shadow = true;
}

} // namespace r7
