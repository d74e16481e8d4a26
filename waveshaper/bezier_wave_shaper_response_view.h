// The small display of one waveshaper stage: what the stage makes of a sine at its present input level.
#pragma once

#include "platform/action.h"
#include "platform/color.h"
#include "platform/image.h"
#include "platform/path.h"
#include "platform/view.h"
#include "waveshaper/amplitude_graph.h"
#include "waveshaper/bezier_sequence.h"
#include "waveshaper/curve_coefficients.h"

#include <map>
#include <string>
#include <utility>

namespace r7 {

/// Draws the response of a stage's curve to the test sine, and below it the stage's mode as a label.
///
/// Holds no points and edits nothing; a double click asks the owner for the zoomed editor. Shows no response
/// until the first record has come. Setters tell nobody and ask for a redraw where there is something new to
/// show; the path follows once, before the next paint.
class QM_BezierWaveShaperResponseView final : public View {
public:
    /// No curve, level 0, unit gains, mode "-".
    explicit QM_BezierWaveShaperResponseView(const Rect& frame);

    bool has_data_to_draw() const { return have_data_to_draw; }
    const CurveCoefficients& coefficients() const { return coefficients_; }
    float sine_pregain() const { return pregain; }
    float sine_postgain() const { return postgain; }
    double shown_input_level() const { return input_level; }
    const std::string& shown_mode() const { return mode_string; }

    /// @copydoc CurveCoefficients::response_for_in_amplitude
    float response_for_in_amplitude(float in_amplitude) const
    {
        return coefficients_.response_for_in_amplitude(in_amplitude);
    }
    Point position_for_amplitudes(Point amplitudes) const
    {
        return graph_.position_for_amplitudes(amplitudes);
    }
    Point amplitudes_for_position(Point position) const { return graph_.amplitudes_for_position(position); }

    /// Takes the coefficients of a record, unchanged, and nothing else of it.
    void set_from_sequence_data(const _QM_R7_Bezier_Sequence& record);
    /// Takes the amplitude of the sine that reaches the stage.
    void update_input_level(double level);
    /// Gains before and after the curve.
    void set_sine_pregain(float gain);
    void set_sine_postgain(float gain);
    /// Labels the display, in UTF-8. Null changes nothing.
    void set_mode_string(const char* mode);
    void set_sine_response_color(ColorRef color);
    void set_color_background(ColorRef color);

    /// Who opens the zoomed editor. Stored only if both are given.
    void set_toggle_callback_onObject(Action action, ActionTargetRef target)
    {
        toggle_callback_.set(action, std::move(target));
    }
    /// Forgets that pair and releases its target.
    void clear_toggle_callback() { toggle_callback_.clear(); }
    /// Asks for the zoomed editor.
    void zoom_clicked() { toggle_callback_.send(*this); }

    /// Brings the path up to date, if anything changed and there is a curve.
    void draw_graph();
    /// Has the path brought up to date before the next paint, and asks for it.
    void update_all_drawing();

    void update_geometry() override { draw_graph(); }
    void drawRect(Graphics& graphics, const Rect& dirty) override;
    bool acceptsFirstResponder() const override { return true; }
    bool mouseDownCanMoveWindow() const override { return false; }
    void mouseDown(const MouseEvent& event) override;

private:
    AmplitudeGraph graph_;
    CurveCoefficients coefficients_;
    bool have_data_to_draw = false;
    float pregain = 1.0F;
    float postgain = 1.0F;
    double input_level = 0.0;
    std::string mode_string;
    ImageRef mode_string_image;
    std::map<std::string, ImageRef> labels_; // all that were shown, by their modes: there are few
    ColorRef sine_response_color = Color::device_rgba(0.8, 0.15, 0.1, 1);
    ColorRef background_color;
    Callback toggle_callback_;

    bool path_is_stale_ = true;
    Path sine_response_path;
};

} // namespace r7
