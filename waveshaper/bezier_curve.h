// The transfer curve that a user draws: seven points, what binds them together, and the record made of them.
#pragma once

#include "waveshaper/amplitude_axis.h"
#include "waveshaper/bezier_sequence.h"
#include "waveshaper/curve_coefficients.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace r7 {

/// The points of a curve. Each segment is a cubic over four of them, the mid point ending the first and
/// beginning the second.
enum class CurvePoint {
    zero_point,
    positive_mid_c1_point,
    positive_mid_c2_point,
    positive_mid_point,
    positive_end_c1_point,
    positive_end_c2_point,
    positive_end_point,
};
inline constexpr std::size_t kCurvePoints = 7;

/// A coordinate of a curve's point. It is what the platform's points hold, so that a 32-bit build computes
/// the same records as the other 32-bit instances of the panel.
using PointCoordinate = std::conditional_t<sizeof(void*) == 8, double, float>;

/// An input amplitude and the output amplitude that belongs to it.
struct AmplitudePoint {
    PointCoordinate x = 0;
    PointCoordinate y = 0;

    friend bool operator==(const AmplitudePoint&, const AmplitudePoint&) = default;
};

using CurvePoints = std::array<AmplitudePoint, kCurvePoints>;

/// A stage's transfer curve for input amplitudes from 0 on; the negative side is its odd mirror image.
///
/// The coefficients do not follow the points by themselves: after points were moved they are those of the old
/// points until `update_coeffs`, and after a record was loaded they are the record's own.
class BezierCurve final {
public:
    /// The identity, coefficients included.
    BezierCurve();

    const AmplitudePoint& point(CurvePoint which) const { return points_[static_cast<std::size_t>(which)]; }
    const CurvePoints& points() const { return points_; }
    const AmplitudeLimits& limits() const { return limits_; }
    const CurveCoefficients& coefficients() const { return coefficients_; }
    /// 2 once coefficients were computed from points.
    std::uint32_t number_of_segments() const { return number_of_segments_; }
    /// @copydoc CurveCoefficients::response_for_in_amplitude
    float response_for_in_amplitude(float in_amplitude) const
    {
        return coefficients_.response_for_in_amplitude(in_amplitude);
    }

    /// Takes the points as they are, bound by nothing.
    void set_points(const CurvePoints& points) { points_ = points; }

    /// The range that moved points are kept in; moves none by itself.
    void set_limits(const AmplitudeLimits& limits) { limits_ = limits; }

    /// Puts the points on the line y = x, up to full scale.
    void set_to_linear();

    /// Moves one point, clamped into the limits, and its neighbours after it. A NaN passes the clamp.
    ///
    /// Afterwards the mid point stands at half the end point's x, the control points at one third and two
    /// thirds of their segment's width, and the mid point on the line through its two control points, so that
    /// the slope has no step there. Hence a control point takes only the output amplitude, and the mid point
    /// neither. The end point stays 0.001 to the right of where the mid point was. The zero point moves
    /// alone.
    void set_point_to_in_amplitude_to_out_amplitude(CurvePoint which, float in_amplitude,
                                                    float out_amplitude);

    /// Computes the coefficients from the points. A segment without width gives infinities or NaN.
    void update_coeffs();

    /// Writes the coefficients, as they stand, and the constants into `record`, and counts its
    /// `needs_update`.
    void export_sequence_data(_QM_R7_Bezier_Sequence& record) const;

    /// Takes a record's coefficients unchanged and rebuilds all points but the zero point from C to H.
    void set_from_sequence_data(const _QM_R7_Bezier_Sequence& record);

private:
    AmplitudePoint& at(CurvePoint which) { return points_[static_cast<std::size_t>(which)]; }
    void restore_invariants();

    CurvePoints points_{};
    AmplitudeLimits limits_{};
    CurveCoefficients coefficients_{};
    std::uint32_t number_of_segments_ = 0;
};

} // namespace r7
