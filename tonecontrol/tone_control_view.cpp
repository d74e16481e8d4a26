// What the editor and the small display of a tone control share: fifteen values, the model and its curve.
#include "tonecontrol/tone_control_view.h"

#include <bit>
#include <cassert>
#include <cstdint>
#include <span>
#include <utility>

namespace r7 {

namespace {

/// A slope or Q is above this.
constexpr float kLeastWidth = 0.001f;

/// A curve that ends below this, whatever the graph's range, is not led down to the lower right corner.
constexpr float kFloorDb = -40.0f;

using Design = void (Qm_ObjectiveToneControl::*)(float, float, float);
constexpr Design kDesigns[kToneBands] = {
    &Qm_ObjectiveToneControl::setBassFrequency_dbGain_slope,
    &Qm_ObjectiveToneControl::setLowMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setHighMidFrequency_dbGain_Q,
    &Qm_ObjectiveToneControl::setTrebleFrequency_dbGain_slope,
};

} // namespace

ToneControlView::ToneControlView(const Rect& frame, const Rect& graph_frame, std::size_t curve_points)
    : View(frame), mapping_(graph_frame), curve_points_(curve_points)
{
    assert(curve_points <= curve_x_.size());
    // Summed in single precision, point by point.
    const float step = static_cast<float>(graph_frame.width * 0.01);
    float x = static_cast<float>(graph_frame.x);
    for (std::size_t i = 0; i < curve_points; ++i, x += step) curve_x_[i] = x;
    mCurvePath.reserve(curve_points + 2);
}

float ToneControlView::responseForFrequency(float hz)
{
    update_geometry();
    return tc.responseForFrequency(hz);
}

const Path& ToneControlView::curve_path()
{
    update_geometry();
    return mCurvePath;
}

void ToneControlView::set_minimum_frequency(float hz)
{
    mapping_.set_minimum_frequency(hz);
    frequencies_are_stale_ = true;
    graph_changed();
}

void ToneControlView::set_maximum_frequency(float hz)
{
    mapping_.set_maximum_frequency(hz);
    frequencies_are_stale_ = true;
    graph_changed();
}

void ToneControlView::set_amplitude_maximum_gain_in_db(float db)
{
    mapping_.set_amplitude_maximum_gain_in_db(db);
    graph_changed();
}

void ToneControlView::set_sample_rate(float rate)
{
    tc.set_sample_rate(rate);
    stale_bands_.set();
    graph_changed();
}

void ToneControlView::setCurveColor_fill(ColorRef curve, ColorRef fill)
{
    if (curve) curveColor = std::move(curve);
    if (fill) fill_color = std::move(fill);
    set_needs_display();
}

void ToneControlView::set_toggle_callback_onObject(Action action, ActionTargetRef target)
{
    toggle_callback_.set(action, std::move(target));
}

void ToneControlView::update_geometry()
{
    if (!graph_is_stale_) return;
    for (std::size_t number = 0; number < kToneBands; ++number) {
        const auto [frequency_hz, level_db, width] = bands_[number];
        if (stale_bands_[number]) (tc.*kDesigns[number])(frequency_hz, level_db, width);
    }
    if (frequencies_are_stale_) {
        std::array<float, ResponseCurve::kCapacity> frequencies_hz;
        for (std::size_t i = 0; i < curve_points_; ++i)
            frequencies_hz[i] = mapping_.frequency_for_location(curve_x_[i]);
        curve_.set_frequencies(std::span(frequencies_hz).first(curve_points_));
    }
    stale_bands_.reset();
    frequencies_are_stale_ = false;
    graph_is_stale_ = false;
    drawGraph();
}

void ToneControlView::drawGraph()
{
    const auto response_db = curve_.response(tc);
    mCurvePath.remove_all_points();
    mCurvePath.move_to(graph_frame().origin());
    std::array<float, ResponseCurve::kCapacity> curve_y;
    for (std::size_t i = 0; i < curve_points_; ++i) curve_y[i] = mapping_.location_for_gain(response_db[i]);
    mCurvePath.append_lines(std::span(curve_x_).first(curve_points_),
                            std::span(curve_y).first(curve_points_));
    if (response_db.back() >= kFloorDb) mCurvePath.line_to({graph_frame().right(), graph_frame().y});
}

void ToneControlView::set_width(std::size_t band, float width)
{
    if (width > kLeastWidth) set_value(band, &ToneBandValues::width, width);
}

void ToneControlView::set_value(std::size_t band, float ToneBandValues::*value, float to)
{
    float& stored = bands_[band].*value;
    // By their bits, so that a NaN that stays is no change.
    if (std::bit_cast<std::uint32_t>(stored) == std::bit_cast<std::uint32_t>(to)) return;
    stored = to;
    stale_bands_.set(band);
    graph_changed();
}

void ToneControlView::graph_changed()
{
    graph_is_stale_ = true;
    set_needs_display_in(graph_frame());
}

} // namespace r7
