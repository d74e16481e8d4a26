// The window as the display knows it: its visual, its events and what it tells the window manager.
#pragma once

#include "platform/x11/connection.h"

namespace r7 {

/// What the window hears of the pointer: nothing while no button is held, so that a passing one wakes nobody.
inline constexpr std::uint32_t kPointerEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                                XCB_EVENT_MASK_BUTTON_1_MOTION |
                                                XCB_EVENT_MASK_BUTTON_3_MOTION;

/// Creates the window, not yet mapped, in `options.parent` or on the connection's screen. Its background is
/// nobody's: what is newly seen keeps the pixels that were there, so a repaint never flickers.
///
/// It selects no keys: an embedded window leaves the keyboard to its host. XCB_WINDOW_NONE where the display
/// refuses it.
xcb_window_t create_native_window(const X11Connection& connection, const X11WindowOptions& options,
                                  std::uint16_t width, std::uint16_t height);

} // namespace r7
