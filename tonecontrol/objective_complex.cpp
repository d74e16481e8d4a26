// A complex number in single precision that converts between its two forms only when asked.
#include "tonecontrol/objective_complex.h"

#include <cmath>
#include <numbers>

namespace r7 {

namespace {

constexpr double kHalfTurn = std::numbers::pi;
constexpr double kFullTurn = 2.0 * std::numbers::pi;

float turned(float phase, double angle)
{
    return static_cast<float>(static_cast<double>(phase) + angle);
}

/// The comparison lets NaN through to be turned, as the contract says.
float turned_on_if_negative(float phase)
{
    return phase >= 0.0f ? phase : turned(phase, kFullTurn);
}

float real_part(float magnitude, float phase)
{
    return std::cos(phase) * magnitude;
}

float imaginary_part(float magnitude, float phase)
{
    return std::sin(phase) * magnitude;
}

float length(float x, float y)
{
    return std::sqrt(x * x + y * y);
}

/// The phase of a number whose magnitude came out as `signed_magnitude`, once the sign is given to the phase.
float phase_without_sign(float signed_magnitude, float phase)
{
    return turned_on_if_negative(signed_magnitude >= 0.0f ? phase : turned(phase, -kHalfTurn));
}

} // namespace

Qm_ObjectiveComplex Qm_ObjectiveComplex::initWithReal_Imaginary(float re, float im)
{
    Qm_ObjectiveComplex made;
    made.setReal_imaginary(re, im);
    return made;
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::initWithMagnitude_Angle(float magnitude, float angle)
{
    Qm_ObjectiveComplex made;
    made.setMagnitude_phase(magnitude, angle);
    return made;
}

float Qm_ObjectiveComplex::real() const
{
    fill_cartesian();
    return _x;
}

float Qm_ObjectiveComplex::imaginary() const
{
    fill_cartesian();
    return _y;
}

float Qm_ObjectiveComplex::magnitude() const
{
    fill_polar();
    return _r;
}

float Qm_ObjectiveComplex::phase() const
{
    fill_polar();
    return _w;
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::add(const Qm_ObjectiveComplex& other) const
{
    return initWithReal_Imaginary(real() + other.real(), imaginary() + other.imaginary());
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::sub(const Qm_ObjectiveComplex& other) const
{
    return initWithReal_Imaginary(real() - other.real(), imaginary() - other.imaginary());
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::addFloat(float f) const
{
    return initWithReal_Imaginary(real() + f, imaginary());
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::subFloat(float f) const
{
    return initWithReal_Imaginary(real() - f, imaginary());
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::mult(const Qm_ObjectiveComplex& other) const
{
    const float sum = phase() + other.phase();
    const bool above = static_cast<double>(sum) > kFullTurn;
    return initWithMagnitude_Angle(magnitude() * other.magnitude(), above ? turned(sum, -kFullTurn) : sum);
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::div(const Qm_ObjectiveComplex& other) const
{
    return initWithMagnitude_Angle(magnitude() / other.magnitude(),
                                   turned_on_if_negative(phase() - other.phase()));
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::multFloat(float f) const
{
    const float m = f * magnitude();
    return initWithMagnitude_Angle(m >= 0.0f ? m : -m, phase_without_sign(m, phase()));
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::divFloat(float f) const
{
    const float q = magnitude() / f;
    return initWithMagnitude_Angle(std::fabs(q), phase_without_sign(q, phase()));
}

Qm_ObjectiveComplex Qm_ObjectiveComplex::negate() const
{
    return initWithMagnitude_Angle(magnitude(), turned_on_if_negative(turned(phase(), -kHalfTurn)));
}

void Qm_ObjectiveComplex::setReal_imaginary(float re, float im)
{
    _x = re;
    _y = im;
    keep_only_cartesian();
}

void Qm_ObjectiveComplex::setMagnitude_phase(float magnitude, float phase)
{
    _r = magnitude;
    _w = phase;
    keep_only_polar();
}

void Qm_ObjectiveComplex::setReal(float value)
{
    if (!_hasCartesian) _y = imaginary_part(_r, _w);
    _x = value;
    keep_only_cartesian();
}

void Qm_ObjectiveComplex::setImaginary(float value)
{
    if (!_hasCartesian) _x = real_part(_r, _w);
    _y = value;
    keep_only_cartesian();
}

void Qm_ObjectiveComplex::setMagnitude(float value)
{
    if (!_hasPolar) _w = std::atan2(_y, _x);
    _r = value;
    keep_only_polar();
}

void Qm_ObjectiveComplex::setPhase(float value)
{
    if (!_hasPolar) _r = length(_x, _y);
    _w = value;
    keep_only_polar();
}

void Qm_ObjectiveComplex::fill_cartesian() const
{
    if (_hasCartesian) return;
    _y = imaginary_part(_r, _w);
    _x = real_part(_r, _w);
    _hasCartesian = true;
}

void Qm_ObjectiveComplex::fill_polar() const
{
    if (_hasPolar) return;
    _w = std::atan2(_y, _x);
    _r = length(_x, _y);
    _hasPolar = true;
}

void Qm_ObjectiveComplex::keep_only_cartesian()
{
    _hasCartesian = true;
    _hasPolar = false;
}

void Qm_ObjectiveComplex::keep_only_polar()
{
    _hasPolar = true;
    _hasCartesian = false;
}

} // namespace r7
