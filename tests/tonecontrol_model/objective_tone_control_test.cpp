// The filter model: what each band does to the response, to the bit and against the cookbook.
#include "tests/tonecontrol_model/tone_designs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>

namespace r7 {

namespace {

using Model = Qm_ObjectiveToneControl;

/// All bands at 0 dB.
Model flat(float rate)
{
    Model model;
    model.set_sample_rate(rate);
    for (const auto design : test::kToneDesigns) (model.*design)(1000.0f, 0.0f, 0.8f);
    return model;
}

/// One band's response in dB, in double precision from the cookbook's own formulas and in powers of 1/z.
double cookbook_db(std::size_t band, double f0, double gain, double width, double at, double rate)
{
    const double w0 = 2 * std::numbers::pi * f0 / rate, A = std::pow(10.0, gain / 40), c = std::cos(w0);
    const auto z1 = std::polar(1.0, -2 * std::numbers::pi * at / rate), z2 = z1 * z1;
    const auto db = [](std::complex<double> response) { return 20 * std::log10(std::abs(response)); };
    if (band != kToneLow && band != kToneHigh) {
        const double alpha = std::sin(w0) / (2 * width);
        return db((1 + alpha * A - 2 * c * z1 + (1 - alpha * A) * z2) /
                  (1 + alpha / A - 2 * c * z1 + (1 - alpha / A) * z2));
    }
    // A high shelf is a low shelf with A - 1 negated wherever it stands.
    const double d = band == kToneLow ? A - 1 : 1 - A;
    const double k = std::sqrt(A) * std::sin(w0) * std::sqrt((A + 1 / A) * (1 / width - 1) + 2);
    const double low = A + 1 - d * c, high = A + 1 + d * c;
    return db(A * (low + k + 2 * (d - (A + 1) * c) * z1 + (low - k) * z2) /
              (high + k - 2 * (d + (A + 1) * c) * z1 + (high - k) * z2));
}

} // namespace

TEST(ToneControlModel, IsSilentUntilItIsDesignedAndKeepsTheDesignForANewRate)
{
    EXPECT_EQ(Model().responseForFrequency(1000), -std::numeric_limits<float>::infinity());
    Model model = flat(44100);
    model.setMidFrequency_dbGain_Q(1000, 12, 0.8f);
    model.set_sample_rate(88200);
    EXPECT_NEAR(model.responseForFrequency(2000), 12, 1e-3);
}

// Single precision loses most near poles and zeros close to 1, which is at low frequencies.
TEST(ToneControlModel, StaysWithinAHundredthOfADecibelOfTheCookbookAbove200Hz)
{
    for (std::size_t band = 0; band < kToneBands; ++band)
        for (const float f0 : {200.0f, 1000.0f, 9000.0f})
            for (const float gain : {-24.0f, -3.0f, 18.0f})
                for (const float width : {0.3f, 1.0f}) {
                    Model model = flat(48000);
                    (model.*test::kToneDesigns[band])(f0, gain, width);
                    for (float hz = 200; hz < 20000; hz *= 1.37f)
                        EXPECT_NEAR(model.responseForFrequency(hz),
                                    cookbook_db(band, f0, gain, width, hz, 48000), 0.01)
                            << "band " << band << ", " << f0 << " Hz, " << gain << " dB, " << width << ", at "
                            << hz << " Hz";
                }
}

// The expected numbers come from a program of their own, which rounds after every operation in double
// precision.
TEST(ToneControlModel, RoundsEveryOperationInItsOrder)
{
    Model model;
    model.setBassFrequency_dbGain_slope(137, 7.3f, 0.61f);
    model.setMidFrequency_dbGain_Q(1234, -8.7f, 0.3f);
    model.setTrebleFrequency_dbGain_slope(7001, -6.5f, 0.4f);
    const ToneSection bass{0x1.01f0e8p0f, -0x1.f88adp0f, 0x1.ed7ecp-1f, -0x1.f89576p0f, 0x1.f14b42p-1f};
    const ToneSection mid{0x1.96c894p-1f, -0x1.5460b6p0f, 0x1.1ca172p-1f, -0x1.5460b6p0f, 0x1.66d40ep-2f};
    const ToneSection high{0x1.3d9884p-1f, -0x1.ed115cp-3f, -0x1.d80fe4p-7f, -0x1.6c9bbap-1f, 0x1.3c7d42p-4f};
    for (const auto& [band, section] : {std::pair{kToneLow, bass}, {kToneMid, mid}, {kToneHigh, high}})
        EXPECT_EQ(std::memcmp(&model.sections()[band], &section, sizeof section), 0) << band;
}

} // namespace r7
