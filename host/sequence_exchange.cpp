// The exchange of the waveshapers' curve records and input levels with the Audio Unit.
#include "host/panel_view.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace r7 {

void QmR7View::sequence_updated_from_au(std::int32_t property)
{
    const auto id = static_cast<UnitProperty>(property);
    const bool is_curve = id == UnitProperty::stage_one_curve || id == UnitProperty::stage_two_curve;

    // Zeroed, so that a unit which returns less than it says leaves nothing undefined.
    alignas(_QM_R7_Bezier_Sequence) std::array<std::byte, sizeof(_QM_R7_Bezier_Sequence)> buffer{};
    UInt32 size = is_curve ? sizeof(_QM_R7_Bezier_Sequence) : sizeof(double);
    const OSStatus status = AudioUnitGetProperty(mAU, static_cast<AudioUnitPropertyID>(property),
                                                 kAudioUnitScope_Global, 0, buffer.data(), &size);
    if (status != 0) return;

    // The size that came back is not compared: a whole record is taken.
    switch (id) {
    case UnitProperty::stage_one_curve:
        std::memcpy(&stage_one_waveshaper_data, buffer.data(), sizeof stage_one_waveshaper_data);
        break;
    case UnitProperty::stage_two_curve:
        std::memcpy(&stage_two_waveshaper_data, buffer.data(), sizeof stage_two_waveshaper_data);
        break;
    default:
        break; // read and thrown away
    }
}

} // namespace r7
