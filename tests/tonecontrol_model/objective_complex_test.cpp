// The complex number: what each operation gives, which form it leaves, and where phases end up.
#include "tonecontrol/objective_complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace r7 {

namespace {

using Complex = Qm_ObjectiveComplex;

constexpr double kPi = std::numbers::pi;
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

Complex polar(float magnitude, float phase)
{
    return Complex::initWithMagnitude_Angle(magnitude, phase);
}

Complex cartesian(float re, float im)
{
    return Complex::initWithReal_Imaginary(re, im);
}

/// The phase after a turn in double precision, rounded back.
float turned(float phase, double angle)
{
    return static_cast<float>(static_cast<double>(phase) + angle);
}

bool same(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// Whether a number holds just this form, with these components.
bool is_polar(const Complex& z, float magnitude, float phase)
{
    return z.hasPolar() && !z.hasCartesian() && same(z.magnitude(), magnitude) && same(z.phase(), phase);
}

bool is_cartesian(const Complex& z, float re, float im)
{
    return z.hasCartesian() && !z.hasPolar() && same(z.real(), re) && same(z.imaginary(), im);
}

} // namespace

TEST(ComplexNumber, OperationsOnPolarFormTurnThePhaseAsTold)
{
    const float half_back = turned(0.5f, -kPi);
    const struct {
        const char* what;
        Complex result;
        float magnitude, phase;
    } cases[] = {
        {"mult", polar(2, 1).mult(polar(3, 2)), 6, 3},
        {"mult above 2 pi wraps", polar(2, 3.5f).mult(polar(3, 3.5f)), 6, turned(7, -2 * kPi)},
        {"mult wraps once", polar(1, 7).mult(polar(1, 7)), 1, turned(14, -2 * kPi)},
        {"mult below zero stays", polar(1, -2).mult(polar(1, -2)), 1, -4},
        {"div below zero wraps", polar(6, 0.5f).div(polar(2, 1)), 3, turned(-0.5f, 2 * kPi)},
        {"div wraps once", polar(1, -7).div(polar(1, 7)), 1, turned(-14, 2 * kPi)},
        {"div above 2 pi stays", polar(1, 4).div(polar(1, -4)), 1, 8},
        {"div by zero", polar(1, 1).div(polar(0, 0)), kInfinity, 1},
        {"multFloat", polar(1, 0.5f).multFloat(2), 2, 0.5f},
        {"multFloat negative", polar(1, 0.5f).multFloat(-2), 2, turned(half_back, 2 * kPi)},
        {"multFloat negative, late phase", polar(1, 4).multFloat(-2), 2, turned(4, -kPi)},
        {"multFloat, negative phase", polar(1, -1).multFloat(2), 2, turned(-1, 2 * kPi)},
        {"multFloat of a negative magnitude", polar(-2, 4).multFloat(-1), 2, 4},
        {"divFloat", polar(3, 0.5f).divFloat(2), 1.5f, 0.5f},
        {"divFloat negative", polar(3, 0.5f).divFloat(-2), 1.5f, turned(half_back, 2 * kPi)},
        {"divFloat by zero", polar(3, 0.5f).divFloat(0), kInfinity, 0.5f},
        {"divFloat of zero by zero", polar(0, 0.5f).divFloat(0), kNaN, turned(half_back, 2 * kPi)},
        {"negate", polar(2, 0.5f).negate(), 2, turned(half_back, 2 * kPi)},
        {"negate, late phase", polar(2, 4).negate(), 2, turned(4, -kPi)},
    };
    for (const auto& row : cases)
        EXPECT_TRUE(is_polar(row.result, row.magnitude, row.phase))
            << row.what << " gives " << row.result.magnitude() << " at " << row.result.phase();
    EXPECT_FALSE(std::signbit(polar(-0.0f, 1).divFloat(2).magnitude())) << "divFloat stores |q|";
}

TEST(ComplexNumber, OperationsOnCartesianFormAreComponentwise)
{
    const Complex other = polar(2, 1); // cartesian form derived, not given
    const float re = std::cos(1.0f) * 2, im = std::sin(1.0f) * 2;
    EXPECT_TRUE(is_cartesian(cartesian(3, 4).add(other), 3 + re, 4 + im));
    EXPECT_TRUE(is_cartesian(cartesian(3, 4).sub(other), 3 - re, 4 - im));
    EXPECT_TRUE(is_cartesian(other.addFloat(5), re + 5, im));
    EXPECT_TRUE(is_cartesian(other.subFloat(5), re - 5, im));
}

TEST(ComplexNumber, FormsAreFilledWhenTheyAreAskedFor)
{
    const Complex zero, minus_one = cartesian(-1, 0), negative_magnitude = polar(-2, 0);
    EXPECT_TRUE(zero.hasCartesian() && zero.hasPolar());
    EXPECT_EQ(zero.phase(), 0.0f);
    EXPECT_FALSE(minus_one.hasPolar());
    EXPECT_EQ(minus_one.phase(), static_cast<float>(kPi));
    EXPECT_EQ(minus_one.magnitude(), 1.0f);
    EXPECT_TRUE(minus_one.hasPolar());
    EXPECT_EQ(negative_magnitude.real(), -2.0f);
    EXPECT_EQ(negative_magnitude.magnitude(), -2.0f);
}

TEST(ComplexNumber, SettingOneComponentKeepsTheOtherOfItsForm)
{
    Complex number = polar(2, 1);
    number.setReal(5);
    EXPECT_TRUE(is_cartesian(number, 5, std::sin(1.0f) * 2));
    number.setMagnitude_phase(2, 1);
    number.setImaginary(5);
    EXPECT_TRUE(is_cartesian(number, std::cos(1.0f) * 2, 5));
    number.setReal_imaginary(3, 4);
    number.setMagnitude(7);
    EXPECT_TRUE(is_polar(number, 7, std::atan2(4.0f, 3.0f)));
    number.setReal_imaginary(3, 4);
    number.setPhase(1);
    EXPECT_TRUE(is_polar(number, 5, 1));
}

} // namespace r7
