// The filter model: what each band does to the response, and its coefficients to the bit.
#include "tests/tonecontrol_model/tone_designs.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace r7 {

using Model = Qm_ObjectiveToneControl;

TEST(ToneControlModel, IsSilentThenHasTheGainOfABandWhereItShould)
{
    EXPECT_EQ(Model().responseForFrequency(1000), -std::numeric_limits<float>::infinity());
    for (std::size_t band = 0; band < kToneBands; ++band) {
        Model model;
        for (const auto design : test::kToneDesigns) (model.*design)(1000, 0, 0.8f);
        (model.*test::kToneDesigns[band])(1000, 12, 0.8f);
        const bool is_low = band == kToneLow, is_high = band == kToneHigh;
        const float middle = is_low || is_high ? 6 : 12;
        EXPECT_NEAR(model.responseForFrequency(30), is_low ? 12 : 0, 0.05) << band;
        EXPECT_NEAR(model.responseForFrequency(1000), middle, 1e-3) << band;
        EXPECT_NEAR(model.responseForFrequency(21000), is_high ? 12 : 0, 0.05) << band;
        model.set_sample_rate(88200);
        EXPECT_NEAR(model.responseForFrequency(2000), middle, 1e-3) << "not redesigned for a new rate";
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
