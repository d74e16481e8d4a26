// What the editor and the small display of a tone control share: fifteen values, the model and its curve.
#pragma once

#include "platform/action.h"
#include "platform/color.h"
#include "platform/path.h"
#include "platform/view.h"
#include "tonecontrol/objective_tone_control.h"
#include "tonecontrol/response_curve.h"
#include "tonecontrol/tone_mapping.h"

#include <array>
#include <bitset>
#include <cstddef>

namespace r7 {

/// The three values of a band.
struct ToneBandValues {
    float frequency_hz = 0.0f;
    float level_db = 0.0f;
    /// The slope of a shelf, the Q of a peak.
    float width = 0.0f;
};

/// A view of one tone control, which shows the response of its five bands over a logarithmic frequency axis.
///
/// The fifteen setters store their value and ask for a redraw, tell nobody, and do nothing where the value is
/// the one already there. A frequency (Hz) or level (dB) is taken as it is, unclamped; a slope or Q is
/// refused unless it is above 0.001. All fifteen values are 0 until somebody sets them, and the response of
/// that is no number.
///
/// Whatever is derived from the values is rebuilt when it is asked for or about to be painted, once for all
/// the setters that ran before; a hidden view costs nothing until then.
class ToneControlView : public View {
public:
    float freqLow() const { return bands_[kToneLow].frequency_hz; }
    float levelLow() const { return bands_[kToneLow].level_db; }
    float slopeLow() const { return bands_[kToneLow].width; }
    float freqLowMid() const { return bands_[kToneLowMid].frequency_hz; }
    float levelLowMid() const { return bands_[kToneLowMid].level_db; }
    float qLowMid() const { return bands_[kToneLowMid].width; }
    float freqMid() const { return bands_[kToneMid].frequency_hz; }
    float levelMid() const { return bands_[kToneMid].level_db; }
    float qMid() const { return bands_[kToneMid].width; }
    float freqHighMid() const { return bands_[kToneHighMid].frequency_hz; }
    float levelHighMid() const { return bands_[kToneHighMid].level_db; }
    float qHighMid() const { return bands_[kToneHighMid].width; }
    float freqHigh() const { return bands_[kToneHigh].frequency_hz; }
    float levelHigh() const { return bands_[kToneHigh].level_db; }
    float slopeHigh() const { return bands_[kToneHigh].width; }

    /// Range of the graph, and locations in it.
    const ToneMapping& mapping() const { return mapping_; }
    /// Gain of the five bands together at one frequency, in dB.
    float responseForFrequency(float hz);
    /// The response as an outline to fill, from the graph's lower left corner.
    const Path& curve_path();

    void setFreqLow(float hz) { set_frequency(kToneLow, hz); }
    void setLevelLow(float db) { set_level(kToneLow, db); }
    void setSlopeLow(float slope) { set_width(kToneLow, slope); }
    void setFreqLowMid(float hz) { set_frequency(kToneLowMid, hz); }
    void setLevelLowMid(float db) { set_level(kToneLowMid, db); }
    void setQLowMid(float q) { set_width(kToneLowMid, q); }
    void setFreqMid(float hz) { set_frequency(kToneMid, hz); }
    void setLevelMid(float db) { set_level(kToneMid, db); }
    void setQMid(float q) { set_width(kToneMid, q); }
    void setFreqHighMid(float hz) { set_frequency(kToneHighMid, hz); }
    void setLevelHighMid(float db) { set_level(kToneHighMid, db); }
    void setQHighMid(float q) { set_width(kToneHighMid, q); }
    void setFreqHigh(float hz) { set_frequency(kToneHigh, hz); }
    void setLevelHigh(float db) { set_level(kToneHigh, db); }
    void setSlopeHigh(float slope) { set_width(kToneHigh, slope); }

    void set_minimum_frequency(float hz);
    void set_maximum_frequency(float hz);
    void set_amplitude_maximum_gain_in_db(float db);
    /// Hz. All sections are redesigned.
    void set_sample_rate(float rate);
    /// Each colour that is given replaces the one before.
    void setCurveColor_fill(ColorRef curve, ColorRef fill);

    /// Stores the pair that opens or closes the editor, if both are given; otherwise nothing changes.
    void set_toggle_callback_onObject(Action action, ActionTargetRef target);
    /// Forgets that pair and releases its target.
    void clear_toggle_callback() { toggle_callback_.clear(); }

    void update_geometry() final;
    bool mouseDownCanMoveWindow() const final { return false; }

protected:
    /// The curve has so many points, a hundredth of the graph's width apart.
    ToneControlView(const Rect& frame, const Rect& graph_frame, std::size_t curve_points);

    const ToneBandValues& band(std::size_t number) const { return bands_[number]; }
    const Rect& graph_frame() const { return mapping_.graph_frame(); }
    /// The owner's fill, once both colours are there.
    const Color* owners_fill() const { return curveColor ? fill_color.get() : nullptr; }

    void set_frequency(std::size_t band, float hz) { set_value(band, &ToneBandValues::frequency_hz, hz); }
    void set_level(std::size_t band, float db) { set_value(band, &ToneBandValues::level_db, db); }
    void set_width(std::size_t band, float width);
    void send_toggle() { toggle_callback_.send(*this); }

    /// Rebuilds what is painted from the values and the model, both up to date.
    virtual void drawGraph();

    Path mCurvePath;

private:
    void set_value(std::size_t band, float ToneBandValues::*value, float to);
    void graph_changed();

    ToneMapping mapping_;
    std::array<ToneBandValues, kToneBands> bands_;
    Qm_ObjectiveToneControl tc;
    ResponseCurve curve_;
    std::size_t curve_points_;
    std::array<float, ResponseCurve::kCapacity> curve_x_{};

    bool graph_is_stale_ = true;
    bool frequencies_are_stale_ = true;
    std::bitset<kToneBands> stale_bands_ = std::bitset<kToneBands>().set();

    ColorRef curveColor = Color::device_white(0.0, 0.3);
    ColorRef fill_color;
    Callback toggle_callback_;
};

} // namespace r7
