// The zoomed curve editor: its paths, the images of its buttons, and painting them.
#include "platform/graphics.h"
#include "waveshaper/bezier_wave_shaper_view.h"

#include <numbers>
#include <span>

namespace r7 {

namespace {

using enum CurvePoint;

const Color kBrightHighlight{Rgba{1, 1, 1, 0.5}};
const Color kHighlight{Rgba{1, 1, 1, 0.4}};
const Color kRedResponse{Rgba{1, 0, 0, 0.35}};
const Color kBlueResponse{Rgba{0, 0, 1, 0.35}};
const Color kGreenResponse{Rgba{0, 1, 0, 0.35}};

constexpr CurvePoint kControlPoints[] = {positive_mid_c1_point, positive_mid_c2_point, positive_end_c1_point,
                                         positive_end_c2_point};
constexpr CurvePoint kHandles[] = {zero_point,
                                   positive_mid_c1_point,
                                   positive_mid_c2_point,
                                   positive_end_c1_point,
                                   positive_end_c2_point,
                                   positive_end_point};

// How far the straight part is drawn beyond the end point; off any graph.
constexpr double kStraightPart = 10;

// What the flattened curve can have: a path flattens each of the two cubics into at most 512 lines.
constexpr std::size_t kMostCurveElements = 2 * 512 + 2;

/// An image of 30 x 15 points: a translucent frame and a white glyph, which is lines between pairs of points,
/// or a filled triangle of three.
ImageRef button_image(const Rgba& color, std::span<const Point> glyph_points)
{
    return Image::painted({30, 15}, [&](Graphics& graphics) {
        const Color frame_color(color);
        const Color fill_color(Rgba{color.red, color.green, color.blue, 0.333F});
        Path frame;
        frame.append_rect({0, 0, 30, 15});
        frame.line_width = 2;
        graphics.fill(frame, &fill_color);
        graphics.stroke(frame, &frame_color);

        const Color white(Rgba{1, 1, 1, 1});
        Path glyph;
        glyph.line_width = 2;
        if (glyph_points.size() == 3) {
            glyph.move_to(glyph_points[0]);
            glyph.line_to(glyph_points[1]);
            glyph.line_to(glyph_points[2]);
            glyph.close();
            graphics.fill(glyph, &white);
            return;
        }
        for (std::size_t i = 0; i < glyph_points.size(); i += 2) {
            glyph.move_to(glyph_points[i]);
            glyph.line_to(glyph_points[i + 1]);
        }
        graphics.stroke(glyph, &white);
    });
}

/// A marker of points: stroked, filled and given a sheen.
void paint_points(Graphics& graphics, const Path& points, const Path& highlight, const Color* color)
{
    graphics.stroke(points, color);
    graphics.fill(points, color);
    graphics.fill(highlight, &kHighlight);
}

} // namespace

void QM_BezierWaveShaperView::awakeFromNib()
{
    constexpr Rgba kBlue{0, 0, 1, 1};
    constexpr Rgba kCyan{0, 1, 1, 1};
    constexpr Point kCross[] = {{10, 2.5}, {20, 12.5}, {10, 12.5}, {20, 2.5}};
    constexpr Point kRight[] = {{10, 4.5}, {22, 7.5}, {10, 10.5}};
    constexpr Point kLeft[] = {{20, 4.5}, {8, 7.5}, {20, 10.5}};
    constexpr Point kDiagonal[] = {{10, 2.5}, {20, 12.5}};
    zoom_button_image = button_image(kBlue, kCross);
    make_db_scale_button_image_off = button_image(kBlue, kRight);
    make_db_scale_button_image_on = button_image(kCyan, kLeft);
    make_linear_button_image = button_image(kBlue, kDiagonal);
}

void QM_BezierWaveShaperView::prepare_paths()
{
    marker_lines_path.line_width = 2;
    curve_path.line_width = 2.5;
    control_curve_path.line_width = 0.5;
    zero_point_path.line_width = 2;
    // The one path that varies in number is given its most; the others find theirs now, when they are first
    // built.
    curve_highlight_.reserve(kMostCurveElements);
    draw_graph();
}

void QM_BezierWaveShaperView::draw_graph()
{
    if (!paths_are_stale_) return;
    const AmplitudeGraph shown = graph();
    build_markers(shown);
    build_curve(shown);
    build_sine_responses(shown);
    paths_are_stale_ = false;
}

void QM_BezierWaveShaperView::build_markers(const AmplitudeGraph& graph)
{
    const auto& [in_min, in_max, out_min, out_max] = graph.limits;
    const Point lines[][2] = {
        {{in_min, -1}, {in_max, -1}},
        {{in_min, 1}, {in_max, 1}},
        {{-1, out_min}, {-1, out_max}},
        {{1, out_min}, {1, out_max}},
    };
    marker_lines_path.remove_all_points();
    for (const auto& [from, to] : lines) {
        marker_lines_path.move_to(graph.position_for_amplitudes(from));
        marker_lines_path.line_to(graph.position_for_amplitudes(to));
    }

    zero_point_path.remove_all_points();
    points_path.remove_all_points();
    control_points_path.remove_all_points();
    zero_point_path.append_oval(rect_to_draw_for_point(amplitudes_of(zero_point)));
    points_path.append_oval(rect_to_draw_for_point(amplitudes_of(positive_end_point)));
    for (const CurvePoint point : kControlPoints)
        control_points_path.append_oval(rect_to_draw_for_point(amplitudes_of(point)));
    zero_point_path.flatten_into(zero_point_highlight_);
    points_path.flatten_into(points_highlight_);
    control_points_path.flatten_into(control_points_highlight_);
}

void QM_BezierWaveShaperView::build_curve(const AmplitudeGraph& graph)
{
    const auto position = [&](CurvePoint point) {
        return graph.position_for_amplitudes(amplitudes_of(point));
    };
    const double far = amplitudes_of(positive_end_point).x + kStraightPart;
    curve_path.remove_all_points();
    curve_path.move_to(position(zero_point));
    curve_path.curve_to(position(positive_mid_c1_point), position(positive_mid_c2_point),
                        position(positive_mid_point));
    curve_path.curve_to(position(positive_end_c1_point), position(positive_end_c2_point),
                        position(positive_end_point));
    curve_path.line_to(
        graph.position_for_amplitudes({far, response_for_in_amplitude(static_cast<float>(far))}));
    curve_path.flatten_into(curve_highlight_);
    curve_highlight_.line_width = 0.5;

    control_curve_path.remove_all_points();
    control_curve_path.move_to(position(kHandles[0]));
    for (const CurvePoint point : std::span(kHandles).subspan(1)) control_curve_path.line_to(position(point));
}

void QM_BezierWaveShaperView::build_sine_responses(const AmplitudeGraph& graph)
{
    const struct {
        Path& path;
        float amplitude;
    } rows[] = {{sine_response_path, 1.0F}, {sine_response_path_2, 0.5F}, {sine_response_path_3, 1.5F}};
    for (const auto& [path, amplitude] : rows) {
        path.remove_all_points();
        append_sine_response(path, graph, curve_.coefficients(), amplitude * pregain, postgain,
                             kSineVertices);
        // Back to the left edge, so that what is filled lies between the response and this line.
        path.line_to({graph.in_axis().position(-std::numbers::pi), path.elements().front().end().y});
    }
}

void QM_BezierWaveShaperView::drawRect(Graphics& graphics, const Rect&)
{
    // Under the background, and not clipped: both are meant.
    graphics.stroke(marker_lines_path, marker_lines_color.get());

    graphics.clip_to(graph_frame);
    graphics.fill_rect(graph_frame, background_color.get(), Compositing::source_over);

    const ImageRef& db_scale_image =
        is_db_scale ? make_db_scale_button_image_on : make_db_scale_button_image_off;
    graphics.draw_image(zoom_button_image.get(), zoom_rect.origin(), Compositing::source_over, 1);
    graphics.draw_image(make_linear_button_image.get(), make_linear_rect.origin(), Compositing::source_over,
                        1);
    graphics.draw_image(db_scale_image.get(), make_db_scale_rect.origin(), Compositing::source_over, 1);

    graphics.fill(sine_response_path_3, &kRedResponse);
    graphics.fill(sine_response_path, &kBlueResponse);
    graphics.fill(sine_response_path_2, &kGreenResponse);

    graphics.stroke(curve_path, curve_color.get());
    graphics.stroke(curve_highlight_, &kBrightHighlight);
    graphics.stroke(control_curve_path, control_points_color.get());
    paint_points(graphics, control_points_path, control_points_highlight_, control_points_color.get());
    paint_points(graphics, points_path, points_highlight_, points_color.get());
    paint_points(graphics, zero_point_path, zero_point_highlight_, curve_color.get());
}

} // namespace r7
