// What the display says of the pointer, as the panel's mouse and scroll events.
#include "platform/x11/pointer_tracker.h"

#include <xcb/xproto.h>

#include <cmath>

namespace r7 {

namespace {

std::optional<MouseButton> button_of(std::uint8_t number)
{
    if (number == XCB_BUTTON_INDEX_1) return MouseButton::primary;
    if (number == XCB_BUTTON_INDEX_3) return MouseButton::secondary;
    return std::nullopt;
}

bool holds(const X11Pointer& pointer, MouseButton button)
{
    return pointer.state & (button == MouseButton::primary ? XCB_BUTTON_MASK_1 : XCB_BUTTON_MASK_3);
}

MouseButton other_than(MouseButton button)
{
    return button == MouseButton::primary ? MouseButton::secondary : MouseButton::primary;
}

Modifiers modifiers_of(const X11Pointer& pointer)
{
    // Alt, Super and the third-level key (AltGr) all stand for Option: window managers keep one or another
    // with a drag for themselves.
    constexpr struct {
        int mask;
        Modifiers modifier;
    } kKeys[] = {{XCB_MOD_MASK_SHIFT, Modifiers::shift},
                 {XCB_MOD_MASK_CONTROL, Modifiers::control},
                 {XCB_MOD_MASK_1 | XCB_MOD_MASK_4 | XCB_MOD_MASK_5, Modifiers::option}};
    Modifiers held = Modifiers::none;
    for (const auto& key : kKeys)
        if (pointer.state & key.mask) held = held | key.modifier;
    return held;
}

} // namespace

std::optional<X11PointerTracker::Button> X11PointerTracker::press(std::uint8_t number,
                                                                  const X11Pointer& pointer)
{
    const std::optional<MouseButton> button = button_of(number);
    if (!button) return std::nullopt;
    if (!holds(pointer, other_than(*button))) {
        dragged_ = *button;
        last_ = pointer;
    }
    // The difference of two times is right across the greatest.
    const bool counts_on = !strayed_ && *button == pressed_ &&
                           std::chrono::milliseconds(pointer.time - press_.time) <= click_interval_ &&
                           distance_from_press(pointer) <= kClickDistance;
    int& count = click_counts_[static_cast<std::size_t>(*button)];
    count = counts_on ? count + 1 : 1;
    press_ = pointer;
    pressed_ = *button;
    strayed_ = false;
    return Button{*button, event_of(*button, pointer)};
}

std::optional<X11PointerTracker::Button> X11PointerTracker::release(std::uint8_t number,
                                                                    const X11Pointer& pointer)
{
    const std::optional<MouseButton> button = button_of(number);
    if (!button) return std::nullopt;
    return Button{*button, event_of(*button, pointer)};
}

std::optional<X11PointerTracker::Button> X11PointerTracker::move(const X11Pointer& pointer)
{
    // The buttons held are the display's word, so a release that was lost to a grab leaves nothing behind.
    if (!holds(pointer, dragged_)) {
        if (!holds(pointer, other_than(dragged_))) return std::nullopt;
        dragged_ = other_than(dragged_);
    }
    if (pointer.root_x == last_.root_x && pointer.root_y == last_.root_y) return std::nullopt;
    if (distance_from_press(pointer) > kClickDistance) strayed_ = true;
    return Button{dragged_, event_of(dragged_, pointer)};
}

std::optional<ScrollEvent> X11PointerTracker::scroll(std::uint8_t number, const X11Pointer& pointer) const
{
    // Buttons 4 to 7: up, down, left, right.
    constexpr Point kNotches[] = {{0.0, 1.0}, {0.0, -1.0}, {-1.0, 0.0}, {1.0, 0.0}};
    if (number < 4 || number > 7) return std::nullopt;
    const Point notch = kNotches[number - 4];
    return ScrollEvent{location_of(pointer), notch.x, notch.y, modifiers_of(pointer)};
}

Point X11PointerTracker::location_of(const X11Pointer& pointer) const
{
    return {pointer.x / scale_, (window_height_ - 1 - pointer.y) / scale_};
}

double X11PointerTracker::distance_from_press(const X11Pointer& pointer) const
{
    return std::hypot(pointer.root_x - press_.root_x, pointer.root_y - press_.root_y) / scale_;
}

MouseEvent X11PointerTracker::event_of(MouseButton button, const X11Pointer& pointer)
{
    const MouseEvent event{location_of(pointer), (pointer.root_x - last_.root_x) / scale_,
                           (pointer.root_y - last_.root_y) / scale_,
                           click_counts_[static_cast<std::size_t>(button)], modifiers_of(pointer)};
    last_ = pointer;
    return event;
}

} // namespace r7
