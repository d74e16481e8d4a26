// A control in a window, and a target that counts what it is told.
#pragma once

#include "platform/action.h"
#include "platform/window.h"
#include "tests/support/recording_graphics.h"

#include <gtest/gtest.h>

#include <limits>

namespace r7 {

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Counter final : ActionTarget {
    int calls = 0;
    static void count(ActionTarget& target, View&) { ++static_cast<Counter&>(target).calls; }
};

template <typename Control>
struct ControlRig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 200, 150});
    std::shared_ptr<Control> control = std::make_shared<Control>(Rect{30, 20, 100, 80});
    std::shared_ptr<Counter> target = std::make_shared<Counter>();

    ControlRig()
    {
        window->set_content_view(control);
        window->take_dirty_region();
        if constexpr (requires { control->set_callback_onObject(nullptr, nullptr); })
            control->set_callback_onObject(&Counter::count, target);
    }

    /// Whether something was to be redrawn since the last question.
    bool redraw_requested() { return !window->take_dirty_region().is_empty(); }

    /// What the control paints, in words.
    std::string drawn()
    {
        RecordingGraphics graphics;
        control->update_geometry();
        control->drawRect(graphics, control->bounds());
        return graphics.words();
    }
};

} // namespace r7
