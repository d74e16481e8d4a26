// What a transfer curve makes of a test sine.
//
// Plain loops over plain arrays, without branches, so that the compiler works on several vertices at once.
// Every vertex is taken through both segments and the straight part, and keeps one of the three; what it
// keeps went through the same operations, in the same order, as in
// CurveCoefficients::response_for_in_amplitude. Two things are left to that function: extents that are not
// numbers, for which the two signs take different branches, and amplitudes so small that an input may vanish,
// for which the response is zero whatever the segment says.
#include "waveshaper/sine_response.h"

#include <cassert>
#include <cmath>

// Versions for wider vectors, of which the dynamic linker chooses the widest that the machine has. It does so
// before a sanitizer is ready, hence not under one.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define R7_SANITIZED
#endif
#endif
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__SANITIZE_ADDRESS__) &&                       \
    !defined(__SANITIZE_THREAD__) && !defined(R7_SANITIZED)
#define R7_WIDER_VECTORS __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define R7_WIDER_VECTORS
#endif

namespace r7 {

namespace {

/// No constant expression on purpose: a compiler's own sines differ from the C library's in the last bit here
/// and there, and these are to be what a plain loop over the phases would see.
TestSine make_test_sine()
{
    constexpr float kStart = -3.1415927F;
    constexpr float kFirstStep = -3.1293209F;
    constexpr float kStep = 0.012271847F;
    TestSine sine;
    sine.phases[0] = kStart;
    sine.phases[1] = kFirstStep;
    for (std::size_t i = 2; i < kSineVertices; ++i) sine.phases[i] = sine.phases[i - 1] + kStep;
    for (std::size_t i = 0; i < kSineVertices; ++i) sine.values[i] = std::sin(sine.phases[i]);
    return sine;
}

/// From this amplitude on no vertex of the sine, the least of which is 9e-8, vanishes in single precision.
constexpr double kLeastAmplitude = 1e-30;

/// An axis with its division done once.
struct Scale {
    double points_per_amplitude;
    double minimum;
    double origin;

    explicit Scale(const AmplitudeAxis& axis)
        : points_per_amplitude(axis.length / (axis.maximum - axis.minimum)),
          minimum(axis.minimum),
          origin(axis.origin)
    {
    }
};

R7_WIDER_VECTORS
void place(const Scale& axis, const float* __restrict amplitudes, float* __restrict positions,
           std::size_t count)
{
    const auto [points_per_amplitude, minimum, origin] = axis;
    for (std::size_t i = 0; i < count; ++i)
        positions[i] = static_cast<float>(points_per_amplitude * (amplitudes[i] - minimum) + origin);
}

template <class Amplitude>
[[gnu::always_inline]] inline void trace_each(const CurveCoefficients& curve, Amplitude amplitude,
                                              float postgain, const Scale& axis, const float* __restrict sine,
                                              float* __restrict heights, std::size_t count)
{
    const double end_of_first = curve.segment_length[0];
    const double end_of_second = curve.segment_length[0] + curve.segment_length[1];
    const auto [p0, p1] = curve.P;
    const auto [q0, q1] = curve.Q;
    const auto [r0, r1] = curve.R;
    const auto [s0, s1] = curve.S;
    const double slope = curve.pos_M;
    const double intercept = curve.pos_Intercept;
    const auto [points_per_amplitude, minimum, origin] = axis;

    // Input, output, height, in a pass each: one pass for all needs more registers than there are, and takes
    // longer.
    for (std::size_t i = 0; i < count; ++i) heights[i] = static_cast<float>(sine[i] * amplitude);
    for (std::size_t i = 0; i < count; ++i) {
        const float in = heights[i];
        const double u = std::abs(in);
        const double first = ((p0 * u + q0) * u + r0) * u + s0;
        const double second = ((p1 * u + q1) * u + r1) * u + s1;
        const double straight = u * slope + intercept;
        const double curved = u >= end_of_first ? second : first;
        const double response = u >= end_of_second ? straight : curved;
        heights[i] = static_cast<float>(response) * (std::copysign(1.0F, in) * postgain);
    }
    for (std::size_t i = 0; i < count; ++i)
        heights[i] = static_cast<float>(points_per_amplitude * (heights[i] - minimum) + origin);
}

R7_WIDER_VECTORS
void trace(const CurveCoefficients& curve, float amplitude, float postgain, const Scale& axis,
           const float* sine, float* heights, std::size_t count)
{
    trace_each(curve, amplitude, postgain, axis, sine, heights, count);
}

R7_WIDER_VECTORS
void trace(const CurveCoefficients& curve, double amplitude, float postgain, const Scale& axis,
           const float* sine, float* heights, std::size_t count)
{
    trace_each(curve, amplitude, postgain, axis, sine, heights, count);
}

template <class Amplitude>
void respond(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
             const AmplitudeAxis& out_axis, std::span<float> heights)
{
    assert(heights.size() <= kSineVertices);
    const auto& sine = test_sine().values;
    const bool comparable = !std::isnan(curve.segment_length[0] + curve.segment_length[1]);
    if (comparable && std::abs(amplitude) >= kLeastAmplitude) {
        trace(curve, amplitude, postgain, Scale(out_axis), sine.data(), heights.data(), heights.size());
        return;
    }
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const auto in = static_cast<float>(sine[i] * amplitude);
        heights[i] = out_axis.position(curve.response_for_in_amplitude(in) * postgain);
    }
}

} // namespace

const TestSine& test_sine()
{
    static const TestSine sine = make_test_sine();
    return sine;
}

void sine_positions(const AmplitudeAxis& phase_axis, std::span<float> positions)
{
    assert(positions.size() <= kSineVertices);
    place(Scale(phase_axis), test_sine().phases.data(), positions.data(), positions.size());
}

void sine_response(const CurveCoefficients& curve, float amplitude, float postgain,
                   const AmplitudeAxis& out_axis, std::span<float> heights)
{
    respond(curve, amplitude, postgain, out_axis, heights);
}

void sine_response(const CurveCoefficients& curve, double amplitude, float postgain,
                   const AmplitudeAxis& out_axis, std::span<float> heights)
{
    respond(curve, amplitude, postgain, out_axis, heights);
}

} // namespace r7
