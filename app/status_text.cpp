// What the status line says of a parameter or a curve.
#include "app/status_text.h"

#include "app/quantity_text.h"
#include "host/parameter_values.h"
#include "host/stage_rows.h"
#include "host/tone_rows.h"

#include <algorithm>
#include <cctype>
#include <span>
#include <utility>

namespace r7 {

namespace {

/// A band's three parameters stand together, in the order frequency, width, level.
struct BandRow {
    std::string_view name;
    std::string_view width;
};
constexpr std::array<BandRow, 5> kBandRows{
    {{"low", "slope"}, {"low-mid", "Q"}, {"mid", "Q"}, {"high-mid", "Q"}, {"high", "slope"}}};
constexpr std::size_t kBandValues = 3;
static_assert(kBandRows.size() * kBandValues == kToneValues && belongs_to_band(2 * kToneValues - 1) &&
              !belongs_to_band(2 * kToneValues));

constexpr std::array<std::string_view, 2> kToneNames{"Pre", "Post"}; // in the order of kToneRows

/// The lamps of a switch, in the order of its positions.
struct LampsRow {
    LampOutlet lamp;
    std::span<const std::string_view> images;
};
const LampsRow kLampsRows[] = {
    {&PanelOutlets::start_vowel_light, kVowelLamps},
    {&PanelOutlets::end_vowel_light, kVowelLamps},
    {&PanelOutlets::wah_mode_light, kWahLamps},
};

// "tiny-light-green-led" is the light green lamp.
std::string color_of(std::string_view lamp_image)
{
    constexpr std::string_view before = "tiny-", behind = "-led";
    lamp_image.remove_prefix(before.size());
    lamp_image.remove_suffix(behind.size());
    std::string color(lamp_image);
    std::ranges::replace(color, '-', ' ');
    return color;
}

// What the panel shows of a switch's value, or nothing where it shows nothing.
std::optional<std::string> position_of(const SwitchRow& row, float value)
{
    if (stage_of_switch(row.field)) {
        const auto position = mode_position_for_value(value);
        if (!position) return std::nullopt;
        return kModeLetters[static_cast<std::size_t>(*position)];
    }
    const auto lamps = std::ranges::find(kLampsRows, row.lamp, &LampsRow::lamp);
    const std::int32_t lamp = lamp_for_value(value);
    if (lamp < 1 || lamp > row.positions) return std::nullopt;
    return std::to_string(lamp) + " of " + std::to_string(row.positions) + ", " +
           color_of(lamps->images[static_cast<std::size_t>(lamp - 1)]);
}

StatusText status_of_band(AudioUnitParameterID id, const ParameterValues& values)
{
    const BandRow& band = kBandRows[id % kToneValues / kBandValues];
    const float* const of_band = &values[id - id % kBandValues];
    return {std::string(kToneNames[id / kToneValues]) + ' ' + std::string(band.name),
            frequency_text(of_band[0]) + ", " + level_text(of_band[2]) + ", " + std::string(band.width) +
                ' ' + plain_text(of_band[1])};
}

} // namespace

StatusText status_of_parameter(AudioUnitParameterID id, const ParameterValues& values)
{
    if (belongs_to_band(id)) return status_of_band(id, values);
    StatusText status{std::string(kParameters[id].name), plain_text(values[id])};
    status.name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(status.name[0])));
    const auto push = std::ranges::find(kSwitchRows, id, &SwitchRow::id);
    if (push != kSwitchRows.end())
        if (auto position = position_of(*push, values[id])) status.value = std::move(*position);
    return status;
}

StatusText status_of_curve(Stage stage, const _QM_R7_Bezier_Sequence& record)
{
    BezierCurve curve;
    curve.set_from_sequence_data(record);
    const auto output = [&](float amplitude) {
        return plain_text(curve.response_for_in_amplitude(amplitude));
    };
    const AmplitudePoint& end = curve.point(CurvePoint::positive_end_point);
    return {stage == Stage::one ? "Waveshaper one curve" : "Waveshaper two curve",
            "half scale gives " + output(0.5F) + ", full scale " + output(1.0F) + "; ends at " +
                plain_text(end.x) + ", " + plain_text(end.y)};
}

} // namespace r7
