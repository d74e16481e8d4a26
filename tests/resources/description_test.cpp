// The panel's interface description: whole, within the panel, nothing over anything else.
#include "tests/resources/described_panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace r7::art {
namespace {

bool is_editor(const DescribedView& view)
{
    return view.is_hidden;
}

TEST(Description, NamesEveryOutletOfThePanelWithItsClass)
{
    const std::map<std::string, std::vector<std::string>> outlets = {
        {"QmKnobView",
         {"delay_depth_knob", "delay_feedback_knob", "delay_delay_knob", "delay_cutoff_frequency_knob",
          "delay_cutoff_q_knob", "output_level", "wave_shaper_one_a", "wave_shaper_one_b",
          "wave_shaper_one_c", "wave_shaper_one_d", "wave_shaper_two_a", "wave_shaper_two_b",
          "wave_shaper_two_c", "wave_shaper_two_d", "envelope_sensitivity", "filter_resonance",
          "envelope_attack_time", "envelope_release_time"}},
        {"QmR7PushModeKnobView",
         {"wave_shaper_one_e", "wave_shaper_two_e", "envelope_mode", "start_vowel_mode", "end_vowel_mode"}},
        {"QmIndicatorLightView", {"delay_on_indicator_light"}},
        {"QmR7FiveStateIndicatorLightView", {"wah_mode_light"}},
        {"QmR7TenStateIndicatorLightView", {"start_vowel_light", "end_vowel_light"}},
    };
    const std::vector<std::string> displays = {"pre_tone_control_display", "wave_shaper_one_display",
                                               "wave_shaper_two_display", "post_tone_control_display"};
    const std::vector<std::string> editors = {"pre_tone_control", "post_tone_control",
                                              "zoomed_wave_shaper_display"};

    const Description description = described_panel();
    EXPECT_EQ(description.panel_class, "QmR7View");
    std::size_t named = displays.size() + editors.size();
    for (const auto& [view_class, names] : outlets) {
        named += names.size();
        for (const std::string& name : names) {
            const DescribedView* view = description.find(name);
            ASSERT_TRUE(view) << name;
            EXPECT_EQ(view->view_class, view_class) << name;
            EXPECT_FALSE(view->is_hidden) << name;
        }
    }
    for (const std::string& name : displays) {
        ASSERT_TRUE(description.find(name)) << name;
        EXPECT_FALSE(description.find(name)->is_hidden) << name;
    }
    for (const std::string& name : editors) {
        ASSERT_TRUE(description.find(name)) << name;
        EXPECT_TRUE(description.find(name)->is_hidden) << name;
    }
    EXPECT_EQ(description.views.size(), named);
}

TEST(Description, FramesLieInThePanelOnTheGridAndOverNoOther)
{
    const Description description = described_panel();
    const Rect bounds{0.0, 0.0, description.size.width, description.size.height};
    for (const DescribedView& view : description.views) {
        EXPECT_EQ(intersection(view.frame, bounds), view.frame) << view.outlet;
        for (const double edge : {view.frame.x, view.frame.y, view.frame.width, view.frame.height})
            EXPECT_EQ(std::fmod(edge, 8.0), 0.0) << view.outlet;
        for (const DescribedView& other : description.views) {
            if (&other == &view || is_editor(view) || is_editor(other)) continue;
            EXPECT_TRUE(intersection(view.frame, other.frame).is_empty())
                << view.outlet << ' ' << other.outlet;
        }
    }
}

TEST(Description, AnEditorCoversNeitherTheDisplaysNorTheWaveshapersControls)
{
    const Description description = described_panel();
    for (const DescribedView& editor : description.views) {
        if (!is_editor(editor)) continue;
        const Rect opened = moved_by(editor.frame, {0.0, description.size.height - editor.frame.height});
        for (const DescribedView& view : description.views) {
            if (is_editor(view) ||
                !(view.outlet.ends_with("_display") || view.outlet.starts_with("wave_shaper_")))
                continue;
            EXPECT_TRUE(intersection(opened, view.frame).is_empty())
                << editor.outlet << " over " << view.outlet;
        }
    }
}

TEST(Description, WhatCannotBeReadIsRefusedWithItsLine)
{
    const std::string begin = "<panel class=\"P\" width=\"9\" height=\"9\">\n";
    const std::string frame = "x=\"0\" y=\"0\" width=\"1\" height=\"1\"";
    const struct
    {
        std::string xml, error;
    } cases[] = {
        {"", "line 1: no element found"},
        {begin, "line 2: no element found"},
        {begin + "<knob/></panel>", "line 2: unknown element \"knob\""},
        {begin + "<view outlet=\"a\" " + frame + "/></panel>", "line 2: attribute \"class\" is missing"},
        {begin + "<place outlet=\"a\" x=\"0\" y=\"0\" width=\"1\"/></panel>",
         "line 2: attribute \"height\" is missing"},
        {begin + "<place outlet=\"a\" x=\"inf\" y=\"0\" width=\"1\" height=\"1\"/></panel>",
         "line 2: \"inf\" is no finite number"},
        {begin + "<place outlet=\"a\" x=\"1px\" y=\"0\" width=\"1\" height=\"1\"/></panel>",
         "line 2: \"1px\" is no finite number"},
        {begin + "<place outlet=\"a\" x=\"0\" y=\"0\" width=\"0\" height=\"1\"/></panel>",
         "line 2: the frame is empty"},
        {begin + "<place outlet=\"a\" " + frame + "/>\n<place outlet=\"a\" " + frame + "/></panel>",
         "line 3: outlet \"a\" is there twice"},
    };
    for (const auto& c : cases) {
        std::string error;
        EXPECT_FALSE(parse_description(c.xml, error)) << c.xml;
        EXPECT_EQ(error, c.error) << c.xml;
    }
    std::string error;
    const auto read = parse_description(begin + "<place outlet=\"a\" " + frame + "/></panel>", error);
    ASSERT_TRUE(read) << error;
    EXPECT_EQ(read->views.at(0).frame, (Rect{0.0, 0.0, 1.0, 1.0}));
}

} // namespace
} // namespace r7::art
