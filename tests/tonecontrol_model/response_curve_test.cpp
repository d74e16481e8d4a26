// The fast response against the plain one, vertex by vertex and bit by bit.
#include "tests/tonecontrol_model/random_tones.h"

#include <gtest/gtest.h>

namespace r7 {

TEST(ResponseCurve, IsThePlainResponseToTheLastBitInAMillionVertices)
{
    constexpr unsigned kSeed = 20;
    const auto count = test::compare_tones(kSeed, 1'000'000);
    EXPECT_EQ(count.differing, 0u) << "seed " << kSeed;
    EXPECT_GT(count.finite, 300'000u);
    EXPECT_GT(count.not_a_number, 100'000u);
    EXPECT_GT(count.infinite, 1'000u);
}

} // namespace r7
