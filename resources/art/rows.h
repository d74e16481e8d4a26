// What stands on the panel, row by row: which picture shows it, what is printed by it, where it starts.
#pragma once

#include "platform/geometry.h"
#include "resources/art/signs.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace r7::art {

enum class KnobKind { red, big_rubber, small_rubber };

/// The measures of a family of knobs, in points; the marker travels at `marker_inset` of half the picture.
struct KnobShape {
    std::string_view image;
    double picture; ///< width and height of the picture
    double radius;  ///< of the body
    double marker_inset;
    double scale_radius; ///< where the ticks on the plate begin
};

inline constexpr KnobShape kKnobShapes[] = {
    // image                    picture radius inset scale
    {"Red Knob", 64.0, 26.0, 0.5, 31.0},
    {"big-black-rubber-knob", 88.0, 37.0, 0.4, 41.5},
    {"Small Rubber Knob", 56.0, 22.0, 0.5, 27.0},
};

constexpr const KnobShape& shape_of(KnobKind kind)
{
    return kKnobShapes[static_cast<int>(kind)];
}

struct KnobRow {
    std::string_view outlet;
    KnobKind kind;
    std::string_view label;
    double start; ///< 0 (fully left) to 1
};

inline constexpr KnobRow kKnobs[] = {
    {"envelope_sensitivity", KnobKind::big_rubber, "Sensitivity", 0.5},
    {"envelope_attack_time", KnobKind::big_rubber, "Attack", 0.01},
    {"envelope_release_time", KnobKind::big_rubber, "Release", 0.25},
    {"filter_resonance", KnobKind::big_rubber, "Resonance", 0.5},
    {"delay_depth_knob", KnobKind::red, "Depth", 0.0},
    {"delay_feedback_knob", KnobKind::red, "Feedback", 0.0},
    {"delay_delay_knob", KnobKind::red, "Time", 0.2},
    {"delay_cutoff_frequency_knob", KnobKind::red, "Cutoff", 0.5},
    {"delay_cutoff_q_knob", KnobKind::red, "Q", 0.0},
    {"output_level", KnobKind::red, "Level", 0.0},
    {"wave_shaper_one_a", KnobKind::small_rubber, "Pre-gain", 0.1},
    {"wave_shaper_one_b", KnobKind::small_rubber, "Post-gain", 0.5},
    {"wave_shaper_one_c", KnobKind::small_rubber, "C", 0.25},
    {"wave_shaper_one_d", KnobKind::small_rubber, "D", 0.25},
    {"wave_shaper_two_a", KnobKind::small_rubber, "Pre-gain", 0.1},
    {"wave_shaper_two_b", KnobKind::small_rubber, "Post-gain", 0.5},
    {"wave_shaper_two_c", KnobKind::small_rubber, "C", 0.25},
    {"wave_shaper_two_d", KnobKind::small_rubber, "D", 0.25},
};

enum class SwitchKind { push_button, red_switch };

struct SwitchRow {
    std::string_view outlet;
    SwitchKind kind;
};

inline constexpr SwitchRow kSwitches[] = {
    {"start_vowel_mode", SwitchKind::push_button}, {"end_vowel_mode", SwitchKind::push_button},
    {"envelope_mode", SwitchKind::push_button},    {"wave_shaper_one_e", SwitchKind::red_switch},
    {"wave_shaper_two_e", SwitchKind::red_switch},
};

/// What the waveshapers' displays call the positions of their mode switches, in order.
inline constexpr std::string_view kModeLetters = "-  A  B  C  D  E";

enum class Side { below, left, right };

/// Print beside a control that is no knob, `distance` points from its frame to the baseline or the nearest
/// letter.
struct LabelRow {
    std::string_view outlet;
    std::string_view text;
    Side side;
    double distance;
};

