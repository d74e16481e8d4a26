// The zoomed editor of one waveshaper stage's transfer curve.
#pragma once

#include "platform/action.h"
#include "platform/color.h"
#include "platform/image.h"
#include "platform/path.h"
#include "platform/view.h"
#include "waveshaper/amplitude_graph.h"
#include "waveshaper/bezier_curve.h"

#include <bitset>
#include <cstddef>
#include <utility>

namespace r7 {

/// Shows a curve over the test sine's responses, and lets the user drag its points.
///
/// A user's change recomputes the coefficients and sends the callback; programmatic changes send nothing, but
/// for `set_to_linear` and `send_update_signal`, which are asked to. Every change of what is shown asks for a
/// redraw; the paths follow once, before the next paint. In both directions curves travel as records.
class QM_BezierWaveShaperView final : public View {
public:
    /// Shows the identity between input amplitudes of -pi and pi and output amplitudes of -2 and 2.
    explicit QM_BezierWaveShaperView(const Rect& frame);

    const BezierCurve& curve() const { return curve_; }
    bool shows_db_scale() const { return is_db_scale; }
    float sine_pregain() const { return pregain; }
    float sine_postgain() const { return postgain; }
    /// Whether a press has picked this point. The secondary button's picks stay until the primary's release.
    bool is_moving(CurvePoint point) const { return moving_.test(static_cast<std::size_t>(point)); }
    /// Whether a button is held over the view since a press or drag.
    bool mouse_is_down() const { return mouse_is_down_; }

    /// @copydoc BezierCurve::response_for_in_amplitude
    float response_for_in_amplitude(float in_amplitude) const
    {
        return curve_.response_for_in_amplitude(in_amplitude);
    }
    Point position_for_amplitudes(Point amplitudes) const
    {
        return graph().position_for_amplitudes(amplitudes);
    }
    Point amplitudes_for_position(Point position) const { return graph().amplitudes_for_position(position); }
    /// The square of 5 points in which a point is both drawn and hit.
    Rect rect_to_draw_for_point(Point amplitudes) const;

    /// Computes the coefficients from the points. Asks for no redraw.
    void update_coeffs();
    /// @copydoc BezierCurve::set_point_to_in_amplitude_to_out_amplitude
    /// Neither computes coefficients nor asks for a redraw.
    void set_point_to_in_amplitude_to_out_amplitude(CurvePoint point, float in_amplitude,
                                                    float out_amplitude);
    /// Makes the curve the identity, and sends the update signal.
    void set_to_linear();
    /// Shows the amplitudes from -in_scale to in_scale and from -out_scale to out_scale.
    void set_amplitude_in_scale_out_scale(float in_scale, float out_scale);
    /// Turns the twofold zoom into the middle of the graph on or off. No axis is in decibels, in spite of the
    /// name.
    void make_db_scale();
    /// Gains before and after the curve that the test sines are drawn with.
    void set_sine_pregain(float gain);
    void set_sine_postgain(float gain);

    /// @copydoc BezierCurve::export_sequence_data
    void export_sequence_data(_QM_R7_Bezier_Sequence& record) const { curve_.export_sequence_data(record); }
    /// @copydoc BezierCurve::set_from_sequence_data
    void set_from_sequence_data(const _QM_R7_Bezier_Sequence& record);
    /// Does nothing: every curve is odd.
    void set_symmetry_from_data() {}

    /// Who is told of a user's change. Stored only if both are given, as below.
    void set_callback_onObject(Action action, ActionTargetRef target)
    {
        callback_.set(action, std::move(target));
    }
    /// Who closes the editor.
    void set_toggle_callback_onObject(Action action, ActionTargetRef target)
    {
        toggle_callback_.set(action, std::move(target));
    }
    /// Forget those pairs and release their targets.
    void clear_callback() { callback_.clear(); }
    void clear_toggle_callback() { toggle_callback_.clear(); }
    /// Computes the coefficients and sends the callback.
    void send_update_signal();
    /// Computes the coefficients and asks to be closed.
    void zoom_clicked();

