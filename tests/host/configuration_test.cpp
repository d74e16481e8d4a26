// Whether each control does what its row says, once the panel is loaded: asked of its behaviour and of what
// it paints, not of what was passed to it.
#include "tests/support/canvas.h"
#include "tests/support/panel_rig.h"
#include "tests/support/recording_graphics.h"

#include "controls/centered_image.h"
#include "host/panel_tables.h"
#include "host/tone_rows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace r7 {
namespace {

struct Configuration : testing::Test, PanelRig {
    // Configured, and nothing announced to it yet.
    std::shared_ptr<QmR7View> fresh = factory.uiViewForAudioUnit_withSize(nullptr, {});

    ImageRef image(std::string_view name) const { return bundle->image_resource(name); }

    // Whether the view paints what `paint` paints, to the last pixel, and that is something.
    static void expect_picture(View& view, const Canvas::Painter& paint)
    {
        const Rect bounds = view.bounds();
        view.update_geometry();
        const Canvas seen(bounds.width, bounds.height, [&](Graphics& g) { view.drawRect(g, bounds); });
        const Canvas wanted(bounds.width, bounds.height, paint);
        int different = 0, lit = 0;
        for (int y = 0; y < wanted.height(); ++y)
            for (int x = 0; x < wanted.width(); ++x) {
                different += seen.at(x, y) != wanted.at(x, y);
                lit += wanted.alpha(x, y) != 0;
            }
        EXPECT_EQ(different, 0);
        EXPECT_GT(lit, 20);
    }
    void expect_lamp(View& light, std::string_view lamp)
    {
        expect_picture(light, [&](Graphics& g) { draw_centered(g, image(lamp).get(), light.bounds()); });
    }
    void expect_switch(View& view, std::string_view name)
    {
        expect_picture(view, [&](Graphics& g) {
            g.draw_image_in_rect(image(name).get(), view.bounds(), Compositing::source_over, 1.0);
        });
    }
    // A knob at an end of its range, whose marker lies at `angle` (radians, counterclockwise from +x).
    void expect_knob(QmKnobView& knob, const KnobRow& row, std::string_view marker_name, double angle)
    {
        expect_picture(knob, [&](Graphics& g) {
            const ImageRef body = image(row.image), marker = image(marker_name);
            const Point corner = origin_to_center(body->size(), knob.bounds());
            const double radius = body->size().width * 0.5, reach = radius * (1.0 - row.marker_inset);
            draw_centered(g, body.get(), knob.bounds());
            g.draw_image(marker.get(),
                         {corner.x + radius + reach * std::cos(angle) - marker->size().width * 0.5,
                          corner.y + radius + reach * std::sin(angle) - marker->size().height * 0.5},
                         Compositing::source_over, 1.0);
        });
    }
};

TEST_F(Configuration, KnobsHaveTheirRangesSpeedsAndPictures)
{
    for (const KnobRow& row : kKnobRows) {
        SCOPED_TRACE(row.id);
        QmKnobView& knob = *(fresh.get()->*row.field);
        EXPECT_EQ(knob.current_value(), row.start);
        drag(knob, -1e6, 0);
        EXPECT_EQ(knob.current_value(), row.minimum);
        expect_knob(knob, row, kMarkerOff, 1.25 * std::numbers::pi);
        knob.mouseDown({.click_count = 1});
        expect_knob(knob, row, kMarkerOn, 1.25 * std::numbers::pi);
        knob.mouseUp({});

        const auto step = static_cast<float>(3 * row.scale);
        const auto fine_step = static_cast<float>(step * row.modifier_reduction);
        drag(knob, 3, 0);
        EXPECT_EQ(knob.current_value(), row.minimum + step);
        drag(knob, 1, -2, Modifiers::control);
        EXPECT_EQ(knob.current_value(), row.minimum + step + fine_step);
        drag(knob, 0, -1e6);
        EXPECT_EQ(knob.current_value(), row.maximum);
        expect_knob(knob, row, kMarkerOff, -0.25 * std::numbers::pi);
        press(knob, 0.5, 2);
        EXPECT_EQ(knob.current_value(), row.default_value);
    }
}

TEST_F(Configuration, KnobsSetTheirParametersAndShowTheirAutomation)
{
    for (const KnobRow& row : kKnobRows) {
        SCOPED_TRACE(row.id);
        QmKnobView& knob = *(panel.get()->*row.field);
        unit->automate(row.id, static_cast<float>(row.minimum) - 7.0f);
        deliver();
        EXPECT_EQ(knob.current_value(), row.minimum);
        EXPECT_EQ(observer.sets, 0) << "an event was answered with a set";
        observer.deliveries = 0;
        observer.on_set = [&](AudioUnitParameterID id) { EXPECT_EQ(id, row.id); };
        drag(knob, 3, -2);
        EXPECT_EQ(std::exchange(observer.sets, 0), 1);
        EXPECT_EQ(unit->parameter(row.id), static_cast<float>(knob.current_value()));
        EXPECT_GT(knob.current_value(), row.minimum);
        deliver();
        EXPECT_EQ(observer.deliveries, 0) << "its own change came back";
    }
}

TEST_F(Configuration, SwitchesStepThroughTheirPositionsAndLightTheirLamps)
{
    for (const SwitchRow& row : kSwitchRows) {
        SCOPED_TRACE(row.id);
        EXPECT_EQ((fresh.get()->*row.field)->current_menu_selection(), row.start);
        QmR7PushModeKnobView& push = *(panel.get()->*row.field);
        expect_switch(push, row.images->flat);
        for (std::int32_t position = 1; position <= row.positions; ++position) {
            press(push, 0.75);
            expect_switch(push, row.images->right);
            push.mouseUp({});
            const std::int32_t selection = position % row.positions; // round the end
            EXPECT_EQ(push.current_menu_selection(), selection);
            EXPECT_EQ(unit->parameter(row.id), static_cast<float>(selection));
            if (const auto* five = std::get_if<1>(&row.lamp)) {
                EXPECT_EQ((panel.get()->**five)->indicator_state(), selection + 1);
            } else if (const auto* ten = std::get_if<2>(&row.lamp)) {
                EXPECT_EQ((panel.get()->**ten)->indicator_state(), selection + 1);
            }
        }
        press(push, 0.25);
        expect_switch(push, row.images->left);
        push.mouseUp({});
        EXPECT_EQ(push.current_menu_selection(), row.positions - 1);
        push.rightMouseDown({.click_count = 2});
        EXPECT_EQ(push.current_menu_selection(), 0);
    }
}

TEST_F(Configuration, LampsStartAsMeantAndShowTheirPictures)
{
    // On, although the depth is 0, until a unit says what is.
    expect_lamp(*fresh->delay_on_indicator_light, kDelayOnLamp);
    EXPECT_EQ(fresh->delay_depth_knob->current_value(), 0.0);
    expect_lamp(*fresh->wah_mode_light, kWahLamps[0]);
    expect_lamp(*fresh->start_vowel_light, kVowelLamps[0]);
    expect_lamp(*fresh->end_vowel_light, kVowelLamps[1]);

    expect_lamp(*panel->delay_on_indicator_light, kDelayOffLamp);
    const auto expect_lamps = [this](auto& light, std::span<const std::string_view> lamps) {
        std::int32_t state = 0;
        for (const std::string_view lamp : lamps) {
            light.set_indicator_state(++state);
            expect_lamp(light, lamp);
        }
    };
    expect_lamps(*panel->wah_mode_light, kWahLamps);
    expect_lamps(*panel->start_vowel_light, kVowelLamps);
    expect_lamps(*panel->end_vowel_light, kVowelLamps);
}

TEST_F(Configuration, EditorsAndDisplaysHaveTheirColoursAndRanges)
{
    const auto call_of = [](View& view, std::string_view kind,
                            const Image* pattern) -> std::optional<DrawCall> {
        RecordingGraphics graphics;
        view.update_geometry();
        view.drawRect(graphics, view.bounds());
        for (const DrawCall& call : graphics.calls)
            if (call.words.starts_with(kind) && call.pattern == pattern) return call;
        return std::nullopt;
    };
    const ImageRef blue = image("blue-bar"), grid = image("LCD-grid");
    for (const ToneRow& row : kToneRows) {
        Qm_ParametricEQView& editor = *(panel.get()->*row.editor);
        View& display = *(panel.get()->*row.display);
        unit->automate(row.base, kToneMinimumFrequency);
        unit->automate(row.base + 2, -kToneMaximumGain);
        unit->automate(row.base + 12, kToneMaximumFrequency);
        deliver();
        // The editor's colours only choose its scheme; the display fills with its own.
        const auto curve = call_of(editor, "fill 0.2,0.2,1,0.4", nullptr);
        const auto area = call_of(display, "fill", grid.get());
        ASSERT_TRUE(curve && area);

        // The editor's graph is 580 x 330 points from (30, 30), and what it shows is pinned by sessions; the
        // display shows the same response at the same places of its own frame.
        const std::span<const Path::Element> large = curve->path.elements(), small = area->path.elements();
        const Size size = display.frame().size();
        for (std::size_t i = 1; i <= 100; ++i) {
            EXPECT_NEAR((large[i].end().x - 30.0) / 580.0, small[i].end().x / size.width, 1e-4);
            EXPECT_NEAR((large[i].end().y - 30.0) / 330.0, small[i].end().y / size.height, 1e-4);
        }
    }
    EXPECT_TRUE(call_of(*panel->zoomed_wave_shaper_display, "stroke", blue.get()));
    EXPECT_TRUE(call_of(*panel->zoomed_wave_shaper_display, "fill_rect 0,0,0,0.6 in ", nullptr));
}

} // namespace
} // namespace r7
