// The editor in the user's hands.
#include "tests/tonecontrol/tone_rig.h"

#include <gtest/gtest.h>

#include <vector>

namespace r7 {

namespace {

struct EditorRig : ToneRig<Editor> {
    Point center(ToneBand band) { return {view->handle(band).x + 12, view->handle(band).y + 12}; }
    void press(Point at, void (View::*how)(const MouseEvent&) = &View::mouseDown)
    {
        (*view.*how)({.location_in_window = at});
    }

    std::vector<float> values() const
    {
        std::vector<float> all;
        for (const auto& [set, get, value] : kValues) all.push_back((*view.*get)());
        return all;
    }
};

constexpr Point kCloseButton{645, 49};
constexpr Point kResetButton{645, 70};

} // namespace

TEST(ToneEditor, DragsAHandleInFrequencyAndLevelOrInWidth)
{
    using enum Modifiers;
    enum class Button { left, right };
    using enum Button;
    const struct {
        Button button;
        double dx, dy;
        Modifiers modifiers;
        float along, up, wider;
    } cases[] = {
        {left, 10, -5, none, 10, 2, 0},         {left, 10, -5, control, 1, 0.2f, 0},
        {right, 10, -5, none, 1, 0.2f, 0},      {left, 5, -5, option, 0, 0, 0.1f},
        {left, 5, 5, option, 0, 0, 0},          {right, 0, -50, option | control, 0, 0, 0.05f},
        {left, 1e4, 0, option, 0, 0, 1e9f},     {left, -1e4, 0, option, 0, 0, 0},
        {left, 1e4, -1e4, none, 1e9f, 1e9f, 0}, {left, -1e4, 1e4, none, -1e9f, -1e9f, 0},
    };
    for (std::size_t band = 0; band < kToneBands; ++band)
        for (const auto& row : cases) {
            EditorRig rig;
            auto expected = rig.values();
            const ToneMapping& mapping = rig.view->mapping();
            const float x = mapping.location_for_frequency(expected[3 * band]) + row.along;
            expected[3 * band] = std::clamp(mapping.frequency_for_location(x), 10.0f, 20050.0f);
            expected[3 * band + 1] = std::clamp(expected[3 * band + 1] + row.up, -40.0f, 40.0f);
            expected[3 * band + 2] = std::min(expected[3 * band + 2] + row.wider, 1.0f);

            const bool is_left = row.button == left;
            const MouseEvent drag{.delta_x = row.dx, .delta_y = row.dy, .modifiers = row.modifiers};
            rig.press(rig.center(ToneBand(band)), is_left ? &View::mouseDown : &View::rightMouseDown);
            EXPECT_TRUE(rig.view->mouse_is_down() && rig.view->is_moving(ToneBand(band)));
            is_left ? rig.view->mouseDragged(drag) : rig.view->rightMouseDragged(drag);
            is_left ? rig.view->mouseUp({}) : rig.view->rightMouseUp({});
            EXPECT_FALSE(rig.view->mouse_is_down() || rig.view->is_moving(ToneBand(band)));
            rig.view->mouseDragged(drag);
            for (std::size_t i = 0; i < expected.size(); ++i)
                EXPECT_NEAR(rig.values()[i], expected[i], 1e-5 * std::abs(expected[i])) << band << ", " << i;
            EXPECT_EQ(rig.updates->calls, 1);
        }
}

TEST(ToneEditor, AHandleIsGrabbedBeforeThoseOfLaterBandsAndBeforeAButton)
{
    EditorRig rig;
    rig.press(kCloseButton, &View::rightMouseDown);
    EXPECT_EQ(rig.toggles->calls, 0);
    rig.press(kCloseButton);
    EXPECT_EQ(rig.toggles->calls, 1);
    rig.view->setFreqHigh(22500);
    rig.view->setLevelHigh(-38);
    rig.press(rig.center(kToneHigh));
    EXPECT_TRUE(rig.view->is_moving(kToneHigh));
    EXPECT_EQ(rig.toggles->calls, 1);
    rig.view->mouseUp({});

    rig.view->setFreqHigh(1234);
    rig.view->setLevelHigh(11);
    const Rect square = rig.view->handle(kToneMid);
    rig.press({square.right(), square.y});
    EXPECT_TRUE(rig.view->mouse_is_down() && !rig.view->is_moving(kToneMid)) << "the right edge is outside";
    rig.press({square.x, square.y});
    EXPECT_TRUE(rig.view->is_moving(kToneMid) && !rig.view->is_moving(kToneHigh));
}

TEST(ToneEditor, ScrollsWidthsBetweenZeroAndOne)
{
    const struct {
        float from;
        double delta;
        int times;
        float to;
        int updates;
    } cases[] = {
        {0.8f, 1, 4, 1.0f, 4},    {0.98f, 2, 1, 0.98f, 0},        {0.95f, 1, 1, 1.0f, 1},
        {0.04f, -1, 1, 0.04f, 0}, {0.5f, -3, 1, 0.5f - 0.05f, 1}, {0.5f, 0, 1, 0.5f, 1},
    };
    for (const auto& row : cases) {
        EditorRig rig;
        rig.view->setSlopeHigh(row.from);
        const Point over = rig.center(kToneHigh);
        rig.view->scrollWheel({.location_in_window = {over.x + 12, over.y}, .delta_y = row.delta});
        for (int i = 0; i < row.times; ++i)
            rig.view->scrollWheel({.location_in_window = over, .delta_y = row.delta});
        EXPECT_EQ(rig.view->slopeHigh(), row.to);
        EXPECT_EQ(rig.updates->calls, row.updates);
    }
}

TEST(ToneEditor, ResetsLevelsAndWidthsAndTellsOnce)
{
    EditorRig rig;
    rig.press(kResetButton);
    EXPECT_EQ(rig.updates->calls, 1);
    EXPECT_EQ(rig.values(),
              (std::vector<float>{137, 0, 0.5f, 411, 0, 0.8f, 1234, 0, 0.8f, 3456, 0, 0.8f, 7890, 0, 0.5f}));
    EXPECT_EQ(rig.window->first_responder(), rig.view.get());
    EXPECT_TRUE(rig.window->accepts_mouse_moved_events);
}

} // namespace r7
