// The fast response of tone controls at random against the plain one, which is the model's own.
#pragma once

#include "tests/support/vertex_count.h"
#include "tests/tonecontrol_model/tone_designs.h"
#include "tonecontrol/response_curve.h"

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace r7::test {

/// Tone controls of which each is the one before with a change or a few; mostly what a user can reach, now
/// and then what only a stray parameter brings.
class RandomTones final {
public:
    explicit RandomTones(unsigned seed) : engine_(seed) {}

    const Qm_ObjectiveToneControl& model() const { return model_; }
    /// Frequencies to look at, in Hz.
    const std::vector<float>& grid() const { return grid_; }

    /// Goes on to the next. True where its grid is another, too.
    bool next()
    {
        const int step = step_++;
        const bool new_grid = step % 40 == 0;
        if (new_grid) {
            grid_.resize(step % 400 == 0 ? 7 : 101);
            for (float& hz : grid_) hz = frequency();
        }
        const bool new_model = step % 20 == 0; // or one NaN would stay for ever
        if (new_model) model_ = {};
        if (below(30) == 0) model_.set_sample_rate(below(4) ? value(8000, 200000) : stray());
        for (int changes = new_model ? 12 : 1; changes > 0; --changes)
            (model_.*kToneDesigns[below(kToneBands)])(frequency(), value(-60, 60), value(0.001f, 1.5f));
        return new_grid;
    }

private:
    unsigned below(unsigned n) { return std::uniform_int_distribution(0u, n - 1)(engine_); }
    float stray()
    {
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        constexpr float kStrays[] = {0,     -0.0f,     -440,       1e-40f,
                                     3e38f, kInfinity, -kInfinity, std::numeric_limits<float>::quiet_NaN()};
        return kStrays[below(8)];
    }
    float value(float low, float high)
    {
        return below(60) ? std::uniform_real_distribution(low, high)(engine_) : stray();
    }
    float frequency() { return below(60) ? std::pow(10.0f, value(0.5f, 4.7f)) : value(0, 1); }

    std::mt19937 engine_;
    int step_ = 0;
    Qm_ObjectiveToneControl model_;
    std::vector<float> grid_;
};

/// Compares so many vertices, and those that make the last curve whole.
inline VertexCount compare_tones(unsigned seed, std::size_t vertices)
{
    RandomTones tones(seed);
    ResponseCurve curve;
    VertexCount count;
    while (count.all() < vertices) {
        if (tones.next()) curve.set_frequencies(tones.grid());
        const auto fast = curve.response(tones.model());
        for (std::size_t i = 0; i < tones.grid().size(); ++i)
            count.add(tones.model().responseForFrequency(tones.grid()[i]), fast[i]);
    }
    return count;
}

} // namespace r7::test
