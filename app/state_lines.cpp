// What `show` prints: a table of keys for each class, and for each key how it is read.
#include "app/state_lines.h"

#include "app/number_text.h"
#include "app/open_overlay.h"
#include "host/panel_view.h"
#include "unit/embedded_unit.h"

#include <algorithm>
#include <concepts>
#include <functional>
#include <type_traits>

namespace r7 {

struct SceneRow {
    std::string_view name;
    void (*append)(std::string& line, const Scene& scene);
};

namespace {

template <typename Number>
std::string value_text(Number number)
{
    return text_of(number);
}

std::string value_text(const SegmentPair& pair)
{
    return text_of(pair[0]) + ',' + text_of(pair[1]);
}

template <typename Object>
struct KeyRow {
    std::string_view key;
    std::string (*read)(const Object& object);
};

/// Reads a member of an object, or asks it a question.
template <auto Member, typename Object>
std::string read(const Object& object)
{
    return value_text(std::invoke(Member, object));
}

using Knob = QmKnobView;
constexpr KeyRow<Knob> kKnobKeys[] = {
    {"value", read<&Knob::current_value>},   {"minimum", read<&Knob::minimum_value>},
    {"maximum", read<&Knob::maximum_value>}, {"default", read<&Knob::default_value>},
    {"pressed", read<&Knob::mouse_is_down>},
};

using Switch = QmR7PushModeKnobView;
constexpr KeyRow<Switch> kSwitchKeys[] = {
    {"value", read<&Switch::current_value>},
    {"minimum", read<&Switch::minimum_value>},
    {"maximum", read<&Switch::maximum_value>},
    {"default", read<&Switch::default_value>},
    {"selection", read<&Switch::current_menu_selection>},
    {"state", read<&Switch::state>},
};

using TwoStateLight = QmIndicatorLightView;
constexpr KeyRow<TwoStateLight> kTwoStateLightKeys[] = {{"state", read<&TwoStateLight::indicator_state>}};

using MultiStateLight = MultiStateLightView;
constexpr KeyRow<MultiStateLight> kMultiStateLightKeys[] = {
    {"state", read<&MultiStateLight::indicator_state>}};

/// The values of both views of a tone control, each under the name of its field.
using Tone = ToneControlView;
constexpr KeyRow<Tone> kToneKeys[] = {
    {"mFreqLow", read<&Tone::freqLow>},
    {"mLevelLow", read<&Tone::levelLow>},
    {"mSlopeLow", read<&Tone::slopeLow>},
    {"mFreqLowMid", read<&Tone::freqLowMid>},
    {"mLevelLowMid", read<&Tone::levelLowMid>},
    {"mQLowMid", read<&Tone::qLowMid>},
    {"mFreqMid", read<&Tone::freqMid>},
    {"mLevelMid", read<&Tone::levelMid>},
    {"mQMid", read<&Tone::qMid>},
    {"mFreqHighMid", read<&Tone::freqHighMid>},
    {"mLevelHighMid", read<&Tone::levelHighMid>},
    {"mQHighMid", read<&Tone::qHighMid>},
    {"mFreqHigh", read<&Tone::freqHigh>},
    {"mLevelHigh", read<&Tone::levelHigh>},
    {"mSlopeHigh", read<&Tone::slopeHigh>},
};

using ToneEditor = Qm_ParametricEQView;
constexpr KeyRow<ToneEditor> kToneEditorKeys[] = {
    {"pressed", read<&ToneEditor::mouse_is_down>},
    {"moving",
     [](const ToneEditor& editor) {
         std::string digits;
         for (std::size_t band = 0; band < kToneBands; ++band)
             digits += editor.is_moving(static_cast<ToneBand>(band)) ? '1' : '0';
         return digits;
     }},
    {"minimum_frequency_hz", [](const ToneEditor& e) { return text_of(e.mapping().minimum_frequency_hz()); }},
    {"maximum_frequency_hz", [](const ToneEditor& e) { return text_of(e.mapping().maximum_frequency_hz()); }},
    {"maximum_gain_db", [](const ToneEditor& e) { return text_of(e.mapping().maximum_gain_db()); }},
    {"hidden", read<&ToneEditor::is_hidden>},
};

using CurveEditor = QM_BezierWaveShaperView;
template <CurvePoint Which>
std::string read_point(const CurveEditor& editor)
{
    const AmplitudePoint& point = editor.curve().point(Which);
    return text_of(point.x) + ',' + text_of(point.y);
}
template <float AmplitudeLimits::*Limit>
std::string read_limit(const CurveEditor& editor)
{
    return text_of(editor.curve().limits().*Limit);
}
constexpr KeyRow<CurveEditor> kCurveEditorKeys[] = {
    {"zero_point", read_point<CurvePoint::zero_point>},
    {"positive_mid_c1_point", read_point<CurvePoint::positive_mid_c1_point>},
    {"positive_mid_c2_point", read_point<CurvePoint::positive_mid_c2_point>},
    {"positive_mid_point", read_point<CurvePoint::positive_mid_point>},
    {"positive_end_c1_point", read_point<CurvePoint::positive_end_c1_point>},
    {"positive_end_c2_point", read_point<CurvePoint::positive_end_c2_point>},
    {"positive_end_point", read_point<CurvePoint::positive_end_point>},
    {"moving",
     [](const CurveEditor& editor) {
         std::string digits;
         for (std::size_t point = 0; point < kCurvePoints; ++point)
             digits += editor.is_moving(static_cast<CurvePoint>(point)) ? '1' : '0';
         return digits;
     }},
    {"pressed", read<&CurveEditor::mouse_is_down>},
    {"in_amplitude_min", read_limit<&AmplitudeLimits::in_amplitude_min>},
    {"in_amplitude_max", read_limit<&AmplitudeLimits::in_amplitude_max>},
    {"out_amplitude_min", read_limit<&AmplitudeLimits::out_amplitude_min>},
    {"out_amplitude_max", read_limit<&AmplitudeLimits::out_amplitude_max>},
    {"is_db_scale", read<&CurveEditor::shows_db_scale>},
    {"pregain", read<&CurveEditor::sine_pregain>},
    {"postgain", read<&CurveEditor::sine_postgain>},
};

using CurveDisplay = QM_BezierWaveShaperResponseView;
constexpr KeyRow<CurveDisplay> kCurveDisplayKeys[] = {
    {"have_data_to_draw", read<&CurveDisplay::has_data_to_draw>},
    {"pregain", read<&CurveDisplay::sine_pregain>},
    {"postgain", read<&CurveDisplay::sine_postgain>},
    {"input_level", read<&CurveDisplay::shown_input_level>},
    {"mode_string", [](const CurveDisplay& display) { return display.shown_mode(); }},
};

constexpr KeyRow<QmR7View> kPanelKeys[] = {
    {"bound", [](const QmR7View& panel) { return text_of(panel.audio_unit() != nullptr); }},
    {"zoomed_tone_control_state", read<&QmR7View::tone_control_state>},
    {"zoomed_wave_shaper_state", read<&QmR7View::wave_shaper_state>},
    {"overlay",
     [](const QmR7View& panel) {
         const auto overlay = open_overlay(panel);
         return std::string(overlay ? overlay->editor : "none");
     }},
};

using Record = _QM_R7_Bezier_Sequence;
constexpr KeyRow<Record> kConstantKeys[] = {
    {"compressor_slope_one", read<&Record::compressor_slope_one>},
    {"compressor_slope_two", read<&Record::compressor_slope_two>},
    {"compressor_3P", read<&Record::compressor_3P>},
    {"compressor_2Q", read<&Record::compressor_2Q>},
    {"compressor_R", read<&Record::compressor_R>},
    {"compressor_x1", read<&Record::compressor_x1>},
    {"compressor_x2", read<&Record::compressor_x2>},
    {"compressor_x3", read<&Record::compressor_x3>},
    {"segment_file_version", read<&Record::segment_file_version>},
};

void append(std::string& line, std::string_view key, const std::string& value)
{
    line.append(" ").append(key).append("=").append(value);
}

template <typename Object>
void append_keys(std::string& line, std::span<const KeyRow<Object>> rows, const Object& object)
{
    for (const KeyRow<Object>& row : rows) append(line, row.key, row.read(object));
}

// The keys of each class of view.
void append_state(std::string& line, const Knob& knob)
{
    append_keys<Knob>(line, kKnobKeys, knob);
}
void append_state(std::string& line, const Switch& push_switch)
{
    append_keys<Switch>(line, kSwitchKeys, push_switch);
}
void append_state(std::string& line, const TwoStateLight& light)
{
    append_keys<TwoStateLight>(line, kTwoStateLightKeys, light);
}
void append_state(std::string& line, const MultiStateLight& light)
{
    append_keys<MultiStateLight>(line, kMultiStateLightKeys, light);
}

/// The coefficients of a record or of a view's curve, which have the same names.
template <typename Fields>
void append_coefficients(std::string& line, const Fields& fields)
{
    append(line, "pos_M", text_of(fields.pos_M));
    append(line, "pos_Intercept", text_of(fields.pos_Intercept));
    for (const auto& [name, pair] : kSegmentPairFields<Fields>) append(line, name, value_text(fields.*pair));
}

void append_state(std::string& line, const Tone& display)
{
    append_keys<Tone>(line, kToneKeys, display);
}
void append_state(std::string& line, const ToneEditor& editor)
{
    append_keys<Tone>(line, kToneKeys, editor);
    append_keys<ToneEditor>(line, kToneEditorKeys, editor);
}
void append_state(std::string& line, const CurveEditor& editor)
{
    append_keys<CurveEditor>(line, kCurveEditorKeys, editor);
    append_coefficients(line, editor.curve().coefficients());
    append(line, "hidden", text_of(editor.is_hidden()));
}
void append_state(std::string& line, const CurveDisplay& display)
{
    append_keys<CurveDisplay>(line, kCurveDisplayKeys, display);
    append_coefficients(line, display.coefficients());
}

void append_record(std::string& line, const Record& record)
{
    append(line, "needs_update", text_of(record.needs_update));
    append_coefficients(line, record);
    append_keys<Record>(line, kConstantKeys, record);
}

constexpr SceneRow kScene[] = {
    {"panel",
     [](std::string& line, const Scene& scene) { append_keys<QmR7View>(line, kPanelKeys, scene.panel); }},
    {"unit",
     [](std::string& line, const Scene& scene) {
         for (const ParameterRow& row : kParameters)
             append(line, text_of(row.id), text_of(scene.unit.parameter(row.id)));
     }},
    {"record1",
     [](std::string& line, const Scene& scene) { append_record(line, scene.panel.stage_one_data()); }},
    {"record2",
     [](std::string& line, const Scene& scene) { append_record(line, scene.panel.stage_two_data()); }},
    {"unit1",
     [](std::string& line, const Scene& scene) { append_record(line, scene.unit.record(Stage::one)); }},
    {"unit2",
     [](std::string& line, const Scene& scene) { append_record(line, scene.unit.record(Stage::two)); }},
};

} // namespace

std::optional<Subject> subject_named(std::string_view name)
{
    if (const OutletRow* row = outlet_row_named(name)) return row;
    const auto* row = std::ranges::find(kScene, name, &SceneRow::name);
    return row == std::end(kScene) ? std::nullopt : std::optional<Subject>(row);
}

std::string state_line(const Subject& subject, const Scene& scene)
{
    std::string line(std::visit([](const auto* row) { return row->name; }, subject));
    if (const auto* row = std::get_if<const SceneRow*>(&subject)) {
        (*row)->append(line, scene);
    } else {
        const PanelOutlets& outlets = scene.panel;
        std::visit([&](auto field) { append_state(line, *(outlets.*field)); },
                   std::get<const OutletRow*>(subject)->field);
    }
    return line;
}

namespace {

template <typename V>
concept HasGain = std::derived_from<V, ToneControlView>;
template <typename V>
concept HasAmplitude = requires(const V& view)
{
    view.response_for_in_amplitude(0.0F);
};

/// The class of view that an outlet takes.
template <typename V>
std::type_identity<V> class_of(Outlet<V>);

} // namespace

bool has_response(const OutletRow& row)
{
    return std::visit(
        [](auto field) {
            using V = typename decltype(class_of(field))::type;
            return HasGain<V> || HasAmplitude<V>;
        },
        row.field);
}

std::string response_line(const OutletRow& row, double x, const PanelOutlets& outlets)
{
    const float value = std::visit(
        [&](auto field) {
            using V = typename decltype(class_of(field))::type;
            V& view = *(outlets.*field);
            if constexpr (HasGain<V>)
                return view.responseForFrequency(static_cast<float>(x));
            else if constexpr (HasAmplitude<V>)
                return view.response_for_in_amplitude(static_cast<float>(x));
            else
                return 0.0F;
        },
        row.field);
    return "response " + std::string(row.name) + ' ' + text_of(x) + ' ' + text_of(value);
}

} // namespace r7
