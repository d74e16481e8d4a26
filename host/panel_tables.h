// The facts about the panel's controls, in rows: what configuration, incoming and outgoing values and tests
// read.
#pragma once

#include "host/panel_outlets.h"
#include "platform/audio_toolbox.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

namespace r7 {

inline constexpr AudioUnitParameterID kParameterCount = 54;
/// Listened to and announced like the others; no control shows it.
inline constexpr AudioUnitParameterID kUnshownParameter = 53;

/// Properties of the unit that belong to this panel, in the order of subscription.
enum class UnitProperty : AudioUnitPropertyID {
    stage_one_curve = 80110,
    stage_two_curve = 80111,
    stage_one_level = 80112,
    stage_two_level = 80113,
};
inline constexpr std::array kUnitProperties{UnitProperty::stage_one_curve, UnitProperty::stage_two_curve,
                                            UnitProperty::stage_one_level, UnitProperty::stage_two_level};

/// A knob: the parameter that it shows, and how it is set up. Values are the parameter's; speeds are
/// explained at QmKnobView.
struct KnobRow {
    AudioUnitParameterID id;
    Outlet<QmKnobView> field;
    std::string_view image;
    double minimum;
    double maximum;
    double default_value;
    double start;
    double marker_inset;
    double modifier_reduction;
    double scale;
};

inline constexpr std::string_view kRedKnob = "Red Knob";
inline constexpr std::string_view kSmallKnob = "Small Rubber Knob";
inline constexpr std::string_view kBigKnob = "big-black-rubber-knob";

/// In the order of configuration. Two knobs start away from their defaults on purpose, the delay's Q and the
/// output level: what a bound panel shows comes from its unit.
// clang-format off
inline constexpr auto kKnobRows = std::to_array<KnobRow>({
    // id  field                                       image       min  max   deflt start inset fine  speed
    {  30, &PanelOutlets::delay_depth_knob,              kRedKnob,   0.0, 1.0,  0.0,  0.0,  0.5,  0.1,  0.01},
    {  31, &PanelOutlets::delay_feedback_knob,           kRedKnob,   0.0, 1.0,  0.0,  0.0,  0.5,  0.1,  0.01},
    {  32, &PanelOutlets::delay_delay_knob,              kRedKnob,   0.0, 1.0,  0.2,  0.2,  0.5,  0.1,  0.01},
    {  33, &PanelOutlets::delay_cutoff_frequency_knob,   kRedKnob,   0.0, 1.0,  0.5,  0.5,  0.5,  0.05, 0.005},
    {  34, &PanelOutlets::delay_cutoff_q_knob,           kRedKnob,   0.0, 1.0,  0.5,  0.0,  0.5,  0.2,  0.01},
    {  35, &PanelOutlets::output_level,                  kRedKnob,   0.0, 2.0,  1.0,  0.0,  0.5,  0.2,  0.05},
    {  49, &PanelOutlets::wave_shaper_one_d,             kSmallKnob, 0.0, 1.0,  0.25, 0.25, 0.5,  0.2,  0.05},
    {  51, &PanelOutlets::wave_shaper_two_d,             kSmallKnob, 0.0, 1.0,  0.25, 0.25, 0.5,  0.2,  0.05},
    {  38, &PanelOutlets::wave_shaper_one_c,             kSmallKnob, 0.0, 1.0,  0.25, 0.25, 0.5,  0.2,  0.05},
    {  41, &PanelOutlets::wave_shaper_two_c,             kSmallKnob, 0.0, 1.0,  0.25, 0.25, 0.5,  0.2,  0.05},
    {  36, &PanelOutlets::wave_shaper_one_a,             kSmallKnob, 0.0, 10.0, 1.0,  1.0,  0.5,  0.1,  0.05},
    {  37, &PanelOutlets::wave_shaper_one_b,             kSmallKnob, 0.0, 2.0,  1.0,  1.0,  0.5,  0.2,  0.05},
    {  39, &PanelOutlets::wave_shaper_two_a,             kSmallKnob, 0.0, 10.0, 1.0,  1.0,  0.5,  0.1,  0.05},
    {  40, &PanelOutlets::wave_shaper_two_b,             kSmallKnob, 0.0, 2.0,  1.0,  1.0,  0.5,  0.2,  0.05},
    {  42, &PanelOutlets::envelope_sensitivity,          kBigKnob,   0.0, 1.0,  0.5,  0.5,  0.4,  0.2,  0.005},
    {  43, &PanelOutlets::filter_resonance,              kBigKnob,   0.0, 1.0,  0.5,  0.5,  0.4,  0.2,  0.005},
    {  47, &PanelOutlets::envelope_attack_time,          kBigKnob,   0.0, 1.0,  0.01, 0.01, 0.4,  0.2,  0.05},
    {  46, &PanelOutlets::envelope_release_time,         kBigKnob,   0.0, 1.0,  0.25, 0.25, 0.4,  0.2,  0.05},
});
// clang-format on

inline constexpr std::string_view kMarkerOn = "small-blue-dot_on";
inline constexpr std::string_view kMarkerOff = "small-blue-dot_off";

/// The three pictures of a family of switches.
struct SwitchImages {
    std::string_view left;
    std::string_view flat;
    std::string_view right;
};

inline constexpr SwitchImages kPushButton{"Push Button Left", "Push Button Flat", "Push Button Right"};
inline constexpr SwitchImages kMatchedRedSwitch{"Matched Red Switch Left", "Matched Red Switch Flat",
                                                "Matched Red Switch Right"};

/// When a lamp follows the hand: the wah lamp is set before the parameter and the vowel lamps after theirs.
/// The difference is meant.
enum class LampTurn { before_parameter, after_parameter };

/// The lamp of several states that shows a switch's position.
using LampOutlet = std::variant<std::monostate, Outlet<QmR7FiveStateIndicatorLightView>,
                                Outlet<QmR7TenStateIndicatorLightView>>;

/// A switch: the parameter that it shows, and how it is set up. The menu maps are the identity: position i
/// selects i.
struct SwitchRow {
    AudioUnitParameterID id;
    Outlet<QmR7PushModeKnobView> field;
    const SwitchImages* images;
    std::int32_t positions;
    double start;
    LampOutlet lamp;
    LampTurn lamp_turn;
};

// clang-format off
inline constexpr auto kSwitchRows = std::to_array<SwitchRow>({
    // id  field                             images              pos. start lamp
    {  45, &PanelOutlets::end_vowel_mode,    &kPushButton,       10,  1.0,  &PanelOutlets::end_vowel_light,
                                                                            LampTurn::after_parameter},
    {  44, &PanelOutlets::start_vowel_mode,  &kPushButton,       10,  0.0,  &PanelOutlets::start_vowel_light,
                                                                            LampTurn::after_parameter},
    {  48, &PanelOutlets::envelope_mode,     &kPushButton,       5,   0.0,  &PanelOutlets::wah_mode_light,
                                                                            LampTurn::before_parameter},
    {  50, &PanelOutlets::wave_shaper_one_e, &kMatchedRedSwitch, 6,   0.0,  {}, {}},
    {  52, &PanelOutlets::wave_shaper_two_e, &kMatchedRedSwitch, 6,   0.0,  {}, {}},
});
// clang-format on

/// Lamp images of the two-state light.
inline constexpr std::string_view kDelayOnLamp = "tiny-green-led";
inline constexpr std::string_view kDelayOffLamp = "tiny-red-led";

/// Lamp images by state, from state 1.
inline constexpr std::array<std::string_view, 5> kWahLamps{"tiny-off-led", "tiny-blue-led", "tiny-green-led",
                                                           "tiny-amber-led", "tiny-red-led"};
inline constexpr std::array<std::string_view, 10> kVowelLamps{
    "tiny-red-led",       "tiny-green-led", "tiny-amber-led",      "tiny-blue-led",   "tiny-light-green-led",
    "tiny-dark-blue-led", "tiny-pink-led",  "tiny-light-blue-led", "tiny-purple-led", "tiny-yellow-led"};

/// Whether the rows name each parameter from 30 to 52 exactly once.
constexpr bool rows_name_each_parameter_once()
{
    std::array<int, kParameterCount> named{};
    for (const KnobRow& row : kKnobRows) ++named[row.id];
    for (const SwitchRow& row : kSwitchRows) ++named[row.id];
    for (std::size_t parameter = 30; parameter < kUnshownParameter; ++parameter)
        if (named[parameter] != 1) return false;
    return kKnobRows.size() + kSwitchRows.size() == kUnshownParameter - 30;
}
static_assert(rows_name_each_parameter_once());

} // namespace r7
