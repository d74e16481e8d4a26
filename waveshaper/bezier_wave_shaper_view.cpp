// The zoomed curve editor: creation, what it shows, whom it tells.
#include "waveshaper/bezier_wave_shaper_view.h"

#include "waveshaper/stored_number.h"

#include <utility>

namespace r7 {

QM_BezierWaveShaperView::QM_BezierWaveShaperView(const Rect& frame)
    : View(frame), graph_frame(graph_frame_in(bounds()))
{
    // Upward from the lower right corner of the graph, the button that closes the editor lowest.
    const double x = graph_frame.right() - 35;
    zoom_rect = {x, graph_frame.y + 10, 30, 20};
    make_db_scale_rect = {x, graph_frame.y + 40, 30, 20};
    make_linear_rect = {x, graph_frame.y + 70, 30, 20};
    prepare_paths();
}

void QM_BezierWaveShaperView::update_coeffs()
{
    curve_.update_coeffs();
    paths_are_stale_ = true;
}

void QM_BezierWaveShaperView::set_point_to_in_amplitude_to_out_amplitude(CurvePoint point, float in_amplitude,
                                                                         float out_amplitude)
{
    curve_.set_point_to_in_amplitude_to_out_amplitude(point, in_amplitude, out_amplitude);
    paths_are_stale_ = true;
}

void QM_BezierWaveShaperView::set_to_linear()
{
    curve_.set_to_linear();
    send_update_signal();
    update_all_drawing();
}

void QM_BezierWaveShaperView::set_amplitude_in_scale_out_scale(float in_scale, float out_scale)
{
    curve_.set_limits({-in_scale, in_scale, -out_scale, out_scale});
    update_all_drawing();
}

void QM_BezierWaveShaperView::make_db_scale()
{
    is_db_scale = !is_db_scale;
    curve_.set_limits(curve_.limits().scaled_by(is_db_scale ? 0.5F : 2.0F));
    update_all_drawing();
}

void QM_BezierWaveShaperView::set_sine_pregain(float gain)
{
    if (store_number(pregain, gain)) update_all_drawing();
}

void QM_BezierWaveShaperView::set_sine_postgain(float gain)
{
    if (store_number(postgain, gain)) update_all_drawing();
}

void QM_BezierWaveShaperView::set_from_sequence_data(const _QM_R7_Bezier_Sequence& record)
{
    curve_.set_from_sequence_data(record);
    update_all_drawing();
}

void QM_BezierWaveShaperView::send_update_signal()
{
    update_coeffs();
    callback_.send(*this);
}

void QM_BezierWaveShaperView::zoom_clicked()
{
    update_coeffs();
    toggle_callback_.send(*this);
}

void QM_BezierWaveShaperView::set_color_curve(ColorRef color)
{
    curve_color = std::move(color);
    set_needs_display();
}

void QM_BezierWaveShaperView::set_color_points_control_points(ColorRef points, ColorRef control_points)
{
    if (points) points_color = std::move(points);
    if (control_points) control_points_color = std::move(control_points);
    set_needs_display();
}

void QM_BezierWaveShaperView::set_sine_response_color(ColorRef color)
{
    sine_response_color = std::move(color);
    set_needs_display();
}

void QM_BezierWaveShaperView::set_color_background(ColorRef color)
{
    background_color = std::move(color);
    set_needs_display();
}

void QM_BezierWaveShaperView::update_all_drawing()
{
    paths_are_stale_ = true;
    set_needs_display();
}

} // namespace r7
