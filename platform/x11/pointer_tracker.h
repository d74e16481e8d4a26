// What the display says of the pointer, as the panel's mouse and scroll events.
#pragma once

#include "platform/event.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>

namespace r7 {

/// The pointer as the display reports it, in pixels from a top left corner.
struct X11Pointer {
    int x = 0; ///< in the window; may lie outside while a button is held
    int y = 0;
    int root_x = 0; ///< on the screen
    int root_y = 0;
    std::uint32_t time = 0;  ///< in milliseconds; starts again after the greatest
    std::uint16_t state = 0; ///< keys and buttons that were held just before, as the X protocol numbers them
};

/// Follows the pointer over one window: counts clicks and measures drags.
///
/// A pixel is told by its lower left corner, so that the pixels of a view, and no others, lie in its frame.
class X11PointerTracker final {
public:
    /// A press counts on from the one before where it is of the same button, no later than the click
    /// interval after it and no farther than this from it, and the pointer was not dragged farther in
    /// between.
    static constexpr double kClickDistance = 4.0; // points
    /// Where nobody says another.
    static constexpr std::chrono::milliseconds kClickInterval{400};

    X11PointerTracker(int window_height, double scale) : window_height_(window_height), scale_(scale) {}
    void set_click_interval(std::chrono::milliseconds interval) { click_interval_ = interval; }

    struct Button {
        MouseButton button = MouseButton::primary;
        MouseEvent event;
    };

    /// A press or a release of a button by its number (`detail`); nothing for those that are not delivered.
    std::optional<Button> press(std::uint8_t number, const X11Pointer& pointer);
    std::optional<Button> release(std::uint8_t number, const X11Pointer& pointer);
    /// A motion: of the button that was pressed first, of those held; nothing where none is, or where the
    /// pointer stands still.
    std::optional<Button> move(const X11Pointer& pointer);
    /// A press of the buttons that stand for a wheel: a notch. Nothing for other buttons.
    std::optional<ScrollEvent> scroll(std::uint8_t number, const X11Pointer& pointer) const;

private:
    Point location_of(const X11Pointer& pointer) const;
    double distance_from_press(const X11Pointer& pointer) const;
    MouseEvent event_of(MouseButton button, const X11Pointer& pointer);

    int window_height_;
    double scale_;
    std::chrono::milliseconds click_interval_ = kClickInterval;

    X11Pointer last_;  // the event before
    X11Pointer press_; // the last press
    MouseButton pressed_ = MouseButton::primary;
    MouseButton dragged_ = MouseButton::primary;
    bool strayed_ = true;                   // whether the next press starts counting
    std::array<int, 2> click_counts_{1, 1}; // by MouseButton
};

} // namespace r7
