// The waveshaper's sines against the plain form, which steps through the phases.
#include "bench/limits/limits.h"
#include "bench/limits/ratio.h"

#include "tests/waveshaper_model/plain_sine_response.h"
#include "waveshaper/bezier_curve.h"
#include "waveshaper/bezier_wave_shaper_response_view.h"

#include <array>

namespace r7::bench {

namespace {

constexpr std::string_view kEditor = "waveshaper editor's three sines: plain / ours";
constexpr std::string_view kDisplay = "small waveshaper display: plain / ours";
constexpr std::string_view kRebuild = "small waveshaper display with its path: plain / ours";

constexpr std::size_t kDisplayVertices = kSineVertices - 1;
constexpr AmplitudeGraph kEditorGraph{{5, 5, 550, 390}, {}};
constexpr Rect kDisplayFrame{0, 0, 288, 104};

/// Whether this machine works on as many vertices at a time as the limits are for.
bool has_wide_vectors()
{
#if defined(__x86_64__)
    return __builtin_cpu_supports("avx2");
#else
    return false;
#endif
}

/// Bent, so that a sine passes through both segments and the straight part.
BezierCurve bent_curve()
{
    BezierCurve curve;
    curve.set_point_to_in_amplitude_to_out_amplitude(CurvePoint::positive_end_point, 0.8F, 0.9F);
    curve.set_point_to_in_amplitude_to_out_amplitude(CurvePoint::positive_mid_c2_point, 0.3F, 0.7F);
    curve.update_coeffs();
    return curve;
}

/// The coordinates of one sine, computed in either form.
struct Sine {
    std::array<float, kSineVertices> positions{}, heights{};

    template <class Amplitude>
    void plain(const AmplitudeGraph& graph, const CurveCoefficients& curve, Amplitude amplitude,
               std::size_t vertices)
    {
        test::plain_sine_response(curve, amplitude, 1.0F, graph.in_axis(), graph.out_axis(), vertices,
                                  [&, i = std::size_t{0}](float position, float height) mutable {
                                      positions[i] = position;
                                      heights[i++] = height;
                                  });
    }
    template <class Amplitude>
    void ours(const AmplitudeGraph& graph, const CurveCoefficients& curve, Amplitude amplitude,
              std::size_t vertices)
    {
        sine_positions(graph.in_axis(), std::span(positions).first(vertices));
        sine_response(curve, amplitude, 1.0F, graph.out_axis(), std::span(heights).first(vertices));
    }
};

} // namespace

void measure_waveshaper(Limits& limits)
{
    if (!has_wide_vectors()) {
        for (const std::string_view what : {kEditor, kDisplay, kRebuild}) limits.skip("no AVX2", what);
        return;
    }
    const BezierCurve curve = bent_curve();
    const CurveCoefficients& coefficients = curve.coefficients();
    float gain = 1.0F;
    const auto turn = [&gain] { return gain = gain < 2.0F ? gain + 0.01F : 0.5F; };

    Sine sines[3];
    constexpr float kAmplitudes[] = {1.0F, 0.5F, 1.5F};
    const auto editor_by = [&](auto form) {
        return [&, form] {
            turn();
            for (std::size_t i = 0; i < 3; ++i)
                (sines[i].*form)(kEditorGraph, coefficients, kAmplitudes[i] * gain, kSineVertices);
            benchmark::ClobberMemory();
        };
    };
    limits.at_least(7, ratio(editor_by(&Sine::plain<float>), editor_by(&Sine::ours<float>)), kEditor);

    const AmplitudeGraph graph{graph_frame_in(kDisplayFrame), {}};
    const auto display_by = [&](auto form) {
        return [&, form] {
            (sines[0].*form)(graph, coefficients, static_cast<double>(turn()), kDisplayVertices);
            benchmark::ClobberMemory();
        };
    };
    limits.at_least(8, ratio(display_by(&Sine::plain<double>), display_by(&Sine::ours<double>)), kDisplay);

    _QM_R7_Bezier_Sequence record{};
    curve.export_sequence_data(record);
    QM_BezierWaveShaperResponseView display(kDisplayFrame);
    display.set_from_sequence_data(record);
    Path path;
    const auto plain_path = [&] {
        path.remove_all_points();
        test::plain_sine_response(coefficients, static_cast<double>(turn()), 1.0F, graph.in_axis(),
                                  graph.out_axis(), kDisplayVertices, [&path](float x, float y) {
                                      path.is_empty() ? path.move_to({x, y}) : path.line_to({x, y});
                                  });
    };
    const auto rebuilt_display = [&] {
        display.update_input_level(turn());
        display.update_geometry();
    };
    limits.at_least(4, ratio(plain_path, rebuilt_display), kRebuild);
}

} // namespace r7::bench
