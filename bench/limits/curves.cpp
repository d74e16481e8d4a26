// The fast curves against the plain ones: not a bit may differ.
#include "bench/limits/limits.h"

#include "tests/tonecontrol_model/random_tones.h"
#include "tests/waveshaper_model/plain_sine_response.h"

namespace r7::bench {

namespace {

constexpr std::size_t kVertices = 10'000'000;
constexpr unsigned kSeed = 2024;

void none_differs(Limits& limits, const test::VertexCount& count, std::string_view what)
{
    limits.at_most(0, static_cast<double>(count.differing), what);
}

} // namespace

void measure_curves(Limits& limits)
{
    none_differs(limits, test::compare_tones(kSeed, kVertices),
                 "tone control: vertices of 10 million that differ from the plain form");
    none_differs(limits, test::compare_sine_responses(kSeed, kVertices),
                 "waveshaper: vertices of 10 million that differ from the plain form");
}

} // namespace r7::bench
