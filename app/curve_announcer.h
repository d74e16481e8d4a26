// Tells others of the curves that the panel writes.
#pragma once

#include "host/panel_view.h"
#include "unit/embedded_unit.h"

namespace r7 {

/// Announces each curve that a panel writes to every listener but the panel's own: a unit keeps what is
/// written to it without a word. Passes on all that it hears.
class CurveAnnouncer final : public UnitObserver {
public:
    /// @param next  hears everything first; outlives this, or null
    explicit CurveAnnouncer(UnitObserver* next) : next_(next) {}

    /// From here on, announces what `panel`, which outlives this object's use, writes to its unit.
    void begin(const QmR7View& panel) { panel_ = &panel; }

    void parameter_set(AudioUnitParameterID id, float value) override;
    void property_written(AudioUnitPropertyID id, UInt32 size) override;
    void will_deliver(const AudioUnitEvent& event, float value) override;

private:
    UnitObserver* const next_;
    const QmR7View* panel_ = nullptr; // none before begin()
};

} // namespace r7
