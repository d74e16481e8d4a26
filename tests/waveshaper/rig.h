// The waveshaper's views in a test: what they paint, whom they tell, and a hand to work the editor.
#pragma once

#include "tests/support/recording_graphics.h"
#include "waveshaper/bezier_wave_shaper_view.h"

namespace r7 {

/// What was painted into the images that the views made, in words. In the place of a drawing back end, an
/// image is as high as its number here, to be told by that.
inline std::vector<std::string> pictures;

/// The view brought up to date and painted, as its window would.
template <typename V>
std::vector<DrawCall> painted(V& view)
{
    RecordingGraphics graphics;
    view.update_geometry();
    view.drawRect(graphics, view.bounds());
    return graphics.calls;
}

inline std::vector<std::string> words_of(const std::vector<DrawCall>& calls)
{
    std::vector<std::string> words;
    for (const DrawCall& call : calls) words.push_back(call.words);
    return words;
}

struct Owner final : ActionTarget {
    int updates = 0;
    int toggles = 0;
    static void update(ActionTarget& target, View&) { ++static_cast<Owner&>(target).updates; }
    static void toggle(ActionTarget& target, View&) { ++static_cast<Owner&>(target).toggles; }
};

/// An editor at (20, 30) in its window, whose graph shows -2 to 2 on both axes in 400 x 400 points from (5,
/// 5).
struct EditorRig {
    std::shared_ptr<Owner> owner = std::make_shared<Owner>();
    QM_BezierWaveShaperView view{{20, 30, 410, 410}};

    EditorRig()
    {
        view.set_amplitude_in_scale_out_scale(2, 2);
        view.set_color_background(Color::device_white(0, 0.6));
        view.set_callback_onObject(&Owner::update, owner);
        view.set_toggle_callback_onObject(&Owner::toggle, owner);
        view.awakeFromNib();
    }
    Point amplitudes(CurvePoint which) const
    {
        return {view.curve().point(which).x, view.curve().point(which).y};
    }
    /// Where a point is plotted.
    Point place(CurvePoint which) const { return view.position_for_amplitudes(amplitudes(which)); }
    static MouseEvent at(Point in_view, int clicks = 1)
    {
        return {.location_in_window = {in_view.x + 20, in_view.y + 30}, .click_count = clicks};
    }
    static MouseEvent motion(double dx, double dy, Modifiers held = Modifiers::none)
    {
        return {.delta_x = dx, .delta_y = dy, .modifiers = held};
    }
};

} // namespace r7
