// A transfer curve's coefficients: the evaluation.
#include "waveshaper/curve_coefficients.h"

namespace r7 {

float CurveCoefficients::response_for_in_amplitude(float in_amplitude) const
{
    const double x = in_amplitude;
    const double end_of_first = segment_length[0];
    const double end_of_second = segment_length[0] + segment_length[1];
    const auto cubic = [this](std::size_t segment, double u) {
        return ((P[segment] * u + Q[segment]) * u + R[segment]) * u + S[segment];
    };

    double y = 0;
    if (x > 0) {
        if (x >= end_of_second)
            y = x * pos_M + pos_Intercept;
        else
            y = cubic(x >= end_of_first ? 1 : 0, x);
    } else if (x >= 0) {
        y = 0;
    } else {
        // The comparisons are meant as they stand: what cannot be compared counts as beyond the boundary
        // here, so that a NaN input takes the straight part.
        const double u = -x;
        if (!(end_of_second > u))
            y = x * pos_M - pos_Intercept;
        else
            y = -cubic(!(end_of_first > u) ? 1 : 0, u);
    }
    return static_cast<float>(y);
}

} // namespace r7
