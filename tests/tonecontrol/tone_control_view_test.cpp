// What editor and display share: the values and a curve that is the plain response.
#include "tests/tonecontrol/plain_response_path.h"
#include "tests/tonecontrol/tone_rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace r7 {

namespace {

struct Counter final : ActionTarget {
    int calls = 0;
    static void count(ActionTarget& target, View&) { ++static_cast<Counter&>(target).calls; }
};

template <typename V>
void expect_plain_response(std::size_t points)
{
    ToneRig<V> rig;
    rig.view->set_sample_rate(48000);
    rig.view->set_maximum_frequency(22050);
    Qm_ObjectiveToneControl model;
    model.set_sample_rate(48000);
    design_rig_values(model);
    EXPECT_EQ(rig.view->responseForFrequency(1000), model.responseForFrequency(1000));

    Path plain;
    plain_response_path(model, rig.view->mapping(), points, plain);
    EXPECT_TRUE(std::ranges::equal(rig.view->curve_path().elements(), plain.elements()));
    EXPECT_EQ(plain.elements().size(), 1 + points + 1);
}

} // namespace

TEST(ToneViews, DrawThePlainResponseOfTheirFifteenValues)
{
    expect_plain_response<Editor>(101);
    expect_plain_response<Display>(100);
}

TEST(ToneViews, LeadTheCurveToTheCornerUnlessItEndsBelowTheFloor)
{
    ToneRig<Display> rig;
    rig.view->set_amplitude_maximum_gain_in_db(60); // the floor is at -40 dB all the same
    rig.view->setFreqHigh(1000);
    for (const auto& [db, elements] : {std::pair{-39.0f, 102u}, {-45.0f, 101u}, {kNaN, 101u}}) {
        rig.view->setLevelHigh(db);
        EXPECT_EQ(rig.view->curve_path().elements().size(), elements) << db;
    }
}

TEST(ToneViews, RedrawForEveryChangeAndForNothingElse)
{
    ToneRig<Display> rig;
    const auto redraws = [&](auto setter, float value) {
        (*rig.view.*setter)(value);
        return rig.redraw_requested();
    };
    for (std::size_t i = 0; i < kToneValues; ++i) {
        const auto& [set, get] = kToneValueRows[i];
        EXPECT_FALSE(redraws(set, kRigValues[i]));
        EXPECT_TRUE(redraws(set, kRigValues[i] / 2));
        EXPECT_EQ((*rig.view.*get)(), kRigValues[i] / 2);
    }
    EXPECT_TRUE(redraws(&Tone::setLevelMid, kNaN));
    EXPECT_FALSE(redraws(&Tone::setLevelMid, kNaN));
    for (const float refused : {0.001f, 0.0f, -1.0f, kNaN}) EXPECT_FALSE(redraws(&Tone::setQMid, refused));
    EXPECT_TRUE(redraws(&Tone::setQMid, 0.0011f));
}

TEST(ToneDisplay, FillsItsCurveAndOpensTheEditorOnADoubleClickOnly)
{
    ToneRig<Display> rig;
    EXPECT_EQ(rig.drawn().words(), "fill 0,0,1,0.4 from 0,0");
    rig.view->setCurveColor_fill(nullptr, Color::device_rgba(1, 0.5, 0, 1));
    EXPECT_EQ(rig.drawn().words(), "fill 1,0.5,0,1 from 0,0") << "a curve colour is there from the start";

    const auto owner = std::make_shared<Counter>();
    rig.view->set_toggle_callback_onObject(&Counter::count, owner);
    for (const int clicks : {1, 2, 3, 4}) rig.view->mouseDown({.click_count = clicks});
    EXPECT_EQ(owner->calls, 1);
}

} // namespace r7
