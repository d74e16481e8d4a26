// A user's hand on a real display: the gestures of sessions as events of its server.
#pragma once

#include "app/offscreen_panel.h"
#include "app/session_script.h"
#include "tests/x11/rig.h"

#include <chrono>
#include <cmath>
#include <functional>
#include <stdexcept>
#include <thread>

namespace r7 {

/// Does to another program's panel what a session does to a panel off the screen, which tells it where the
/// views are: both lie at the same place of a screen of pixels as large as points.
class SessionHand final {
public:
    /// @param settle  returns when the other program has done with all events so far
    SessionHand(OffscreenPanel& twin, std::function<void()> settle) : twin_(twin), settle_(std::move(settle))
    {
    }

    // A point between pixels is the next one to the lower left. A drag by less than a pixel or out of the
    // screen, and a scroll by anything but a notch, are no gestures of a real hand: std::invalid_argument.

    void operator()(const session::Press& press)
    {
        move_to(pixel_of(press.view, press.at));
        if (press.clicks == 1) come_late_for_a_double_click();
        button_ = press.button == MouseButton::primary ? 1 : 3;
        display_.press(button_);
        clicked();
        settle_();
    }
    void operator()(const session::Drag& drag)
    {
        const std::pair<Modifiers, int> kKeys[] = {{Modifiers::control, XCB_MAP_INDEX_CONTROL},
                                                   {Modifiers::shift, XCB_MAP_INDEX_SHIFT},
                                                   {Modifiers::option, XCB_MAP_INDEX_1}};
        for (const auto& [modifier, key] : kKeys)
            if (has(drag.modifiers, modifier)) display_.hold(key, true);
        move_to({at_.x + drag.delta_x, at_.y + drag.delta_y});
        for (const auto& [modifier, key] : kKeys)
            if (has(drag.modifiers, modifier)) display_.hold(key, false);
        settle_();
    }
    void operator()(const session::Release&)
    {
        display_.release(button_);
        settle_();
    }
    void operator()(const session::Click& click)
    {
        (*this)(click.press);
        (*this)(session::Release{});
    }
    void operator()(const session::Scroll& scroll)
    {
        if (std::abs(scroll.delta_y) != 1.0) throw std::invalid_argument("a wheel turns by notches");
        move_to(pixel_of(scroll.view, scroll.at));
        come_late_for_a_double_click();
        const int wheel = scroll.delta_y > 0.0 ? 4 : 5;
        display_.press(wheel);
        display_.release(wheel);
        clicked();
        settle_();
    }
    void operator()(const auto&) { throw std::invalid_argument("this is no gesture"); }

    const testing_x11::Display& display() const { return display_; }

    /// A view's point, or its centre, as the pixel of the screen (from its upper left corner) that shows it.
    Point pixel_of(const OutletRow* row, std::optional<Point> at = std::nullopt) const
    {
        const View& view = *view_in(twin_.panel(), *row);
        const Point in_window =
            view.convert_to_window(at.value_or(Point{view.bounds().width / 2, view.bounds().height / 2}));
        const Point window = view.window()->frame().origin();
        return {std::floor(window.x + in_window.x), screen().y - 1.0 - std::floor(window.y + in_window.y)};
    }

private:
    using Clock = std::chrono::steady_clock;

    Point screen() const
    {
        const auto reply = display_.ask<xcb_get_geometry_reply, xcb_get_geometry>(display_.root());
        return {static_cast<double>(reply->width), static_cast<double>(reply->height)};
    }
    void move_to(Point pixel)
    {
        const Point size = screen();
        if (std::floor(pixel.x) != pixel.x || std::floor(pixel.y) != pixel.y || pixel.x < 0.0 ||
            pixel.y < 0.0 || pixel.x >= size.x || pixel.y >= size.y)
            throw std::invalid_argument("the pointer cannot go there");
        at_ = pixel;
        display_.move_to(static_cast<int>(at_.x), static_cast<int>(at_.y));
    }

    // Toolkits count presses of any button, the wheel's too, that come soon after another and near it.
    void come_late_for_a_double_click() const
    {
        const bool is_near = std::abs(at_.x - clicked_at_.x) < 8.0 && std::abs(at_.y - clicked_at_.y) < 8.0;
        if (is_near) std::this_thread::sleep_until(clicked_ + std::chrono::milliseconds(450));
    }
    void clicked()
    {
        clicked_ = Clock::now();
        clicked_at_ = at_;
    }

    testing_x11::Display display_;
    OffscreenPanel& twin_;
    std::function<void()> settle_;
    Point at_; // pixels from the screen's upper left corner
    int button_ = 1;
    Point clicked_at_;
    Clock::time_point clicked_;
};

} // namespace r7
