// The fast response against the plain one, vertex by vertex and bit by bit.
#include "tonecontrol/response_curve.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace r7 {

namespace {

constexpr std::size_t kPoints = 101;
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// Random settings, mostly of the sort that a user can reach and now and then of the sort that only a stray
/// parameter has.
class Settings {
public:
    explicit Settings(unsigned seed) : random_(seed) {}

    bool one_in(int n) { return std::uniform_int_distribution(1, n)(random_) == 1; }
    std::size_t below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }
    float frequency_hz() { return one_in(60) ? stray() : std::pow(10.0f, uniform(0.5f, 4.7f)); }
    float gain_db() { return one_in(60) ? stray() : uniform(-60.0f, 60.0f); }
    float width() { return one_in(60) ? stray() : uniform(0.001f, 1.5f); }
    float rate() { return one_in(10) ? stray() : one_in(2) ? 44100.0f : 96000.0f; }

private:
    float uniform(float low, float high) { return std::uniform_real_distribution(low, high)(random_); }
    float stray()
    {
        constexpr float kStrays[] = {0.0f, -0.0f, -440.0f, 1e-40f, 3e38f, kInfinity, -kInfinity, kNaN};
        return kStrays[below(std::size(kStrays))];
    }

    std::mt19937 random_;
};

void set_random_band(Qm_ObjectiveToneControl& model, Settings& settings)
{
    using Model = Qm_ObjectiveToneControl;
    constexpr void (Model::*kSetters[])(float, float, float) = {
        &Model::setBassFrequency_dbGain_slope,   &Model::setLowMidFrequency_dbGain_Q,
        &Model::setMidFrequency_dbGain_Q,        &Model::setHighMidFrequency_dbGain_Q,
        &Model::setTrebleFrequency_dbGain_slope,
    };
    (model.*kSetters[settings.below(kToneBands)])(settings.frequency_hz(), settings.gain_db(),
                                                  settings.width());
}

} // namespace

TEST(ResponseCurve, IsThePlainResponseToTheLastBitInAMillionVertices)
{
    constexpr unsigned kSeed = 20;
    Settings settings(kSeed);
    Qm_ObjectiveToneControl model;
    ResponseCurve curve;
    std::vector<float> grid;
    std::size_t finite = 0, infinite = 0, not_a_number = 0;

    for (int step = 0; step < 11'000; ++step) {
        if (step % 40 == 0) {
            grid.resize(step % 400 == 0 ? 7 : kPoints);
            for (float& hz : grid) hz = settings.frequency_hz();
            curve.set_frequencies(grid);
        }
        if (settings.one_in(30)) model.set_sample_rate(settings.rate());
        if (step % 20 == 0) model = Qm_ObjectiveToneControl(); // or one NaN would stay for ever
        for (int changes = step % 20 == 0 ? 12 : 1; changes > 0; --changes) set_random_band(model, settings);

        const auto fast = curve.response(model);
        ASSERT_EQ(fast.size(), grid.size());
        for (std::size_t i = 0; i < grid.size(); ++i) {
            const float plain = model.responseForFrequency(grid[i]);
            (std::isfinite(plain) ? finite : std::isnan(plain) ? not_a_number : infinite) += 1;
            const bool same = std::isnan(plain) ? std::isnan(fast[i])
                                                : std::bit_cast<std::uint32_t>(plain) ==
                                                      std::bit_cast<std::uint32_t>(fast[i]);
            ASSERT_TRUE(same) << "seed " << kSeed << ", step " << step << ", " << grid[i] << " Hz: plain "
                              << plain << ", fast " << fast[i];
        }
    }
    EXPECT_GT(finite, 300'000u);
    EXPECT_GT(not_a_number, 100'000u);
    EXPECT_GT(infinite, 1'000u);
}

} // namespace r7
