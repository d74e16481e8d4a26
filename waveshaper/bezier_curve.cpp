// The transfer curve that a user draws: constraints of the points, coefficients, record.
//
// Curves travel between instances of the panel, so each rounding to single precision and each order of
// operations below is meant: two instances that were given the same drags hold the same bits.
#include "waveshaper/bezier_curve.h"

namespace r7 {

namespace {

constexpr float kThird = 1.0F / 3.0F;
constexpr double kLeastMidToEnd = 0.001;
constexpr std::size_t kSegments = 2;

/// Segment i is the cubic over the points kFirstPoint[i] and the three after it.
constexpr std::size_t kFirstPoint[kSegments] = {0, 3};

float single(double value)
{
    return static_cast<float>(value);
}

} // namespace

BezierCurve::BezierCurve()
{
    set_to_linear();
    update_coeffs();
}

void BezierCurve::set_to_linear()
{
    // Multiples of the single-precision sixth: the fifth is not the number next to 5/6.
    constexpr float kSixths[kCurvePoints] = {
        0.0F, 0.1666666716337204F, 0.3333333432674408F, 0.5F, 0.6666666865348816F, 0.8333333730697632F, 1.0F,
    };
    for (std::size_t i = 0; i < kCurvePoints; ++i) points_[i] = {kSixths[i], kSixths[i]};
}

void BezierCurve::set_point_to_in_amplitude_to_out_amplitude(CurvePoint which, float in_amplitude,
                                                             float out_amplitude)
{
    AmplitudePoint& moved = at(which);
    moved.y = static_cast<PointCoordinate>(limits_.clamped_out(out_amplitude));
    moved.x = static_cast<PointCoordinate>(limits_.clamped_in(in_amplitude));
    if (which == CurvePoint::zero_point) return;
    if (which == CurvePoint::positive_end_point) {
        const double leftmost = at(CurvePoint::positive_mid_point).x + kLeastMidToEnd;
        if (moved.x < leftmost) moved.x = static_cast<PointCoordinate>(leftmost);
    }
    restore_invariants();
}

void BezierCurve::restore_invariants()
{
    AmplitudePoint& mid = at(CurvePoint::positive_mid_point);
    // Whatever x the mid point was moved to: it is meant to stand here, and only the end point moves
    // sideways.
    mid.x = static_cast<PointCoordinate>(at(CurvePoint::positive_end_point).x * 0.5);

    for (const std::size_t first : kFirstPoint) {
        const float start_x = single(points_[first].x);
        const float third_of_width = single(single(points_[first + 3].x - start_x) * kThird);
        points_[first + 1].x = single(third_of_width + start_x);
        points_[first + 2].x = static_cast<PointCoordinate>(2.0 * third_of_width + start_x);
    }

    const AmplitudePoint& before = at(CurvePoint::positive_mid_c2_point);
    const AmplitudePoint& after = at(CurvePoint::positive_end_c1_point);
    const float to_after = single(after.x - mid.x);
    const float from_before = single(mid.x - before.x);
    mid.y = (to_after * before.y + from_before * after.y) / single(to_after + from_before);
}

void BezierCurve::update_coeffs()
{
    CurveCoefficients& k = coefficients_;
    number_of_segments_ = kSegments;
    for (std::size_t i = 0; i < kSegments; ++i) {
        const AmplitudePoint* const points = &points_[kFirstPoint[i]];
        // Only the first control point's x is read: x(t) is linear by construction.
        const double start_x = points[0].x;
        const double start_y = points[0].y;
        const double c1_x = points[1].x;
        const double c1_y = points[1].y;
        const double c2_y = points[2].y;
        const double end_y = points[3].y;
        k.C[i] = 3 * (c1_x - start_x);
        k.D[i] = start_x;
        k.E[i] = -3 * (c2_y - c1_y) + end_y - start_y;
        k.F[i] = 3 * (start_y - 2 * c1_y + c2_y);
        k.G[i] = 3 * (c1_y - start_y);
        k.H[i] = start_y;
        k.segment_length[i] = k.C[i];
    }

    // The straight part goes on along the end point's tangent.
    const double end_x = point(CurvePoint::positive_end_point).x;
    const double end_y = point(CurvePoint::positive_end_point).y;
    const double dx = end_x - point(CurvePoint::positive_end_c2_point).x;
    const double dy = end_y - point(CurvePoint::positive_end_c2_point).y;
    k.pos_M = dx != 0 ? dy / dx : 0;
    k.pos_Intercept = dx != 0 ? end_y - end_x * k.pos_M : end_y;

    for (std::size_t i = 0; i < kSegments; ++i) {
        const double a = k.A[i] = 1 / k.C[i];
        const double b = k.B[i] = k.D[i] / k.C[i];
        k.P[i] = a * a * a * k.E[i];
        k.Q[i] = (-3 * k.E[i] * b + k.F[i]) * (a * a);
        k.R[i] = (3 * k.E[i] * (b * b) - 2 * k.F[i] * b + k.G[i]) * a;
        k.S[i] = b * b * k.F[i] - b * b * b * k.E[i] - k.G[i] * b + k.H[i];
    }
}

void BezierCurve::export_sequence_data(_QM_R7_Bezier_Sequence& record) const
{
    // Unsigned, so that the counter of a record that was exported very often wraps instead of overflowing.
    record.needs_update = static_cast<std::int32_t>(static_cast<std::uint32_t>(record.needs_update) + 1U);
    copy_coefficients(coefficients_, record);
    record.compressor_slope_one = 1.0;
    record.compressor_slope_two = 1.0;
    record.compressor_3P = 0.0;
    record.compressor_2Q = 1.0;
    record.compressor_R = 0.0;
    record.compressor_x1 = 0.5;
    record.compressor_x2 = 0.55;
    record.compressor_x3 = 1.0;
    record.segment_file_version = 2;
}

void BezierCurve::set_from_sequence_data(const _QM_R7_Bezier_Sequence& record)
{
    copy_coefficients(record, coefficients_);
    const CurveCoefficients& k = coefficients_;
    for (std::size_t i = 0; i < kSegments; ++i) {
        const float c1_x = single(single(k.D[i]) + k.C[i] * kThird);
        const float c2_x = single(k.C[i] * kThird + c1_x);
        const float end_x = single(single(k.D[i]) + k.C[i]);
        const float c1_y = single(k.G[i] * kThird + k.H[i]);
        const float c2_y = single((k.G[i] + k.F[i]) * kThird + c1_y);
        const float end_y = single(single(k.H[i]) + k.G[i] + k.F[i] + k.E[i]);

        AmplitudePoint* const points = &points_[kFirstPoint[i]];
        points[1] = {c1_x, c1_y};
        points[2] = {c2_x, c2_y};
        points[3] = {end_x, end_y};
    }
}

} // namespace r7
