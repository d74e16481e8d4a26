// The filter model: what each band does to the response, to the bit and against the cookbook.
#include "tonecontrol/objective_tone_control.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>

namespace r7 {

namespace {

using Model = Qm_ObjectiveToneControl;

/// The parts of a band's gain that are there far below, at and far above its frequency.
constexpr struct {
    void (Model::*set)(float, float, float);
    float below, at, above;
} kBands[] = {
    {&Model::setBassFrequency_dbGain_slope, 1, 0.5f, 0},   {&Model::setLowMidFrequency_dbGain_Q, 0, 1, 0},
    {&Model::setMidFrequency_dbGain_Q, 0, 1, 0},           {&Model::setHighMidFrequency_dbGain_Q, 0, 1, 0},
    {&Model::setTrebleFrequency_dbGain_slope, 0, 0.5f, 1},
};

/// All bands at 0 dB.
Model flat(float rate)
{
    Model model;
    model.set_sample_rate(rate);
    for (const auto& band : kBands) (model.*band.set)(1000.0f, 0.0f, 0.8f);
    return model;
}

/// One band's response in dB, in double precision from the cookbook's own formulas and in powers of 1/z.
double cookbook_db(double below, double above, double f0, double gain, double width, double at, double rate)
{
    const double w0 = 2 * std::numbers::pi * f0 / rate, A = std::pow(10.0, gain / 40), c = std::cos(w0);
    const auto z1 = std::polar(1.0, -2 * std::numbers::pi * at / rate), z2 = z1 * z1;
    const auto db = [](std::complex<double> response) { return 20 * std::log10(std::abs(response)); };
    if (below == above) {
        const double alpha = std::sin(w0) / (2 * width);
        return db((1 + alpha * A - 2 * c * z1 + (1 - alpha * A) * z2) /
                  (1 + alpha / A - 2 * c * z1 + (1 - alpha / A) * z2));
    }
    // A high shelf is a low shelf with A - 1 negated wherever it stands.
    const double d = (A - 1) * (below - above);
    const double k = std::sqrt(A) * std::sin(w0) * std::sqrt((A + 1 / A) * (1 / width - 1) + 2);
    const double low = A + 1 - d * c, high = A + 1 + d * c;
    return db(A * (low + k + 2 * (d - (A + 1) * c) * z1 + (low - k) * z2) /
              (high + k - 2 * (d + (A + 1) * c) * z1 + (high - k) * z2));
}

} // namespace

TEST(ToneControlModel, IsSilentThenFlatThenHasTheGainOfABandWhereItShould)
{
    EXPECT_EQ(Model().responseForFrequency(1000), -std::numeric_limits<float>::infinity());
    for (float hz = 10; hz < 22050; hz *= 1.1f)
        EXPECT_NEAR(flat(44100).responseForFrequency(hz), 0, 1e-3) << hz;
    for (const auto& band : kBands) {
        Model model = flat(44100);
        (model.*band.set)(1000, 12, 0.8f);
        EXPECT_NEAR(model.responseForFrequency(30), 12 * band.below, 0.05);
        EXPECT_NEAR(model.responseForFrequency(1000), 12 * band.at, 1e-3);
        EXPECT_NEAR(model.responseForFrequency(21000), 12 * band.above, 0.05);
        model.set_sample_rate(88200);
        EXPECT_NEAR(model.responseForFrequency(2000), 12 * band.at, 1e-3) << "not redesigned for a new rate";
    }
}

// Single precision loses most near poles and zeros close to 1, which is at low frequencies.
TEST(ToneControlModel, StaysWithinAHundredthOfADecibelOfTheCookbookAbove200Hz)
{
    for (const auto& band : kBands)
        for (const float f0 : {200.0f, 1000.0f, 9000.0f})
            for (const float gain : {-24.0f, -3.0f, 18.0f})
                for (const float width : {0.3f, 1.0f}) {
                    Model model = flat(48000);
                    (model.*band.set)(f0, gain, width);
                    for (float hz = 200; hz < 20000; hz *= 1.37f)
                        EXPECT_NEAR(model.responseForFrequency(hz),
                                    cookbook_db(band.below, band.above, f0, gain, width, hz, 48000), 0.01)
                            << f0 << " Hz, " << gain << " dB, " << width << ", at " << hz << " Hz";
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
    EXPECT_EQ(std::memcmp(&model.sections()[kToneLow], &bass, sizeof bass), 0);
    EXPECT_EQ(std::memcmp(&model.sections()[kToneMid], &mid, sizeof mid), 0);
    EXPECT_EQ(std::memcmp(&model.sections()[kToneHigh], &high, sizeof high), 0);
}

} // namespace r7
