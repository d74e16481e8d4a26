// Counts what others do to an embedded unit.
#pragma once

#include "unit/embedded_unit.h"

#include <functional>

namespace r7 {

/// How often something was done, and whom to call when it has been.
struct RecordingObserver final : UnitObserver {
    int sets = 0;
    int deliveries = 0;
    std::function<void(AudioUnitParameterID)> on_set = [](auto) {};
    std::function<void()> on_delivery = [] {};

    void parameter_set(AudioUnitParameterID id, float) override { ++sets, on_set(id); }
    void property_written(AudioUnitPropertyID, UInt32) override {}
    void will_deliver(const AudioUnitEvent&, float) override { ++deliveries, on_delivery(); }
};

} // namespace r7
