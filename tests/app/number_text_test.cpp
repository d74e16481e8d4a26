// Numbers as text, in both directions.
#include "app/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace r7 {
namespace {

TEST(NumberText, IsTheShortestOfTheNumbersOwnType)
{
    EXPECT_EQ(text_of(0.1F), "0.1");
    EXPECT_EQ(text_of(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(text_of(-0.0), "-0");
    EXPECT_EQ(text_of(1e38F), "1e+38");
    EXPECT_EQ(text_of(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(text_of(-std::numeric_limits<float>::quiet_NaN()), "nan") << "without its sign";
    EXPECT_EQ(text_of(std::uint32_t{4294967295}), "4294967295");
    EXPECT_EQ(text_of(true), "1");
}

TEST(NumberText, ReadsBackToTheSameBits)
{
    std::mt19937 random(7);
    for (int i = 0; i < 100'000; ++i) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isnan(number)) continue;
        const auto read = number_from<float>(text_of(number));
        ASSERT_EQ(std::bit_cast<std::uint32_t>(read.value()), std::bit_cast<std::uint32_t>(number)) << number;
    }
}

TEST(NumberText, IsReadWholeOrNotAtAll)
{
    for (const char* good : {"0", "-0.5", ".5", "5.", "1e-3", "1E3", "inf", "-inf", "nan", "00012"})
        EXPECT_TRUE(number_from<double>(good)) << good;
    for (const char* bad :
         {"", "-", ".", "+1", " 1", "1 ", "1,5", "0x10", "1e", "1.5.2", "one", "1e999", "--1", "1f"})
        EXPECT_FALSE(number_from<double>(bad)) << bad;
    EXPECT_FALSE(number_from<float>("1e39")) << "beyond single precision";
    for (const char* bad : {"1.0", "1e3", "nan", "-1", "4294967296"})
        EXPECT_FALSE(number_from<std::uint32_t>(bad)) << bad;
}

} // namespace
} // namespace r7
