// Where frequencies and gains lie in the graph of a tone control.
#include "tonecontrol/tone_mapping.h"

#include <cmath>

namespace r7 {

float logValueForNumber(float x)
{
    return std::log(x) / std::log(10.0f);
}

ToneMapping::ToneMapping(const Rect& graph_frame) : graph_frame_(graph_frame)
{
    rescale_frequencies();
    set_amplitude_maximum_gain_in_db(40.0f);
}

float ToneMapping::location_for_frequency(float hz) const
{
    const float from_left = freq_scale_ * (logValueForNumber(hz) - minimum_frequency_db_);
    return static_cast<float>(from_left + graph_frame_.x);
}

float ToneMapping::frequency_for_location(float x) const
{
    const double decades = minimum_frequency_db_ + 1.0f / freq_scale_ * (x - graph_frame_.x);
    return std::pow(10.0f, static_cast<float>(decades));
}

float ToneMapping::gain_for_location(float y) const
{
    return static_cast<float>(1.0f / gain_scale_ * (y - graph_frame_.y) - maximum_gain_db_);
}

void ToneMapping::set_minimum_frequency(float hz)
{
    minimum_frequency_hz_ = hz;
    rescale_frequencies();
}

void ToneMapping::set_maximum_frequency(float hz)
{
    maximum_frequency_hz_ = hz;
    rescale_frequencies();
}

void ToneMapping::set_amplitude_maximum_gain_in_db(float db)
{
    maximum_gain_db_ = db;
    minimum_gain_db_ = -db;
    gain_scale_ = static_cast<float>(graph_frame_.height / (db + db));
}

void ToneMapping::rescale_frequencies()
{
    minimum_frequency_db_ = logValueForNumber(minimum_frequency_hz_);
    maximum_frequency_db_ = logValueForNumber(maximum_frequency_hz_);
    freq_scale_ = static_cast<float>(graph_frame_.width / (maximum_frequency_db_ - minimum_frequency_db_));
}

} // namespace r7
