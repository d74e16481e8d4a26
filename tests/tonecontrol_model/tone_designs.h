// How the model designs each of its bands, in a row.
#pragma once

#include "tonecontrol/objective_tone_control.h"

namespace r7::test {

/// By band: from a frequency in Hz, a gain in dB and a Q or slope.
inline constexpr void (Qm_ObjectiveToneControl::*kToneDesigns[kToneBands])(float, float, float) = {
    &Qm_ObjectiveToneControl::setBassFrequency_dbGain_slope,
    &Qm_ObjectiveToneControl::setLowMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setHighMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setTrebleFrequency_dbGain_slope,
};

} // namespace r7::test
