// The response of a tone control over a fixed grid of frequencies, brought up to date at little cost.
#pragma once

#include "tonecontrol/objective_tone_control.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace r7 {

/// Gives at every point of its grid the very bits of Qm_ObjectiveToneControl::responseForFrequency,
/// non-finite ones included; NaN stands for NaN. Allocates nothing.
///
/// Only magnitudes reach the result, so no phase is computed. What is left of z and z^2 under a
/// multiplication by a coefficient is their sine and cosine, which depend on the coefficient by its sign
/// alone: they are tabulated for a grid and a sample rate. The magnitudes of each section are kept, and
/// redone only where the section's coefficients have changed.
class ResponseCurve final {
public:
    /// A hundred steps and both their ends, rounded up to whole vectors of eight.
    static constexpr std::size_t kCapacity = 104;

    /// The grid, in Hz: at most kCapacity frequencies in any order, of any value.
    void set_frequencies(std::span<const float> frequencies_hz);

    /// The gain of `model` at each frequency of the grid, in dB. Valid until the next call of either
    /// function.
    std::span<const float> response(const Qm_ObjectiveToneControl& model);

private:
    using Row = std::array<float, kCapacity>;

    /// Numbers of magnitude one, one for each frequency.
    struct Phasors {
        Row cosine{};
        Row sine{};
    };
    /// The same after a multiplication by a real number, but for the magnitude, which that multiplication
    /// gives.
    struct Multiples {
        Phasors by_positive;
        Phasors by_negative;
        const Phasors& by(float f) const { return f >= 0.0f ? by_positive : by_negative; }
    };

    bool tabulate(const Qm_ObjectiveToneControl& model);
    /// `magnitudes` is none of the tables, and saying so lets the loop be vectorised without asking.
    void redo_section(const ToneSection& section, Row& __restrict magnitudes) const;
    void redo_decibels();

    std::size_t count_ = 0;
    Row frequencies_hz_{};
    /// The sample period that the tables below are for.
    std::optional<float> tabulated_period_;
    Multiples z_;
    Phasors z2_;
    Multiples z2_multiples_;

    std::array<ToneSection, kToneBands> sections_;
    std::array<Row, kToneBands> magnitudes_{};
    Row decibels_{};
};

} // namespace r7
