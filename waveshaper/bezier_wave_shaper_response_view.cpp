// The small display of one waveshaper stage.
#include "waveshaper/bezier_wave_shaper_response_view.h"

#include "platform/graphics.h"
#include "waveshaper/stored_number.h"

namespace r7 {

namespace {

// One step short of the editor's whole period, and left open: this sine is a line, not an area.
constexpr std::size_t kVertices = kSineVertices - 1;
constexpr Size kLabelSize{10, 15};
const Color kHighlight{Rgba{1, 1, 1, 0.5}};

} // namespace

QM_BezierWaveShaperResponseView::QM_BezierWaveShaperResponseView(const Rect& frame)
    : View(frame), graph_{graph_frame_in(bounds()), {}}
{
    set_mode_string("-");
    sine_response_path.reserve(kVertices); // all that it will ever hold
}

void QM_BezierWaveShaperResponseView::set_from_sequence_data(const _QM_R7_Bezier_Sequence& record)
{
    copy_coefficients(record, coefficients_);
    have_data_to_draw = true;
    update_all_drawing();
}

void QM_BezierWaveShaperResponseView::update_input_level(double level)
{
    if (store_number(input_level, level)) update_all_drawing();
}

void QM_BezierWaveShaperResponseView::set_sine_pregain(float gain)
{
    if (store_number(pregain, gain)) update_all_drawing();
}

void QM_BezierWaveShaperResponseView::set_sine_postgain(float gain)
{
    if (store_number(postgain, gain)) update_all_drawing();
}

void QM_BezierWaveShaperResponseView::set_mode_string(const char* mode)
{
    if (!mode || (mode_string_image && mode_string == mode)) return;
    mode_string = mode;
    set_needs_display();
    mode_string_image = labels_[mode_string];
    if (mode_string_image) return;
    mode_string_image = labels_[mode_string] = Image::painted(kLabelSize, [this](Graphics& graphics) {
        const Rect all{0, 0, kLabelSize.width, kLabelSize.height};
        const Color black(Rgba{0, 0, 0, 1});
        graphics.fill_rect(all, &black, Compositing::source_over);
        const ColorRef blue = Color::device_rgba(0.333F, 0.333F, 1, 1);
        graphics.draw_text(mode_string, all, {9, TextAlignment::center, blue});
    });
}

void QM_BezierWaveShaperResponseView::set_sine_response_color(ColorRef color)
{
    sine_response_color = std::move(color);
    set_needs_display();
}

void QM_BezierWaveShaperResponseView::set_color_background(ColorRef color)
{
    background_color = std::move(color);
    set_needs_display();
}

void QM_BezierWaveShaperResponseView::mouseDown(const MouseEvent& event)
{
    if (event.click_count == 2) zoom_clicked();
}

void QM_BezierWaveShaperResponseView::update_all_drawing()
{
    path_is_stale_ = true;
    set_needs_display();
}

void QM_BezierWaveShaperResponseView::draw_graph()
{
    if (!path_is_stale_ || !have_data_to_draw) return;
    sine_response_path.remove_all_points();
    append_sine_response(sine_response_path, graph_, coefficients_, pregain * input_level, postgain,
                         kVertices);
    path_is_stale_ = false;
}

void QM_BezierWaveShaperResponseView::drawRect(Graphics& graphics, const Rect&)
{
    // Not clipped: a response may leave the graph.
    graphics.fill_rect(graph_.frame, background_color.get(), Compositing::source_over);
    if (have_data_to_draw) {
        sine_response_path.line_width = 2;
        graphics.stroke(sine_response_path, sine_response_color.get());
        // Of a flattened copy, which is the path itself: it has no curves.
        sine_response_path.line_width = 0.5;
        graphics.stroke(sine_response_path, &kHighlight);
    }
    if (mode_string_image) {
        const double x = bounds().x + (bounds().width - mode_string_image->size().width) * 0.5;
        graphics.draw_image(mode_string_image.get(), {x, 0}, Compositing::source_over, 1);
    }
}

} // namespace r7