inline constexpr LabelRow kLabels[] = {
    {"start_vowel_mode", "Start vowel", Side::below, 20.0}, // on the line of the knobs' labels
    {"end_vowel_mode", "End vowel", Side::below, 20.0},     {"envelope_mode", "Envelope", Side::below, 20.0},
    {"delay_on_indicator_light", "On", Side::below, 36.0},  {"wave_shaper_one_e", "Mode", Side::left, 12.0},
    {"wave_shaper_one_e", kModeLetters, Side::right, 12.0}, {"wave_shaper_two_e", "Mode", Side::left, 12.0},
    {"wave_shaper_two_e", kModeLetters, Side::right, 12.0},
};

/// A lamp's picture: its colour when lit, and the sign that is engraved in its lens.
struct LampRow {
    std::string_view image;
    std::uint32_t color;
    Sign sign;
};

inline constexpr LampRow kLamps[] = {
    {"tiny-off-led", 0x30363D, Sign::none},          {"tiny-red-led", 0xFF3B30, Sign::ring},
    {"tiny-green-led", 0x28DE64, Sign::bar},         {"tiny-amber-led", 0xFF920C, Sign::triangle},
    {"tiny-blue-led", 0x2F86FF, Sign::twin_bars},    {"tiny-light-green-led", 0xC4FF80, Sign::plus},
    {"tiny-dark-blue-led", 0x2C3CFF, Sign::lozenge}, {"tiny-pink-led", 0xFF8EC4, Sign::dash},
    {"tiny-light-blue-led", 0x8FE0FF, Sign::cross},  {"tiny-purple-led", 0xA64DFF, Sign::half_disc},
    {"tiny-yellow-led", 0xFFE94A, Sign::twin_posts},
};

/// A light of the panel, with its lamps (rows of kLamps) in the order of its states.
struct LightRow {
    std::string_view outlet;
    std::array<std::int8_t, 10> lamps; ///< -1 from the last one on
    int start;                         ///< an index of `lamps`
};

inline constexpr LightRow kLights[] = {
    {"start_vowel_light", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 0},
    {"end_vowel_light", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 1},
    {"wah_mode_light", {0, 4, 2, 3, 1, -1, -1, -1, -1, -1}, 0},
    {"delay_on_indicator_light", {1, 2, -1, -1, -1, -1, -1, -1, -1, -1}, 1},
};

/// The signs of a light's lamps, in the order of its states and each in its lamp's colour, printed `distance`
/// points above the lights `first` to `last`, which share them.
struct KeyRow {
    std::string_view first;
    std::string_view last;
    double distance;
};

inline constexpr KeyRow kKeys[] = {
    {"start_vowel_light", "end_vowel_light", 20.0},
    {"wah_mode_light", "wah_mode_light", 20.0},
};

/// A group of controls in its recess, on the grid; the recess reaches kGroupMargin farther on every side.
struct GroupRow {
    std::string_view title;
    Rect room;
};

inline constexpr double kGroupMargin = 4.0;

inline constexpr GroupRow kGroups[] = {
    {"VOWEL FILTER", {16.0, 376.0, 624.0, 176.0}},   {"DELAY", {16.0, 208.0, 480.0, 152.0}},
    {"OUTPUT", {512.0, 208.0, 128.0, 152.0}},        {"WAVESHAPER ONE", {16.0, 16.0, 304.0, 176.0}},
    {"WAVESHAPER TWO", {336.0, 16.0, 304.0, 176.0}},
};

/// Grooves: between two parts of the vowel filter, and along the header.
inline constexpr Rect kGrooves[] = {{411.0, 392.0, 2.0, 136.0}, {76.0, 577.0, 772.0, 2.0}};

enum class DisplayKind { tone_control, waveshaper };

struct DisplayRow {
    std::string_view outlet;
    DisplayKind kind;
    std::string_view title;
};

inline constexpr DisplayRow kDisplays[] = {
    {"pre_tone_control_display", DisplayKind::tone_control, "PRE TONE"},
    {"wave_shaper_one_display", DisplayKind::waveshaper, "WAVESHAPER ONE"},
    {"wave_shaper_two_display", DisplayKind::waveshaper, "WAVESHAPER TWO"},
    {"post_tone_control_display", DisplayKind::tone_control, "POST TONE"},
};

} // namespace r7::art
