// Finding a stage by its controls.
#include "host/stage_rows.h"

#include <algorithm>

namespace r7 {

StageGain gain_of_knob(Outlet<QmKnobView> knob)
{
    for (const StageRow& stage : kStageRows)
        for (const GainRow& gain : stage.gains)
            if (gain.knob == knob) return {&stage, &gain};
    return {};
}

const StageRow* stage_of_switch(Outlet<QmR7PushModeKnobView> mode)
{
    const auto stage = std::ranges::find(kStageRows, mode, &StageRow::mode);
    return stage == kStageRows.end() ? nullptr : &*stage;
}

} // namespace r7
