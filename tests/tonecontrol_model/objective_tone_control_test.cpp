// The filter model: what each band does to the response, and how near it stays to the cookbook.
#include "tonecontrol/objective_tone_control.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <numbers>

namespace r7 {

namespace {

using Model = Qm_ObjectiveToneControl;
using Setter = void (Model::*)(float, float, float);

enum class Shape { low_shelf, peak, high_shelf };

constexpr struct {
    Setter set;
    Shape shape;
} kBands[] = {
    {&Model::setBassFrequency_dbGain_slope, Shape::low_shelf},
    {&Model::setLowMidFrequency_dbGain_Q, Shape::peak},
    {&Model::setMidFrequency_dbGain_Q, Shape::peak},
    {&Model::setHighMidFrequency_dbGain_Q, Shape::peak},
    {&Model::setTrebleFrequency_dbGain_slope, Shape::high_shelf},
};

/// All five bands designed at 0 dB.
Model flat()
{
    Model model;
    for (const auto& band : kBands) (model.*band.set)(1000.0f, 0.0f, 0.8f);
    return model;
}

/// The cookbook's response in dB, evaluated in double precision from its own formulas and in powers of 1/z.
double cookbook_db(Shape shape, double frequency, double gain_db, double width, double at, double rate)
{
    const double w0 = 2 * std::numbers::pi * frequency / rate;
    const double A = std::pow(10.0, gain_db / 40), c = std::cos(w0);
    const auto z1 = std::polar(1.0, -2 * std::numbers::pi * at / rate), z2 = z1 * z1;
    const auto db = [](std::complex<double> response) { return 20 * std::log10(std::abs(response)); };
    if (shape == Shape::peak) {
        const double alpha = std::sin(w0) / (2 * width);
        return db((1 + alpha * A - 2 * c * z1 + (1 - alpha * A) * z2) /
                  (1 + alpha / A - 2 * c * z1 + (1 - alpha / A) * z2));
    }
    // A high shelf is a low shelf with A - 1 negated wherever it stands.
    const double s = shape == Shape::low_shelf ? 1 : -1;
    const double k = std::sqrt(A) * std::sin(w0) * std::sqrt((A + 1 / A) * (1 / width - 1) + 2);
    const double low = A + 1 - s * (A - 1) * c, high = A + 1 + s * (A - 1) * c;
    return db(A * (low + k + 2 * (s * (A - 1) - (A + 1) * c) * z1 + (low - k) * z2) /
              (high + k - 2 * (s * (A - 1) + (A + 1) * c) * z1 + (high - k) * z2));
}

} // namespace

TEST(ToneControlModel, IsSilentBeforeAnyBandIsDesignedAndFlatAtZeroGain)
{
    EXPECT_EQ(Model().responseForFrequency(1000.0f), -std::numeric_limits<float>::infinity());
    for (float hz = 10.0f; hz < 22050.0f; hz *= 1.1f)
        EXPECT_NEAR(flat().responseForFrequency(hz), 0.0f, 1e-3f) << hz;
}

TEST(ToneControlModel, BandsReachTheirGainWhereTheyShould)
{
    for (const auto& band : kBands) {
        Model model = flat();
        (model.*band.set)(1000.0f, 12.0f, 0.8f);
        const float below = band.shape == Shape::low_shelf ? 12.0f : 0.0f;
        const float at = band.shape == Shape::peak ? 12.0f : 6.0f;
        const float above = band.shape == Shape::high_shelf ? 12.0f : 0.0f;
        EXPECT_NEAR(model.responseForFrequency(30.0f), below, 0.05f);
        EXPECT_NEAR(model.responseForFrequency(1000.0f), at, 1e-3f);
        EXPECT_NEAR(model.responseForFrequency(21000.0f), above, 0.05f);
    }
}

// Single precision loses most where the unit circle passes close to poles and zeros, which is at low
// frequencies.
TEST(ToneControlModel, StaysWithinAHundredthOfADecibelOfTheCookbook)
{
    constexpr float kRate = 48000.0f;
    for (const auto& band : kBands)
        for (const float frequency : {200.0f, 1000.0f, 9000.0f})
            for (const float gain : {-24.0f, -3.0f, 18.0f})
                for (const float width : {0.3f, 1.0f}) {
                    Model model = flat();
                    model.set_sample_rate(kRate);
                    (model.*band.set)(frequency, gain, width);
                    for (float hz = 200.0f; hz < 20000.0f; hz *= 1.37f)
                        EXPECT_NEAR(model.responseForFrequency(hz),
                                    cookbook_db(band.shape, frequency, gain, width, hz, kRate), 0.01)
                            << "band " << &band - kBands << ", " << frequency << " Hz, " << gain << " dB, "
                            << width << ", at " << hz << " Hz";
                }
}

// The numbers come from a program of their own, in which every operation is done in double precision and
// rounded.
TEST(ToneControlModel, RoundsEveryOperationInItsOrder)
{
    const struct {
        std::size_t band;
        float settings[3];
        ToneSection expected;
    } cases[] = {
        {0,
         {137, 7.3f, 0.61f},
         {0x1.01f0e8p0f, -0x1.f88adp0f, 0x1.ed7ecp-1f, -0x1.f89576p0f, 0x1.f14b42p-1f}},
        {2,
         {1234, -8.7f, 0.3f},
         {0x1.96c894p-1f, -0x1.5460b6p0f, 0x1.1ca172p-1f, -0x1.5460b6p0f, 0x1.66d40ep-2f}},
        {4,
         {7001, -6.5f, 0.4f},
         {0x1.3d9884p-1f, -0x1.ed115cp-3f, -0x1.d80fe4p-7f, -0x1.6c9bbap-1f, 0x1.3c7d42p-4f}},
    };
    for (const auto& row : cases) {
        Model model;
        (model.*kBands[row.band].set)(row.settings[0], row.settings[1], row.settings[2]);
        EXPECT_EQ(std::memcmp(&model.sections()[row.band], &row.expected, sizeof(ToneSection)), 0)
            << row.band;
    }
}

TEST(ToneControlModel, ANewSampleRateMovesTheResponseUntilTheBandsAreRedesigned)
{
    Model model = flat();
    model.setMidFrequency_dbGain_Q(1000.0f, 12.0f, 0.8f);
    const float before = model.responseForFrequency(1000.0f);
    model.set_sample_rate(88200.0f);
    EXPECT_EQ(model.responseForFrequency(2000.0f), before);
    EXPECT_LT(model.responseForFrequency(1000.0f), 8.0f);
    model.setMidFrequency_dbGain_Q(1000.0f, 12.0f, 0.8f);
    EXPECT_NEAR(model.responseForFrequency(1000.0f), 12.0f, 1e-3f);
}

} // namespace r7
