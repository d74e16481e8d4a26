// Quantities for the eye: rounding, units, and numbers that nobody expects.
#include "app/quantity_text.h"

#include <gtest/gtest.h>

#include <cmath>

namespace r7 {
namespace {

TEST(QuantityText, RoundsForTheEyeAndTakesAnyNumber)
{
    const struct {
        double number;
        const char *plain, *hz, *db;
    } rows[] = {
        {0.0, "0.00", "0.0 Hz", "0.0 dB"},
        {-0.0004, "0.00", "0.0 Hz", "0.0 dB"},
        {0.25, "0.25", "0.2 Hz", "+0.2 dB"}, // a half, exactly: to the even digit
        {0.2525, "0.253", "0.3 Hz", "+0.3 dB"},
        {static_cast<double>(0.8F), "0.80", "0.8 Hz", "+0.8 dB"},
        {99.949, "99.949", "99.9 Hz", "+99.9 dB"},
        {99.95, "99.95", "100 Hz", "+100.0 dB"},
        {999.499, "999.499", "999 Hz", "+999.5 dB"},
        {999.5, "999.50", "1.00 kHz", "+999.5 dB"},
        {-999.5, "-999.50", "-1.00 kHz", "-999.5 dB"},
        {9995.0, "9995.00", "10.0 kHz", "+9995.0 dB"},
        {999500.0, "999500.00", "1.00e+06 Hz", "+999500.0 dB"},
        {-3e38, "-3.00e+38", "-3.00e+38 Hz", "-3.00e+38 dB"},
        {-HUGE_VAL, "-inf", "-inf Hz", "-inf dB"},
        {-std::nan(""), "nan", "nan Hz", "nan dB"},
    };
    for (const auto& [number, plain, hz, db] : rows) {
        EXPECT_EQ(plain_text(number), plain);
        EXPECT_EQ(frequency_text(number), hz);
        EXPECT_EQ(level_text(number), db);
    }
}

} // namespace
} // namespace r7
