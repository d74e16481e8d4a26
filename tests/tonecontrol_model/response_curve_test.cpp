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

TEST(ResponseCurve, IsThePlainResponseToTheLastBitInAMillionVertices)
{
    using Model = Qm_ObjectiveToneControl;
    constexpr void (Model::*kSetters[])(float, float, float) = {
        &Model::setBassFrequency_dbGain_slope,   &Model::setLowMidFrequency_dbGain_Q,
        &Model::setMidFrequency_dbGain_Q,        &Model::setHighMidFrequency_dbGain_Q,
        &Model::setTrebleFrequency_dbGain_slope,
    };
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    constexpr float kStrays[] = {0,     -0.0f,     -440,       1e-40f,
                                 3e38f, kInfinity, -kInfinity, std::numeric_limits<float>::quiet_NaN()};
    constexpr unsigned kSeed = 20;
    std::mt19937 random(kSeed);
    const auto below = [&](unsigned n) { return std::uniform_int_distribution(0u, n - 1)(random); };
    // Mostly what a user can reach, now and then what only a stray parameter brings.
    const auto value = [&](float low, float high) {
        return below(60) ? std::uniform_real_distribution(low, high)(random) : kStrays[below(8)];
    };
    const auto frequency = [&] { return below(60) ? std::pow(10.0f, value(0.5f, 4.7f)) : value(0, 1); };

    Model model;
    ResponseCurve curve;
    std::vector<float> grid;
    std::size_t finite = 0, infinite = 0, not_a_number = 0;
    for (int step = 0; step < 11'000; ++step) {
        if (step % 40 == 0) {
            grid.resize(step % 400 == 0 ? 7 : 101);
            for (float& hz : grid) hz = frequency();
            curve.set_frequencies(grid);
        }
        if (step % 20 == 0) model = Model(); // or one NaN would stay for ever
        if (below(30) == 0) model.set_sample_rate(below(4) ? value(8000, 200000) : kStrays[below(8)]);
        for (int changes = step % 20 == 0 ? 12 : 1; changes > 0; --changes)
            (model.*kSetters[below(5)])(frequency(), value(-60, 60), value(0.001f, 1.5f));

        const auto fast = curve.response(model);
        ASSERT_EQ(fast.size(), grid.size());
        for (std::size_t i = 0; i < grid.size(); ++i) {
            const float plain = model.responseForFrequency(grid[i]);
            ++(std::isfinite(plain) ? finite : std::isnan(plain) ? not_a_number : infinite);
            ASSERT_TRUE(std::isnan(plain)
                            ? std::isnan(fast[i])
                            : std::bit_cast<std::uint32_t>(plain) == std::bit_cast<std::uint32_t>(fast[i]))
                << "seed " << kSeed << ", step " << step << ", " << grid[i] << " Hz: " << fast[i];
        }
    }
    EXPECT_GT(finite, 300'000u);
    EXPECT_GT(not_a_number, 100'000u);
    EXPECT_GT(infinite, 1'000u);
}

} // namespace r7
