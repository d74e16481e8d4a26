// What the panel sets in code once it is loaded: images, ranges, start values, speeds and callbacks of its
// controls.
#include "host/panel_handle.h"
#include "host/panel_tables.h"
#include "host/panel_view.h"

#include <numeric>
#include <vector>

namespace r7 {

namespace {

std::vector<std::int32_t> identity_menu_map(std::int32_t positions)
{
    std::vector<std::int32_t> map(static_cast<std::size_t>(positions));
    std::iota(map.begin(), map.end(), 0);
    return map;
}

void configure(QmKnobView& knob, const KnobRow& row, const ActionTargetRef& target, const Bundle& bundle)
{
    knob.set_callback_onObject(kKnobCallback, target);
    knob.set_knob_image(bundle.image_resource(row.image));
    knob.set_marker_image_on_off(bundle.image_resource(kMarkerOn), bundle.image_resource(kMarkerOff));
    knob.set_values_minimum_maximum_default_value(row.minimum, row.maximum, row.default_value);
    knob.set_percent_inset_for_marker(row.marker_inset);
    knob.set_current_value(row.start);
    knob.set_modifier_reduction(row.modifier_reduction);
    knob.set_scale_factor(row.scale);
}

void configure(QmR7PushModeKnobView& push_switch, const SwitchRow& row, const ActionTargetRef& target,
               const Bundle& bundle)
{
    // The switches read their own pictures, from the paths.
    push_switch.set_image_urls_left_flat_right(bundle.path_for_image_resource(row.images->left),
                                               bundle.path_for_image_resource(row.images->flat),
                                               bundle.path_for_image_resource(row.images->right));
    push_switch.set_callback_onObject(kKnobCallback, target);
    push_switch.set_menu_map(identity_menu_map(row.positions));
    push_switch.set_current_value(row.start);
}

void configure(QmR7TenStateIndicatorLightView& light, std::int32_t state, const Bundle& bundle)
{
    const auto lamp = [&](std::size_t place) { return bundle.image_resource(kVowelLamps[place]); };
    light.set_indicator_image_one_two_three_four_five_six_seven_eight_nine_ten(
        lamp(0), lamp(1), lamp(2), lamp(3), lamp(4), lamp(5), lamp(6), lamp(7), lamp(8), lamp(9));
    light.set_indicator_state(state);
}

void configure(QmR7FiveStateIndicatorLightView& light, std::int32_t state, const Bundle& bundle)
{
    const auto lamp = [&](std::size_t place) { return bundle.image_resource(kWahLamps[place]); };
    light.set_indicator_image_one_two_three_four_five(lamp(0), lamp(1), lamp(2), lamp(3), lamp(4));
    light.set_indicator_state(state);
}

// What an editor and a display of a tone control have in common.
void configure(ToneControlView& view, const ColorRef& curve, const ColorRef& fill)
{
    view.setCurveColor_fill(curve, fill);
    view.set_sample_rate(kToneSampleRate);
    view.set_amplitude_maximum_gain_in_db(kToneMaximumGain);
    view.set_minimum_frequency(kToneMinimumFrequency);
    view.set_maximum_frequency(kToneMaximumFrequency);
}

} // namespace

void QmR7View::awakeFromNib()
{
    const Bundle& bundle = *bundle_;
    zoomed_wave_shaper_state = 0;
    zoomed_tone_control_state = 0;
    stage_one_waveshaper_data.needs_update = 0;
    stage_two_waveshaper_data.needs_update = 0;

    for (const SwitchRow& row : kSwitchRows) configure(*(this->*row.field), row, handle_, bundle);
    for (const KnobRow& row : kKnobRows) configure(*(this->*row.field), row, handle_, bundle);

    // On, although the depth is 0: only a bound unit says what really is.
    delay_on_indicator_light->set_indicator_image_on_off(bundle.image_resource(kDelayOnLamp),
                                                         bundle.image_resource(kDelayOffLamp));
    delay_on_indicator_light->set_indicator_state(true);
    configure(*wah_mode_light, 1, bundle);
    // The vowels start one position apart, like their switches.
    configure(*start_vowel_light, 1, bundle);
    configure(*end_vowel_light, 2, bundle);

    const ColorRef curve = Color::pattern(bundle.image_resource("blue-bar"));
    const ColorRef grid = Color::pattern(bundle.image_resource("LCD-grid"));
    zoomed_wave_shaper_display->set_color_curve(curve);
    zoomed_wave_shaper_display->set_color_background(Color::device_white(0.0, 0.6));
    zoomed_wave_shaper_display->set_callback_onObject(kKnobCallback, handle_);
    zoomed_wave_shaper_display->set_toggle_callback_onObject(kToggleCallback, handle_);
    for (const StageRow& row : kStageRows)
        (this->*row.display)->set_toggle_callback_onObject(kToggleCallback, handle_);
    for (const ToneRow& row : kToneRows) {
        configure(*(this->*row.editor), curve, grid);
        configure(*(this->*row.display), curve, grid);
        (this->*row.editor)->set_callback_onObject(kKnobCallback, handle_);
        (this->*row.editor)->set_toggle_callback_onObject(kToggleCallback, handle_);
        (this->*row.display)->set_toggle_callback_onObject(kToggleCallback, handle_);
    }

    set_needs_display();
}

} // namespace r7
