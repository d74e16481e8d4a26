// The mode knob: a knob whose positions are the entries of a menu.
#pragma once

#include "controls/knob_view.h"

#include <cstdint>
#include <vector>

namespace r7 {

/// A knob whose value counts the positions 0 to n - 1 of a list of mode numbers.
///
/// A double click with the left button goes on to the next position and from the last to the first. All
/// other gestures are the knob's, and leave values between two positions.
class QmModeKnobView : public QmKnobView {
public:
    explicit QmModeKnobView(const Rect& frame) : QmKnobView(frame) {}

    /// The mode number at the present position, which is the value rounded down.
    ///
    /// The position itself where the map has no such entry, as a knob without a map has none; the position of
    /// a value that 32 bits cannot hold, NaN included, is 0.
    std::int32_t current_menu_selection() const;

    /// The mode numbers by position. The range becomes 0 to n - 1, the default 0; for an empty map the range
    /// collapses to the single point -1.
    void set_menu_map(std::vector<std::int32_t> map);

    void mouseDown(const MouseEvent& event) override;

protected:
    /// One position further by the user's hand, from the last to the first.
    void step_up();

private:
    std::vector<std::int32_t> menu_map_;
};

} // namespace r7
