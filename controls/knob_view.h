// The knob: an image with a marker that sweeps 270 degrees over the range of a value.
#pragma once

#include "platform/action.h"
#include "platform/image.h"
#include "platform/path.h"
#include "platform/view.h"

namespace r7 {

/// A value between two bounds, turned by drags and the scroll wheel and reset by a double click.
///
/// Setters tell nobody; each drag, scroll and double click tells the callback, whether it changes the value
/// or not. A NaN passes the comparisons that keep the value between its bounds: it stays, and the knob shows
/// no marker, until a setter or a double click brings a number.
class QmKnobView : public View {
public:
    explicit QmKnobView(const Rect& frame);

    double current_value() const { return value_; }
    double minimum_value() const { return minimum_value_; }
    double maximum_value() const { return maximum_value_; }
    /// The value that a double click restores.
    double default_value() const { return default_value_; }
    /// Whether the user holds the knob, which shows in its marker: from a single press, or a drag, of either
    /// button until a release of either.
    bool mouse_is_down() const { return mouse_is_down_; }

    /// The body, painted in the middle of the view at its own size; the marker goes round on a circle as
    /// wide as the image. Without one the knob paints nothing at all.
    void set_knob_image(ImageRef image);
    /// The markers while the knob is held and at rest. Without `on` the held knob shows `off`; without `off`
    /// the marker is a black dot, 3 points wide.
    void set_marker_image_on_off(ImageRef on, ImageRef off);
    /// How far the marker's centre lies inside the rim, as a fraction (not a percentage) of the knob's
    /// radius. Any number, unchecked; shows with the next redraw, which it does not request.
    void set_percent_inset_for_marker(double inset) { marker_inset_ = inset; }

    /// Stores the pair that is told of the user's acts, if both are given; otherwise nothing changes.
    void set_callback_onObject(Action action, ActionTargetRef target);
    /// Forgets the callback and releases its target.
    void clear_callback() { callback_.clear(); }

    /// Sets the bounds, and clamps the default and the present value between them. A reversed range, or one
    /// with a NaN, is the single point `maximum`.
    void set_values_minimum_maximum_default_value(double minimum, double maximum, double start);
    /// Shows `value`, clamped between the bounds.
    void set_current_value(double value);
    /// The factor of fine drags (with Control held, or with the right button). Any number, unchecked.
    void set_modifier_reduction(double reduction) { modifier_reduction_ = reduction; }
    /// Change of the value for a point of a drag or a unit of a scroll. Any number, unchecked.
    void set_scale_factor(double scale) { scale_ = scale; }

    void drawRect(Graphics& graphics, const Rect& dirty) override;
    void update_geometry() override;
    void awakeFromNib() override { set_needs_display(); }
    bool mouseDownCanMoveWindow() const override { return false; }

    void mouseDown(const MouseEvent& event) override;
    void mouseDragged(const MouseEvent& event) override;
    void mouseUp(const MouseEvent& event) override;
    void rightMouseDown(const MouseEvent& event) override;
    void rightMouseDragged(const MouseEvent& event) override;
    void rightMouseUp(const MouseEvent& event) override;
    void scrollWheel(const ScrollEvent& event) override;

protected:
    /// Takes a value of the user's choice as it is, unclamped, and tells the callback, which may take the
    /// control out of its window: whoever delivered the event keeps it alive.
    void choose(double value);

private:
    double clamped(double value) const;
    float drag_step(const MouseEvent& event) const;
    float reduced(float step) const;
    void drag_by(float step);
    const Image* marker_image() const;

    ImageRef background_image_;
    ImageRef marker_image_on_;
    ImageRef marker_image_off_;
    Callback callback_;
    double value_ = 0.0;
    double minimum_value_ = 0.0;
    double maximum_value_ = 1.0;
    double default_value_ = 0.0;
    bool mouse_is_down_ = false;
    double modifier_reduction_ = 0.1;
    double scale_ = 0.05;
    double radius_ = 0.0; // half the body's width, points
    double marker_inset_ = 0.25;

    // Derived by update_geometry().
    Point marker_center_{};
    Path marker_dot_;
};

} // namespace r7
