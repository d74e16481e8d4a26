// The complex number: what each operation gives, in which form, and where phases end up.
#include "tonecontrol/objective_complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace r7 {

namespace {

using Complex = Qm_ObjectiveComplex;
constexpr auto polar = &Complex::initWithMagnitude_Angle;
constexpr auto cartesian = &Complex::initWithReal_Imaginary;

constexpr double kPi = std::numbers::pi;
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// The phase after a turn in double precision, rounded back.
float turned(float phase, double angle)
{
    return static_cast<float>(static_cast<double>(phase) + angle);
}

Complex with(Complex number, void (Complex::*set)(float), float value)
{
    (number.*set)(value);
    return number;
}

} // namespace

TEST(ComplexNumber, OperationsGiveTheirOneFormWithPhasesTurnedAsTold)
{
    const float back_and_on = turned(turned(0.5f, -kPi), 2 * kPi);
    const float re = std::cos(1.0f) * 2, im = std::sin(1.0f) * 2; // of polar(2, 1)
    enum Form { r_w, x_y };
    const struct {
        const char* what;
        Complex result;
        Form form;
        float first, second;
    } cases[] = {
        {"mult", polar(2, 1).mult(polar(3, 2)), r_w, 6, 3},
        {"mult wraps once", polar(1, 7).mult(polar(1, 7)), r_w, 1, turned(14, -2 * kPi)},
        {"mult below zero stays", polar(1, -2).mult(polar(1, -2)), r_w, 1, -4},
        {"div below zero wraps", polar(6, 0.5f).div(polar(2, 1)), r_w, 3, turned(-0.5f, 2 * kPi)},
        {"div wraps once", polar(1, -7).div(polar(1, 7)), r_w, 1, turned(-14, 2 * kPi)},
        {"div above 2 pi stays", polar(1, 4).div(polar(1, -4)), r_w, 1, 8},
        {"div by zero", polar(1, 1).div(polar(0, 0)), r_w, kInfinity, 1},
        {"multFloat negative", polar(1, 0.5f).multFloat(-2), r_w, 2, back_and_on},
        {"multFloat negative, late phase", polar(1, 4).multFloat(-2), r_w, 2, turned(4, -kPi)},
        {"multFloat, negative phase", polar(1, -1).multFloat(2), r_w, 2, turned(-1, 2 * kPi)},
        {"divFloat", polar(3, 0.5f).divFloat(2), r_w, 1.5f, 0.5f},
        {"divFloat of zero by zero", polar(0, 0.5f).divFloat(0), r_w, kNaN, back_and_on},
        {"negate", polar(2, 0.5f).negate(), r_w, 2, back_and_on},
        {"add", cartesian(3, 4).add(polar(2, 1)), x_y, 3 + re, 4 + im},
        {"sub", cartesian(3, 4).sub(polar(2, 1)), x_y, 3 - re, 4 - im},
        {"addFloat", polar(2, 1).addFloat(5), x_y, re + 5, im},
        {"subFloat", polar(2, 1).subFloat(5), x_y, re - 5, im},
        {"setReal", with(polar(2, 1), &Complex::setReal, 5), x_y, 5, im},
        {"setImaginary", with(polar(2, 1), &Complex::setImaginary, 5), x_y, re, 5},
        {"setMagnitude", with(cartesian(3, 4), &Complex::setMagnitude, 7), r_w, 7, std::atan2(4.0f, 3.0f)},
        {"setPhase", with(cartesian(3, 4), &Complex::setPhase, 1), r_w, 5, 1},
    };
    for (const auto& [what, z, form, first, second] : cases) {
        EXPECT_EQ(z.hasPolar(), form == r_w) << what;
        EXPECT_EQ(z.hasCartesian(), form == x_y) << what;
        const float one = form == r_w ? z.magnitude() : z.real();
        EXPECT_TRUE(one == first || (std::isnan(one) && std::isnan(first))) << what;
        EXPECT_EQ(form == r_w ? z.phase() : z.imaginary(), second) << what;
    }
    EXPECT_FALSE(std::signbit(polar(-0.0f, 1).divFloat(2).magnitude())) << "divFloat stores |q|";

    const Complex zero, minus_one = cartesian(-1, 0);
    EXPECT_EQ(minus_one.phase(), static_cast<float>(kPi));
    EXPECT_TRUE(minus_one.hasCartesian() && minus_one.hasPolar()) << "asking fills a form and drops none";
    EXPECT_TRUE(zero.hasCartesian() && zero.hasPolar());
}

} // namespace r7
