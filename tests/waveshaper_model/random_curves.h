// Curves and coefficients at random, from a seed that a failing test prints.
#pragma once

#include "waveshaper/bezier_curve.h"

#include <cmath>
#include <limits>
#include <random>

namespace r7::test {

class Random final {
public:
    explicit Random(unsigned seed) : engine_(seed) {}

    float between(float low, float high) { return std::uniform_real_distribution<float>(low, high)(engine_); }
    std::size_t below(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine_);
    }

    /// Any size and sign, now and then something that is no ordinary number.
    double wild()
    {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        constexpr double kOdd[] = {
            0.0, -0.0, 1e-310, 1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()};
        if (below(6) == 0) return kOdd[below(std::size(kOdd))];
        return std::ldexp(between(-1, 1), static_cast<int>(below(12)) - 8);
    }

    /// Coefficients that no curve need have.
    CurveCoefficients wild_coefficients()
    {
        CurveCoefficients k;
        k.pos_M = wild();
        k.pos_Intercept = wild();
        for (const auto& field : kSegmentPairFields<CurveCoefficients>) k.*field.pair = {wild(), wild()};
        return k;
    }

    /// One move of a user's hand, of any point but the zero point.
    void move(BezierCurve& curve)
    {
        const auto which = static_cast<CurvePoint>(1 + below(kCurvePoints - 1));
        curve.set_point_to_in_amplitude_to_out_amplitude(which, between(-0.5F, 4.0F), between(-2.5F, 2.5F));
    }

    /// A curve that a user may have drawn.
    BezierCurve curve()
    {
        BezierCurve drawn;
        for (int i = 0; i < 6; ++i) move(drawn);
        drawn.update_coeffs();
        return drawn;
    }

private:
    std::mt19937 engine_;
};

} // namespace r7::test
