// The response of a tone control over a grid. Its stages, each skipped where nothing has changed: tabulate
// the angles, redo the magnitudes of a section, multiply the sections and take the logarithm.
#include "tonecontrol/response_curve.h"

#include "tonecontrol/objective_complex.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstring>

namespace r7 {

namespace {

/// Compared as numbers, NaN would never be the same and its section would be redone for ever.
template <typename T>
bool same_bits(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

/// The magnitude that Qm_ObjectiveComplex::multFloat gives to a number of magnitude one.
float unsigned_factor(float f)
{
    return f >= 0.0f ? f : -f;
}

float length(float x, float y)
{
    return std::sqrt(x * x + y * y);
}

} // namespace

void ResponseCurve::set_frequencies(std::span<const float> frequencies_hz)
{
    assert(frequencies_hz.size() <= kCapacity);
    count_ = frequencies_hz.size();
    std::ranges::copy(frequencies_hz, frequencies_hz_.begin());
    tabulated_period_.reset();
}

std::span<const float> ResponseCurve::response(const Qm_ObjectiveToneControl& model)
{
    const bool all = tabulate(model);
    bool any = all;
    for (std::size_t band = 0; band < kToneBands; ++band) {
        const ToneSection& section = model.sections()[band];
        if (!all && same_bits(section, sections_[band])) continue;
        sections_[band] = section;
        redo_section(section, magnitudes_[band]);
        any = true;
    }
    if (any) redo_decibels();
    return std::span(decibels_).first(count_);
}

/// Whether there was anything to do.
bool ResponseCurve::tabulate(const Qm_ObjectiveToneControl& model)
{
    if (tabulated_period_ && same_bits(*tabulated_period_, model.sample_period())) return false;
    tabulated_period_ = model.sample_period();

    for (std::size_t i = 0; i < count_; ++i) {
        const auto keep = [i](Phasors& phasors, const Qm_ObjectiveComplex& number) {
            phasors.cosine[i] = number.real();
            phasors.sine[i] = number.imaginary();
        };
        const auto z = Qm_ObjectiveComplex::initWithMagnitude_Angle(1.0f, model.angle_of(frequencies_hz_[i]));
        const auto z2 = z.mult(z);
        keep(z_.by_positive, z.multFloat(1.0f));
        keep(z_.by_negative, z.multFloat(-1.0f));
        keep(z2_, z2);
        keep(z2_multiples_.by_positive, z2.multFloat(1.0f));
        keep(z2_multiples_.by_negative, z2.multFloat(-1.0f));
    }
    return true;
}

/// The order of operations is that of the plain form. The loop runs over the whole row, so that it has no
/// remainder.
void ResponseCurve::redo_section(const ToneSection& section, Row& __restrict magnitudes) const
{
    const auto& [z2_a0_cos, z2_a0_sin] = z2_multiples_.by(section.a0);
    const auto& [z_a1_cos, z_a1_sin] = z_.by(section.a1);
    const auto& [z2_cos, z2_sin] = z2_;
    const auto& [z_b1_cos, z_b1_sin] = z_.by(section.b1);
    const float a0 = unsigned_factor(section.a0);
    const float a1 = unsigned_factor(section.a1);
    const float b1 = unsigned_factor(section.b1);

    for (std::size_t i = 0; i < kCapacity; ++i) {
        const float numerator_re = z2_a0_cos[i] * a0 + z_a1_cos[i] * a1 + section.a2;
        const float numerator_im = z2_a0_sin[i] * a0 + z_a1_sin[i] * a1;
        const float denominator_re = z2_cos[i] + z_b1_cos[i] * b1 + section.b2;
        const float denominator_im = z2_sin[i] + z_b1_sin[i] * b1;
        magnitudes[i] = length(numerator_re, numerator_im) / length(denominator_re, denominator_im);
    }
}

void ResponseCurve::redo_decibels()
{
    const auto& [bass, low_mid, mid, high_mid, treble] = magnitudes_;
    for (std::size_t i = 0; i < count_; ++i) {
        const float product = bass[i] * (low_mid[i] * (mid[i] * (high_mid[i] * treble[i])));
        decibels_[i] = 20.0f * std::log10(product);
    }
}

} // namespace r7
