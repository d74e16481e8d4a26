// Where frequencies and gains lie in the graph of a tone control.
#pragma once

#include "platform/geometry.h"

namespace r7 {

/// Logarithm to the base ten as the mapping takes it, a quotient of two natural ones.
float logValueForNumber(float x);

/// A rectangle of a view with decades along x and decibels along y. It spans 10 Hz to 20050 Hz and -40 dB to
/// +40 dB until it is told otherwise.
///
/// Locations are view coordinates in points. Fields are single precision, the rectangle is double; each
/// result is computed as its operands have it and rounded once, so that what a path stores is a single.
/// Nothing is checked: 0 Hz lies at minus infinity.
class ToneMapping final {
public:
    explicit ToneMapping(const Rect& graph_frame);

    const Rect& graph_frame() const { return graph_frame_; }
    float minimum_frequency_hz() const { return minimum_frequency_hz_; }
    float maximum_frequency_hz() const { return maximum_frequency_hz_; }
    float minimum_gain_db() const { return minimum_gain_db_; }
    float maximum_gain_db() const { return maximum_gain_db_; }

    float location_for_frequency(float hz) const;
    float frequency_for_location(float x) const;
    float location_for_gain(float db) const
    {
        return static_cast<float>((db + maximum_gain_db_) * gain_scale_ + graph_frame_.y);
    }
    float gain_for_location(float y) const;

    void set_minimum_frequency(float hz);
    void set_maximum_frequency(float hz);
    /// The graph then spans -db to +db.
    void set_amplitude_maximum_gain_in_db(float db);

private:
    void rescale_frequencies();

    Rect graph_frame_;
    float minimum_frequency_hz_ = 10.0f;
    float maximum_frequency_hz_ = 20050.0f;
    float minimum_gain_db_ = 0.0f;
    float maximum_gain_db_ = 0.0f;
    /// Logarithms of the limits; decades, for all that they are called decibels.
    float minimum_frequency_db_ = 0.0f;
    float maximum_frequency_db_ = 0.0f;
    /// Points for a decade, and for a dB.
    float freq_scale_ = 0.0f;
    float gain_scale_ = 0.0f;
};

} // namespace r7
