// The zoomed curve editor: picking points, dragging them, pressing the buttons.
#include "waveshaper/bezier_wave_shaper_view.h"

#include <algorithm>
#include <iterator>

namespace r7 {

namespace {

/// The points that can be picked, in the order in which they are tested and moved. The mid point follows its
/// neighbours, and the zero point stays where it is.
constexpr CurvePoint kPickable[] = {
    CurvePoint::positive_mid_c1_point, CurvePoint::positive_mid_c2_point, CurvePoint::positive_end_c1_point,
    CurvePoint::positive_end_c2_point, CurvePoint::positive_end_point,
};

} // namespace

Rect QM_BezierWaveShaperView::rect_to_draw_for_point(Point amplitudes) const
{
    const Point center = position_for_amplitudes(amplitudes);
    return {center.x - 2.5, center.y - 2.5, 5, 5};
}

Point QM_BezierWaveShaperView::amplitudes_of(CurvePoint point) const
{
    const AmplitudePoint& amplitudes = curve_.point(point);
    return {amplitudes.x, amplitudes.y};
}

bool QM_BezierWaveShaperView::pick_points_at(Point location)
{
    bool picked = false;
    for (const CurvePoint point : kPickable) {
        if (!contains(rect_to_draw_for_point(amplitudes_of(point)), location)) continue;
        moving_.set(static_cast<std::size_t>(point));
        picked = true;
    }
    return picked;
}

void QM_BezierWaveShaperView::press_buttons_at(Point location)
{
    if (contains(zoom_rect, location)) zoom_clicked();
    if (contains(make_db_scale_rect, location)) make_db_scale();
    if (contains(make_linear_rect, location)) set_to_linear();
}

void QM_BezierWaveShaperView::mouseDown(const MouseEvent& event)
{
    if (event.click_count == 2) return;
    const Point location = convert_from_window(event.location_in_window);
    // A point over a button is moved and the button not pressed.
    if (!pick_points_at(location)) press_buttons_at(location);
    mouse_is_down_ = true;
}

void QM_BezierWaveShaperView::rightMouseDown(const MouseEvent& event)
{
    pick_points_at(convert_from_window(event.location_in_window));
    mouse_is_down_ = true;
}

void QM_BezierWaveShaperView::mouseDragged(const MouseEvent& event)
{
    drag(event, has(event.modifiers, Modifiers::control) ? Motion::fine : Motion::whole);
}

void QM_BezierWaveShaperView::rightMouseDragged(const MouseEvent& event)
{
    drag(event, Motion::fine);
}

void QM_BezierWaveShaperView::mouseUp(const MouseEvent&)
{
    mouse_is_down_ = false;
    moving_.reset();
}

void QM_BezierWaveShaperView::drag(const MouseEvent& event, Motion motion)
{
    double dx = event.delta_x * scale;
    double dy = -event.delta_y * scale;
    if (motion == Motion::fine) {
        dx *= modifier_reduction;
        dy *= modifier_reduction;
    }
    if (has(event.modifiers, Modifiers::shift)) dx = 0;
    if (has(event.modifiers, Modifiers::option)) dy = 0;

    // All picked points are meant to land on one target, that of the first; the owner is told of each.
    const auto* const first =
        std::ranges::find_if(kPickable, [this](CurvePoint point) { return is_moving(point); });
    if (first != std::end(kPickable)) {
        const Point from = amplitudes_of(*first);
        const auto x = static_cast<float>(curve_.limits().clamped_in(from.x + dx));
        const auto y = static_cast<float>(curve_.limits().clamped_out(from.y + dy));
        for (const CurvePoint point : kPickable) {
            if (!is_moving(point)) continue;
            set_point_to_in_amplitude_to_out_amplitude(point, x, y);
            send_update_signal();
        }
    }
    mouse_is_down_ = true;
    update_all_drawing();
}

} // namespace r7