    /// Amplitude for each point of the mouse's motion.
    void set_scale_factor(double factor) { scale = factor; }
    /// What fine motion is multiplied by.
    void set_modifier_reduction(double reduction) { modifier_reduction = reduction; }
    /// Does nothing: scale and reduction are all there is to set.
    void set_edit_dynamics() {}

    void set_color_curve(ColorRef color);
    /// A null colour leaves the one that it would replace.
    void set_color_points_control_points(ColorRef points, ColorRef control_points);
    void set_sine_response_color(ColorRef color);
    void set_color_background(ColorRef color);

    /// Brings the paths up to date, if anything changed.
    void draw_graph();
    /// Has the paths brought up to date before the next paint, and asks for it.
    void update_all_drawing();

    void update_geometry() override { draw_graph(); }
    void drawRect(Graphics& graphics, const Rect& dirty) override;
    /// Paints the images of the buttons.
    void awakeFromNib() override;
    bool acceptsFirstResponder() const override { return true; }
    bool mouseDownCanMoveWindow() const override { return false; }
    void mouseDown(const MouseEvent& event) override;
    void mouseDragged(const MouseEvent& event) override;
    void mouseUp(const MouseEvent& event) override;
    void rightMouseDown(const MouseEvent& event) override;
    // The secondary button's release is meant to do nothing, so what it picked stays picked.
    void rightMouseDragged(const MouseEvent& event) override;

private:
    /// Whether a drag moves points by the whole motion of the mouse or by the reduced one.
    enum class Motion { whole, fine };

    AmplitudeGraph graph() const { return {graph_frame, curve_.limits()}; }
    Point amplitudes_of(CurvePoint point) const;
    /// Marks the points whose squares contain `location`, and tells whether there was one.
    bool pick_points_at(Point location);
    void press_buttons_at(Point location);
    void drag(const MouseEvent& event, Motion motion);

    /// Sets the widths of the lines and makes room for all that the paths will hold.
    void prepare_paths();
    void build_markers(const AmplitudeGraph& graph);
    void build_curve(const AmplitudeGraph& graph);
    void build_sine_responses(const AmplitudeGraph& graph);

    BezierCurve curve_;
    Rect graph_frame;
    bool is_db_scale = false;
    float pregain = 1.0F;
    float postgain = 1.0F;

    std::bitset<kCurvePoints> moving_; // by CurvePoint
    bool mouse_is_down_ = false;
    double scale = 0.01;
    double modifier_reduction = 0.1;
    Rect zoom_rect;
    Rect make_db_scale_rect;
    Rect make_linear_rect;
    Callback callback_;
    Callback toggle_callback_;

    ColorRef curve_color = Color::device_rgba(0, 0, 1, 1);
    ColorRef points_color = Color::device_rgba(1, 0, 0, 1);
    ColorRef control_points_color = Color::device_rgba(1, 1, 0, 1);
    ColorRef background_color;
    ColorRef marker_lines_color = Color::device_white(0.75, 0.5);
    // Kept, and painted nowhere.
    ColorRef sine_response_color = Color::device_rgba(0.8, 0.15, 0.1, 1);
    ColorRef activated_control_color = Color::device_rgba(0, 1, 1, 1);

    ImageRef zoom_button_image;
    ImageRef make_db_scale_button_image_on;
    ImageRef make_db_scale_button_image_off;
    ImageRef make_linear_button_image;

    bool paths_are_stale_ = true;
    Path marker_lines_path;
    Path curve_path;
    Path curve_highlight_; // a flattened copy, as the other highlights are
    Path control_curve_path;
    Path control_points_path;
    Path control_points_highlight_;
    Path points_path;
    Path points_highlight_;
    Path zero_point_path;
    Path zero_point_highlight_;
    Path sine_response_path;   // full scale
    Path sine_response_path_2; // half
    Path sine_response_path_3; // one and a half
};

} // namespace r7
