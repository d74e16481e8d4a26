// The model of a five-band tone control: what the views know of the filters, and their gain at a frequency.
#pragma once

#include <array>
#include <cstddef>

namespace r7 {

/// The bands: a low shelf, three peaks, a high shelf.
enum ToneBand : std::size_t { kToneLow, kToneLowMid, kToneMid, kToneHighMid, kToneHigh };
inline constexpr std::size_t kToneBands = 5;

/// One second-order section, (a0 + a1/z + a2/z^2) / (1 + b1/z + b2/z^2).
struct ToneSection {
    float a0 = 0.0f;
    float a1 = 0.0f;
    float a2 = 0.0f;
    float b1 = 0.0f;
    float b2 = 0.0f;
};

/// A low shelf, three peaks and a high shelf, designed as the audio engine designs them.
///
/// The sections are those of Robert Bristow-Johnson's "Cookbook formulae for audio EQ biquad filter
/// coefficients", with the gain split as 10^(dB/40), alpha from Q for a peak and from the slope S for a
/// shelf. Everything is single precision but the multiplication by 2 pi. No argument is checked: a frequency
/// at or above half the sample rate, or a Q, slope or rate of zero, is computed as it comes and may give
/// non-finite coefficients.
class Qm_ObjectiveToneControl final {
public:
    /// At 44100 Hz, with every coefficient 0.
    Qm_ObjectiveToneControl();

    /// Gain of the five sections together at one frequency above 0 Hz, in dB.
    ///
    /// The order of operations is part of the contract, so that two builds agree to the last bit. Before any
    /// band is designed the numerators are zero and the result is minus infinity.
    float responseForFrequency(float frequency_hz) const;

    const std::array<ToneSection, kToneBands>& sections() const { return sections_; }
    /// Seconds.
    float sample_period() const { return _samplePeriod; }
    /// The angle of one frequency on the unit circle, in radians: 2 pi at the sample rate.
    float angle_of(float frequency_hz) const;

    /// Hz. Redesigns nothing: until its setter is called again, a section keeps the coefficients of the old
    /// rate.
    void set_sample_rate(float rate);

    /// Each designs its section from a frequency in Hz, a gain in dB and a Q or a shelf slope (1 is the
    /// steepest monotonic shelf). The three are not kept.
    void setBassFrequency_dbGain_slope(float frequency_hz, float gain_db, float slope);
    void setLowMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q);
    void setMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q);
    void setHighMidFrequency_dbGain_Q(float frequency_hz, float gain_db, float q);
    void setTrebleFrequency_dbGain_slope(float frequency_hz, float gain_db, float slope);

private:
    std::array<ToneSection, kToneBands> sections_;
    float _samplePeriod = 0.0f;
};

} // namespace r7
