// The mode knob's positions.
#include "controls/mode_knob_view.h"

#include <cmath>
#include <limits>
#include <utility>

namespace r7 {

namespace {

std::int32_t position_of(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const double position = std::floor(value);
    return position >= Limits::min() && position <= Limits::max() ? static_cast<std::int32_t>(position) : 0;
}

} // namespace

std::int32_t QmModeKnobView::current_menu_selection() const
{
    const std::int32_t position = position_of(current_value());
    if (position < 0) return position;
    const auto index = static_cast<std::size_t>(position);
    return index < menu_map_.size() ? menu_map_[index] : position;
}

void QmModeKnobView::set_menu_map(std::vector<std::int32_t> map)
{
    menu_map_ = std::move(map);
    set_values_minimum_maximum_default_value(0.0, static_cast<double>(menu_map_.size()) - 1.0, 0.0);
}

void QmModeKnobView::mouseDown(const MouseEvent& event)
{
    if (event.click_count != 2) return QmKnobView::mouseDown(event);
    step_up();
    set_needs_display();
}

void QmModeKnobView::step_up()
{
    const double next = current_value() + 1.0;
    choose(next > maximum_value() ? minimum_value() : next);
}

} // namespace r7
