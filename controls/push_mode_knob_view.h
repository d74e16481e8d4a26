// The push switch: a rocker that steps through the positions of a menu.
#pragma once

#include "controls/mode_knob_view.h"

#include <filesystem>
#include <optional>

namespace r7 {

/// A rocker with three pictures. A press on its left half goes one position down, one on its right half one
/// up, both round the ends; each press counts, whatever its click count, and each tells the callback.
///
/// The right button and the scroll wheel work as on a knob, and leave values between two positions.
class QmR7PushModeKnobView final : public QmModeKnobView {
public:
    /// The halves are those of this frame, also when the view is resized later.
    explicit QmR7PushModeKnobView(const Rect& frame);

    /// Which half is held: -1 the left one, 1 the right one, 0 none.
    std::int32_t state() const { return state_; }

    /// Reads the pictures from PNG files; an absent path leaves its slot alone.
    ///
    /// A file that cannot be opened leaves the slot as it was, one that is no PNG leaves it empty, and an
    /// empty slot paints nothing. Where there already is a right picture, a path for another one also empties
    /// the left slot.
    void set_image_urls_left_flat_right(const std::optional<std::filesystem::path>& left,
                                        const std::optional<std::filesystem::path>& flat,
                                        const std::optional<std::filesystem::path>& right);

    void drawRect(Graphics& graphics, const Rect& dirty) override;

    void mouseDown(const MouseEvent& event) override;
    void mouseDragged(const MouseEvent&) override {} // a press steps; there is nothing to turn
    void mouseUp(const MouseEvent& event) override;

private:
    void step_down();

    ImageRef f_image_ref_;
    ImageRef l_image_ref_;
    ImageRef r_image_ref_;
    Rect left_rect_;
    Rect right_rect_;
    std::int32_t state_ = 0;
};

} // namespace r7
