// The facts about the two tone controls, in rows.
#pragma once

#include "host/panel_outlets.h"
#include "platform/audio_toolbox.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace r7 {

inline constexpr std::size_t kToneValues = 15;

/// One of a tone control's fifteen values: how it is set on editor and display, and read from the editor.
struct ToneValueRow {
    void (ToneControlView::*set)(float value);
    float (ToneControlView::*get)() const;
};

/// By the value's offset in its group of parameters.
inline constexpr std::array<ToneValueRow, kToneValues> kToneValueRows{{
    {&ToneControlView::setFreqLow, &ToneControlView::freqLow},
    {&ToneControlView::setSlopeLow, &ToneControlView::slopeLow},
    {&ToneControlView::setLevelLow, &ToneControlView::levelLow},
    {&ToneControlView::setFreqLowMid, &ToneControlView::freqLowMid},
    {&ToneControlView::setQLowMid, &ToneControlView::qLowMid},
    {&ToneControlView::setLevelLowMid, &ToneControlView::levelLowMid},
    {&ToneControlView::setFreqMid, &ToneControlView::freqMid},
    {&ToneControlView::setQMid, &ToneControlView::qMid},
    {&ToneControlView::setLevelMid, &ToneControlView::levelMid},
    {&ToneControlView::setFreqHighMid, &ToneControlView::freqHighMid},
    {&ToneControlView::setQHighMid, &ToneControlView::qHighMid},
    {&ToneControlView::setLevelHighMid, &ToneControlView::levelHighMid},
    {&ToneControlView::setFreqHigh, &ToneControlView::freqHigh},
    {&ToneControlView::setSlopeHigh, &ToneControlView::slopeHigh},
    {&ToneControlView::setLevelHigh, &ToneControlView::levelHigh},
}};

/// Offsets in the order in which something is done with all fifteen values.
using ToneOrder = std::array<std::uint8_t, kToneValues>;

/// A tone control: its group of parameters, its two views, its zoom state, and the order in which an edit is
/// sent to the unit.
struct ToneRow {
    AudioUnitParameterID base;
    Outlet<Qm_ParametricEQView> editor;
    Outlet<QM_R7_ParametericEQ_Response_View> display;
    std::int32_t zoom_state;
    ToneOrder sending_order;
};

/// The two orders differ, on purpose: the pre tone control sends its mid band before its low-mid band. In
/// both, a band's Q goes before its frequency.
inline constexpr std::array<ToneRow, 2> kToneRows{{
    {0,
     &PanelOutlets::pre_tone_control,
     &PanelOutlets::pre_tone_control_display,
     1,
     {0, 1, 2, 7, 6, 8, 4, 3, 5, 10, 9, 11, 12, 13, 14}},
    {15,
     &PanelOutlets::post_tone_control,
     &PanelOutlets::post_tone_control_display,
     2,
     {0, 1, 2, 4, 3, 5, 7, 6, 8, 10, 9, 11, 12, 13, 14}},
}};

/// In which an edit reaches the display: levels, frequencies, widths.
inline constexpr ToneOrder kToneDisplayOrder{2, 5, 8, 11, 14, 0, 3, 6, 9, 12, 1, 4, 7, 10, 13};

/// What all four views are set to.
inline constexpr float kToneSampleRate = 44100.0f;       // Hz
inline constexpr float kToneMaximumGain = 40.0f;         // dB
inline constexpr float kToneMinimumFrequency = 10.0f;    // Hz
inline constexpr float kToneMaximumFrequency = 22050.0f; // Hz

constexpr bool has_each_offset_once(const ToneOrder& order)
{
    unsigned seen = 0;
    for (const unsigned offset : order) seen |= 1u << offset;
    return seen == (1u << kToneValues) - 1;
}
static_assert(has_each_offset_once(kToneRows[0].sending_order));
static_assert(has_each_offset_once(kToneRows[1].sending_order));
static_assert(has_each_offset_once(kToneDisplayOrder));

} // namespace r7
