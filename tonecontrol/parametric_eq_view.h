// The editor of a tone control: five handles on its response.
#pragma once

#include "platform/image.h"
#include "tonecontrol/tone_control_view.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>

namespace r7 {

/// Shows the response with a handle for each band, which a drag moves in frequency and level, and an
/// Option-drag or the scroll wheel in width. Control, or the right button, makes a drag fine.
///
/// Each act of the user that sets values tells the update callback, after every band that it moved. The two
/// buttons at the right ask to close the editor, and reset it. The editor never hides itself.
class Qm_ParametricEQView final : public ToneControlView {
public:
    /// The graph leaves 30 points free at the left, right and lower edges.
    explicit Qm_ParametricEQView(const Rect& frame);

    /// Whether a button is held over the view since a press or drag.
    bool mouse_is_down() const { return mouse_is_down_; }
    /// Whether the press took the handle of that band.
    bool is_moving(ToneBand band) const { return moving_[band]; }
    /// Where a band is grabbed and its circle drawn: a square of 24 points about its frequency and level, in
    /// the graph or not. While the frequency is 0, or one of the two is no number, it is nowhere.
    Rect handle(ToneBand band);

    /// Stores the pair that is told of the user's changes, if both are given; otherwise nothing changes.
    void set_callback_onObject(Action action, ActionTargetRef target);
    /// Forgets that pair and releases its target.
    void clear_callback() { update_callback_.clear(); }
    /// Performs the update action.
    void send_update_signal() { update_callback_.send(*this); }
    /// Performs the toggle action.
    void close_clicked() { send_toggle(); }

    /// How far a drag goes: at 0.01, the start value, a point is worth one point along, 0.4 dB up or 0.01 of
    /// width. Any number, unchecked.
    void set_scale_factor(double scale) { scale_ = scale; }
    /// The factor of fine drags, 0.1 at the start. Any number, unchecked.
    void set_modifier_reduction(double reduction) { modifier_reduction_ = reduction; }
    /// Levels of 0 dB and the widths that the editors start with, then one update signal. The frequencies
    /// stay, as is meant; and so does the name.
    void reset_paramters_to_defaults();

    /// Paints the buttons and the labels, once and for all.
    void awakeFromNib() override;
    void drawRect(Graphics& graphics, const Rect& dirty) override;
    bool acceptsFirstResponder() const override { return true; }
    /// Takes the keys and the mouse's motion in its new window.
    void viewDidMoveToWindow() override;

    void mouseDown(const MouseEvent& event) override;
    void mouseDragged(const MouseEvent& event) override;
    void mouseUp(const MouseEvent& event) override;
    void rightMouseDown(const MouseEvent& event) override;
    void rightMouseDragged(const MouseEvent& event) override;
    void rightMouseUp(const MouseEvent& event) override;
    void scrollWheel(const ScrollEvent& event) override;

protected:
    void drawGraph() override;

private:
    std::optional<std::size_t> handle_at(Point point);
    /// Takes the handle under the point, if there is one.
    bool grab_handle_at(Point point);
    void drag_by(const MouseEvent& event, double reduction);
    void release();

    Rect close_rect;
    Rect reset_rect;
    ImageRef close_button_image;
    ImageRef reset_button_image;
    ImageRef graph_body_image;

    std::array<Rect, kToneBands> handles_;
    Path mPointsPath;
    Path mPointsQPath;

    bool mouse_is_down_ = false;
    std::bitset<kToneBands> moving_;
    double scale_ = 0.01;
    double modifier_reduction_ = 0.1;
    Callback update_callback_;
};

} // namespace r7
