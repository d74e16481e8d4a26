// The embedded unit.
#include "unit/embedded_unit.h"

#include <cassert>
#include <cstring>

namespace r7 {

namespace {

constexpr AudioUnitPropertyID kFirstCurve = EmbeddedUnit::curve_property(Stage::one);
constexpr AudioUnitPropertyID kFirstLevel = EmbeddedUnit::level_property(Stage::one);
static_assert(kFirstCurve == 80110 && kFirstLevel == 80112);

// Unsigned, so that numbers below the first are far above it.
bool is_curve(AudioUnitPropertyID id)
{
    return id - kFirstCurve < 2;
}

bool is_level(AudioUnitPropertyID id)
{
    return id - kFirstLevel < 2;
}

template <typename Address>
OSStatus status_of_place(const Address& address)
{
    if (address.mScope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
    return address.mElement == 0 ? noErr : kAudioUnitErr_InvalidElement;
}

OSStatus status_of(const AudioUnitParameter& parameter)
{
    if (parameter.mParameterID >= kParameters.size()) return kAudioUnitErr_InvalidParameter;
    return status_of_place(parameter);
}

OSStatus status_of(const AudioUnitProperty& property)
{
    if (!is_curve(property.mPropertyID) && !is_level(property.mPropertyID))
        return kAudioUnitErr_InvalidProperty;
    return status_of_place(property);
}

} // namespace

std::shared_ptr<EmbeddedUnit> EmbeddedUnit::create(UnitObserver* observer)
{
    std::shared_ptr<EmbeddedUnit> unit(new EmbeddedUnit(observer));
    unit->registration_.emplace(unit);
    return unit;
}

EmbeddedUnit::EmbeddedUnit(UnitObserver* observer) : observer_(observer)
{
    for (const ParameterRow& row : kParameters) parameters_[row.id] = row.start;
    for (_QM_R7_Bezier_Sequence& record : records_) {
        BezierCurve().export_sequence_data(record);
        record.needs_update = 0; // nobody has changed it yet
    }
}

_QM_R7_Bezier_Sequence EmbeddedUnit::record(Stage stage) const
{
    const std::lock_guard lock(records_mutex_);
    return records_[number(stage) - 1];
}

void EmbeddedUnit::automate(AudioUnitParameterID id, float value)
{
    assert(id < kParameters.size());
    parameters_[id] = value;
    const AudioUnitParameter parameter{handle(), id, kAudioUnitScope_Global, 0};
    const AudioUnitEvent event{kAudioUnitEvent_ParameterValueChange, {.mParameter = parameter}};
    AUEventListenerNotify(nullptr, nullptr, &event);
}

void EmbeddedUnit::take_level(Stage stage, double value)
{
    levels_[number(stage) - 1] = value;
    announce_property(level_property(stage));
}

void EmbeddedUnit::take_curve(Stage stage, const CurvePoints& points)
{
    BezierCurve curve;
    curve.set_points(points);
    curve.update_coeffs();
    {
        const std::lock_guard lock(records_mutex_);
        curve.export_sequence_data(records_[number(stage) - 1]);
    }
    announce_property(curve_property(stage));
}

void EmbeddedUnit::announce_property(AudioUnitPropertyID id) const
{
    const AudioUnitProperty property{handle(), id, kAudioUnitScope_Global, 0};
    const AudioUnitEvent event{kAudioUnitEvent_PropertyChange, {.mProperty = property}};
    AUEventListenerNotify(nullptr, nullptr, &event);
}

OSStatus EmbeddedUnit::get_parameter(const AudioUnitParameter& parameter, Float32& value) const
{
    const OSStatus status = status_of(parameter);
    if (status == noErr) value = parameters_[parameter.mParameterID];
    return status;
}

OSStatus EmbeddedUnit::set_parameter(const AudioUnitParameter& parameter, Float32 value)
{
    if (const OSStatus status = status_of(parameter); status != noErr) return status;
    parameters_[parameter.mParameterID] = value;
    if (observer_) observer_->parameter_set(parameter.mParameterID, value);
    return noErr;
}

OSStatus EmbeddedUnit::get_property(const AudioUnitProperty& property, std::span<std::byte> data,
                                    UInt32& size) const
{
    if (const OSStatus status = status_of(property); status != noErr) return status;
    const auto give = [&](const auto& value) {
        if (data.size() < sizeof value) return kAudioUnitErr_InvalidPropertyValue;
        std::memcpy(data.data(), &value, sizeof value);
        size = sizeof value;
        return noErr;
    };
    if (is_level(property.mPropertyID)) return give(levels_[property.mPropertyID - kFirstLevel].load());
    const std::lock_guard lock(records_mutex_);
    return give(records_[property.mPropertyID - kFirstCurve]);
}

OSStatus EmbeddedUnit::set_property(const AudioUnitProperty& property, std::span<const std::byte> data)
{
    if (const OSStatus status = status_of(property); status != noErr) return status;
    if (is_level(property.mPropertyID)) return kAudioUnitErr_PropertyNotWritable;
    if (data.size() != sizeof(_QM_R7_Bezier_Sequence)) return kAudioUnitErr_InvalidPropertyValue;
    {
        const std::lock_guard lock(records_mutex_);
        std::memcpy(&records_[property.mPropertyID - kFirstCurve], data.data(), data.size());
    }
    if (observer_) observer_->property_written(property.mPropertyID, static_cast<UInt32>(data.size()));
    return noErr;
}

void EmbeddedUnit::will_deliver(const AudioUnitEvent& event, Float32 value)
{
    if (observer_) observer_->will_deliver(event, value);
}

} // namespace r7
