// The audio unit that the program and the tests bind the panel to: it keeps what it is given, and is silent.
#pragma once

#include "platform/toolbox/audio_unit_instance.h"
#include "unit/parameters.h"
#include "waveshaper/bezier_curve.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

namespace r7 {

/// Hears what others do to a unit through the toolbox; on the thread that does it, afterwards.
class UnitObserver {
public:
    virtual ~UnitObserver() = default;
    virtual void parameter_set(AudioUnitParameterID id, float value) = 0;
    virtual void property_written(AudioUnitPropertyID id, UInt32 size) = 0;
    /// An event about the unit is about to be delivered to a listener, with this value.
    virtual void will_deliver(const AudioUnitEvent& event, float value) = 0;
};

/// One of the two waveshapers; its value is the number that users know it by.
enum class Stage { one = 1, two = 2 };

/// 54 parameters, two curves and two input levels, in the global scope's element 0 and nowhere else.
///
/// Parameters are kept as given, unclamped, and records too, whatever they say. May be used from any thread.
class EmbeddedUnit final : public AudioUnitInstance {
public:
    /// The properties of a stage: its curve, for others to read and write, and its input level, to read.
    static constexpr AudioUnitPropertyID curve_property(Stage stage) { return 80109 + number(stage); }
    static constexpr AudioUnitPropertyID level_property(Stage stage) { return 80111 + number(stage); }

    /// A unit with parameters at their starting values, identity curves and levels of 0.
    /// @param observer  outlives the unit; or null
    static std::shared_ptr<EmbeddedUnit> create(UnitObserver* observer = nullptr);

    AudioUnit handle() const { return registration_->handle(); }
    /// @param id  0 to 53
    float parameter(AudioUnitParameterID id) const { return parameters_[id]; }
    _QM_R7_Bezier_Sequence record(Stage stage) const;
    double level(Stage stage) const { return levels_[number(stage) - 1]; }

    // What the unit does of its own accord or at its host's bidding: it takes the value and announces it to
    // every listener, changed or not. The observer hears nothing.

    /// Allocates nothing.
    /// @param id  0 to 53
    void automate(AudioUnitParameterID id, float value);
    /// Input level of a stage, as an amplitude. Allocates nothing.
    void take_level(Stage stage, double value);
    /// Makes the stage's record that of the curve through `points`, which are used as they are, and counts
    /// its `needs_update`.
    void take_curve(Stage stage, const CurvePoints& points);

    OSStatus get_parameter(const AudioUnitParameter& parameter, Float32& value) const override;
    OSStatus set_parameter(const AudioUnitParameter& parameter, Float32 value) override;
    /// `data` may be larger than the property.
    OSStatus get_property(const AudioUnitProperty& property, std::span<std::byte> data,
                          UInt32& size) const override;
    /// `data` has the size of the property.
    OSStatus set_property(const AudioUnitProperty& property, std::span<const std::byte> data) override;
    void will_deliver(const AudioUnitEvent& event, Float32 value) override;

private:
    explicit EmbeddedUnit(UnitObserver* observer);

    static constexpr UInt32 number(Stage stage) { return static_cast<UInt32>(stage); }
    void announce_property(AudioUnitPropertyID id) const;

    UnitObserver* const observer_;
    std::optional<AudioUnitRegistration> registration_; // always, from create() on
    std::array<std::atomic<float>, kParameters.size()> parameters_;
    std::array<std::atomic<double>, 2> levels_{};
    mutable std::mutex records_mutex_;
    std::array<_QM_R7_Bezier_Sequence, 2> records_{};
};

} // namespace r7
