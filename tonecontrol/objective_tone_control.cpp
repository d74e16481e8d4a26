// The model of a five-band tone control: the design of its sections, then their response.
#include "tonecontrol/objective_tone_control.h"

#include "tonecontrol/objective_complex.h"

#include <cmath>
#include <numbers>

namespace r7 {

namespace {

constexpr float kInitialSampleRate = 44100.0f;

/// What every design starts from: A, the square root of the gain as a factor, and the angle's sine and
/// cosine.
struct Design {
    Design(float angle, float gain_db)
        : A(std::pow(10.0f, gain_db * 0.025f)), sn(std::sin(angle)), cs(std::cos(angle))
    {
    }

    float A;
    float sn;
    float cs;
};

ToneSection peak(const Design& design, float q)
{
    const auto [A, sn, cs] = design;
    const float alpha = sn / (q + q);
    const float n = 1.0f / (alpha / A + 1.0f);
    return {.a0 = (alpha * A + 1.0f) * n,
            .a1 = (-2.0f * cs) * n,
            .a2 = (1.0f - alpha * A) * n,
            .b1 = (-2.0f * cs) * n,
            .b2 = (1.0f - alpha / A) * n};
}

/// The cookbook's k, 2 sqrt(A) alpha.
float shelf_k(const Design& design, float slope)
{
    const auto [A, sn, cs] = design;
    const float alpha = std::sqrt((1.0f / slope - 1.0f) * (1.0f / A + A) + 2.0f) * sn * 0.5f;
    return 2.0f * std::sqrt(A) * alpha;
}

ToneSection low_shelf(const Design& design, float slope)
{
    const auto [A, sn, cs] = design;
    const float k = shelf_k(design, slope);
    const float n = 1.0f / ((A + 1.0f) + (A - 1.0f) * cs + k);
    return {.a0 = A * ((A + 1.0f) - (A - 1.0f) * cs + k) * n,
            .a1 = 2.0f * A * ((A - 1.0f) - (A + 1.0f) * cs) * n,
            .a2 = A * ((A + 1.0f) - (A - 1.0f) * cs - k) * n,
            .b1 = -2.0f * ((A - 1.0f) + (A + 1.0f) * cs) * n,
            .b2 = ((A + 1.0f) + (A - 1.0f) * cs - k) * n};
}

ToneSection high_shelf(const Design& design, float slope)
{
    const auto [A, sn, cs] = design;
    const float k = shelf_k(design, slope);
    const float n = 1.0f / ((A + 1.0f) - (A - 1.0f) * cs + k);
    return {.a0 = A * ((A + 1.0f) + (A - 1.0f) * cs + k) * n,
            .a1 = -2.0f * A * ((A - 1.0f) + (A + 1.0f) * cs) * n,
            .a2 = A * ((A + 1.0f) + (A - 1.0f) * cs - k) * n,
            .b1 = 2.0f * ((A - 1.0f) - (A + 1.0f) * cs) * n,
            .b2 = ((A + 1.0f) - (A - 1.0f) * cs - k) * n};
}

/// The section's transfer function at z, multiplied through by z^2; z2 is z^2.
Qm_ObjectiveComplex transfer(const ToneSection& section, const Qm_ObjectiveComplex& z,
                             const Qm_ObjectiveComplex& z2)
{
    const auto numerator = z2.multFloat(section.a0).add(z.multFloat(section.a1)).addFloat(section.a2);
    const auto denominator = z2.add(z.multFloat(section.b1)).addFloat(section.b2);
    return numerator.div(denominator);
}

} // namespace

Qm_ObjectiveToneControl::Qm_ObjectiveToneControl()
{
    set_sample_rate(kInitialSampleRate);
}

float Qm_ObjectiveToneControl::responseForFrequency(float frequency_hz) const
{
    const auto z = Qm_ObjectiveComplex::initWithMagnitude_Angle(1.0f, angle_of(frequency_hz));
    const auto z2 = z.mult(z);

    auto product = transfer(sections_[kToneHigh], z, z2);
    for (const auto band : {kToneHighMid, kToneMid, kToneLowMid, kToneLow})
        product = transfer(sections_[band], z, z2).mult(product);
    return 20.0f * std::log10(product.magnitude());
}

float Qm_ObjectiveToneControl::angle_of(float frequency_hz) const
{
    const float turns = frequency_hz * _samplePeriod;
    return static_cast<float>(static_cast<double>(turns) * (2.0 * std::numbers::pi));
}

void Qm_ObjectiveToneControl::set_sample_rate(float rate)
{
    _samplePeriod = 1.0f / rate;
}

void Qm_ObjectiveToneControl::setBassFrequency_dbGain_slope(float frequency_hz, float gain_db, float slope)
{
    sections_[kToneLow] = low_shelf({angle_of(frequency_hz), gain_db}, slope);
}

void Qm_ObjectiveToneControl::setLowMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q)
{
    sections_[kToneLowMid] = peak({angle_of(frequency_hz), gain_db}, q);
}

void Qm_ObjectiveToneControl::setMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q)
{
    sections_[kToneMid] = peak({angle_of(frequency_hz), gain_db}, q);
}

void Qm_ObjectiveToneControl::setHighMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q)
{
    sections_[kToneHighMid] = peak({angle_of(frequency_hz), gain_db}, q);
}

void Qm_ObjectiveToneControl::setTrebleFrequency_dbGain_slope(float frequency_hz, float gain_db, float slope)
{
    sections_[kToneHigh] = high_shelf({angle_of(frequency_hz), gain_db}, slope);
}

} // namespace r7
