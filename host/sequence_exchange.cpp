// The exchange of the waveshapers' curve records and input levels with the Audio Unit.
#include "host/panel_view.h"

#include <algorithm>
#include <cstring>

namespace r7 {

namespace {

// Reads a property into `value`. False, with `value` in an unknown state, where the unit refuses. The size
// that it returns is not compared: `value` starts zeroed, so that a unit which gives less than it says leaves
// nothing undefined.
template <typename T>
bool read_property(AudioUnit unit, AudioUnitPropertyID id, T& value)
{
    value = {};
    UInt32 size = sizeof value;
    return AudioUnitGetProperty(unit, id, kAudioUnitScope_Global, 0, &value, &size) == 0;
}

} // namespace

_QM_R7_Bezier_Sequence& QmR7View::data_of(const StageRow& row)
{
    return &row == &kStageRows[0] ? stage_one_waveshaper_data : stage_two_waveshaper_data;
}

void QmR7View::sequence_updated_from_au(std::int32_t property)
{
    const auto id = static_cast<AudioUnitPropertyID>(property);
    const auto changed = static_cast<UnitProperty>(id);
    if (const auto stage = std::ranges::find(kStageRows, changed, &StageRow::curve);
        stage != kStageRows.end()) {
        _QM_R7_Bezier_Sequence record;
        if (!read_property(mAU, id, record)) return;
        data_of(*stage) = record;
        (this->*stage->display)->set_from_sequence_data(record);
        if (is_zoomed(*stage)) zoomed_wave_shaper_display->set_from_sequence_data(data_of(*stage));
        return;
    }
    double level = 0.0;
    if (!read_property(mAU, id, level)) return;
    const auto stage = std::ranges::find(kStageRows, changed, &StageRow::level);
    // Any other property is read and thrown away.
    if (stage != kStageRows.end()) (this->*stage->display)->update_input_level(level);
}

void QmR7View::curve_edited()
{
    for (const StageRow& stage : kStageRows) {
        if (!is_zoomed(stage)) continue;
        _QM_R7_Bezier_Sequence& data = data_of(stage);
        zoomed_wave_shaper_display->export_sequence_data(data);
        // The display follows from our own copy at once; whether the unit took it is not asked.
        if (mAU)
            AudioUnitSetProperty(mAU, static_cast<AudioUnitPropertyID>(stage.curve), kAudioUnitScope_Global,
                                 0, &data, sizeof data);
        (this->*stage.display)->set_from_sequence_data(data);
    }
}

} // namespace r7
