// What a transfer curve makes of a test sine: the vertices of the response that editor and display draw.
#pragma once

#include "waveshaper/amplitude_axis.h"
#include "waveshaper/curve_coefficients.h"

#include <array>
#include <cstddef>
#include <span>

namespace r7 {

/// Vertices of one whole period: its start at -pi and 512 steps.
inline constexpr std::size_t kSineVertices = 513;

/// The test sine, one for the whole process. The steps of the phase are summed in single precision, so that
/// the last phase is only near pi.
struct TestSine {
    std::array<float, kSineVertices> phases{}; ///< in radians
    std::array<float, kSineVertices> values{}; ///< their sines
};
const TestSine& test_sine();

/// View coordinates along the phase axis of the sine's first vertices, as many as `positions` has room for.
void sine_positions(const AmplitudeAxis& phase_axis, std::span<float> positions);

/// View coordinates, along the output axis, of a curve's response to the sine: of its first vertices, as many
/// as `heights` has room for. At most kSineVertices; a vertex costs no more than a few operations on vectors.
///
/// Equal in every bit to the plain sequence: the sine times `amplitude`, in the precision that `amplitude`
/// has and then single; the response; times `postgain` in single precision; the position. A NaN's payload is
/// its own affair.
void sine_response(const CurveCoefficients& curve, float amplitude, float postgain,
                   const AmplitudeAxis& out_axis, std::span<float> heights);
void sine_response(const CurveCoefficients& curve, double amplitude, float postgain,
                   const AmplitudeAxis& out_axis, std::span<float> heights);

} // namespace r7
