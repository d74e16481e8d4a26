// The knob's values, gestures and drawing.
#include "controls/knob_view.h"

#include "controls/centered_image.h"
#include "platform/graphics.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace r7 {

namespace {

// Where the marker points at the minimum, to the lower left: 5/4 pi, counterclockwise from +x.
constexpr double kMinimumAngle = 3.9269908169872414;
// The part of a full turn, clockwise, from there to the maximum.
constexpr double kSweep = -0.75;

constexpr double kDotWidth = 3.0;
constexpr std::size_t kOvalElements = 6;

} // namespace

QmKnobView::QmKnobView(const Rect& frame) : View(frame)
{
    marker_dot_.reserve(kOvalElements);
}

void QmKnobView::set_knob_image(ImageRef image)
{
    background_image_ = std::move(image);
    if (!background_image_) return; // the radius of the body before stays, and nothing is redrawn
    radius_ = background_image_->size().width * 0.5;
    set_needs_display();
}

void QmKnobView::set_marker_image_on_off(ImageRef on, ImageRef off)
{
    marker_image_on_ = std::move(on);
    marker_image_off_ = std::move(off);
    set_needs_display();
}

void QmKnobView::set_callback_onObject(Action action, ActionTargetRef target)
{
    callback_.set(action, std::move(target));
}

void QmKnobView::set_values_minimum_maximum_default_value(double minimum, double maximum, double start)
{
    minimum_value_ = maximum >= minimum ? minimum : maximum;
    maximum_value_ = maximum;
    default_value_ = clamped(start);
    value_ = clamped(value_);
    set_needs_display();
}

void QmKnobView::set_current_value(double value)
{
    value_ = clamped(value);
    set_needs_display();
}

// Below, else above, else itself: a NaN passes, and bounds that are NaN hold nothing back.
double QmKnobView::clamped(double value) const
{
    if (value < minimum_value_) return minimum_value_;
    if (value > maximum_value_) return maximum_value_;
    return value;
}

void QmKnobView::choose(double value)
{
    value_ = value;
    callback_.send(*this);
}

void QmKnobView::mouseDown(const MouseEvent& event)
{
    if (event.click_count == 2)
        choose(default_value_);
    else
        mouse_is_down_ = true;
    set_needs_display();
}

void QmKnobView::mouseDragged(const MouseEvent& event)
{
    const float step = drag_step(event);
    drag_by(has(event.modifiers, Modifiers::control) ? reduced(step) : step);
}

void QmKnobView::mouseUp(const MouseEvent&)
{
    mouse_is_down_ = false;
    set_needs_display();
}

// The right button does as the left one does on a plain knob, also in the controls that give the left one
// another meaning.
void QmKnobView::rightMouseDown(const MouseEvent& event)
{
    QmKnobView::mouseDown(event);
}

void QmKnobView::rightMouseDragged(const MouseEvent& event)
{
    drag_by(reduced(drag_step(event)));
}

void QmKnobView::rightMouseUp(const MouseEvent& event)
{
    QmKnobView::mouseUp(event);
}

void QmKnobView::scrollWheel(const ScrollEvent& event)
{
    choose(clamped(value_ + static_cast<float>(event.delta_y * scale_)));
    set_needs_display();
}

// Right and up raise the value; both parts of a diagonal drag count.
float QmKnobView::drag_step(const MouseEvent& event) const
{
    return static_cast<float>((event.delta_x - event.delta_y) * scale_);
}

// A fine step has been rounded to single precision twice: before the reduction, and after it.
float QmKnobView::reduced(float step) const
{
    return static_cast<float>(step * modifier_reduction_);
}

void QmKnobView::drag_by(float step)
{
    choose(clamped(value_ + step));
    mouse_is_down_ = true;
    set_needs_display();
}

// A handful of operations, done before every paint: so nothing has to remember what has changed since the
// last one (a frame changes without telling).
void QmKnobView::update_geometry()
{
    if (!background_image_) return;
    const Point corner = origin_to_center(background_image_->size(), bounds());
    // A range of a single point divides by zero: then the angle is no number, and the marker is nowhere.
    const double angle =
        (value_ - minimum_value_) * (2.0 * std::numbers::pi) / (maximum_value_ - minimum_value_) * kSweep +
        kMinimumAngle;
    marker_center_ = {corner.x + radius_ + std::cos(angle) * (1.0 - marker_inset_) * radius_,
                      corner.y + radius_ + std::sin(angle) * (1.0 - marker_inset_) * radius_};

    if (marker_image()) return; // the dot stands in for one that is missing
    marker_dot_.remove_all_points();
    marker_dot_.append_oval(
        {marker_center_.x - kDotWidth * 0.5, marker_center_.y - kDotWidth * 0.5, kDotWidth, kDotWidth});
}

const Image* QmKnobView::marker_image() const
{
    return mouse_is_down_ && marker_image_on_ ? marker_image_on_.get() : marker_image_off_.get();
}

void QmKnobView::drawRect(Graphics& graphics, const Rect&)
{
    if (!background_image_) return;
    draw_centered(graphics, background_image_.get(), bounds());

    if (const Image* marker = marker_image()) {
        const Size size = marker->size();
        graphics.draw_image(marker,
                            {marker_center_.x - size.width * 0.5, marker_center_.y - size.height * 0.5},
                            Compositing::source_over, 1.0);
    } else {
        const Color black(Rgba{});
        graphics.fill(marker_dot_, &black);
    }
}

} // namespace r7
