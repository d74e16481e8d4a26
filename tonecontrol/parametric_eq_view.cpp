// The editor of a tone control: its state and the user's acts. How it is painted stands in
// parametric_eq_drawing.cpp.
#include "tonecontrol/parametric_eq_view.h"

#include "platform/window.h"

#include <utility>

namespace r7 {

namespace {

/// A hundred steps, and both their ends.
constexpr std::size_t kCurvePoints = 101;

constexpr double kMargin = 30.0;
constexpr Size kButton{30.0, 20.0};

/// What drags keep a width between. The lower end is refused by the setter, which then keeps the width.
constexpr float kMinimumWidth = 0.0f;
constexpr float kMaximumWidth = 1.0f;
constexpr float kScrollStep = 0.05f;

constexpr float kDefaultWidths[kToneBands] = {0.5f, 0.8f, 0.8f, 0.8f, 0.5f};

/// NaN is neither below nor above, and passes.
float clamped(double value, float minimum, float maximum)
{
    const auto single = static_cast<float>(value);
    return single < minimum ? minimum : single > maximum ? maximum : single;
}

} // namespace

Qm_ParametricEQView::Qm_ParametricEQView(const Rect& frame)
    : ToneControlView(frame, {kMargin, kMargin, frame.width - 2 * kMargin, frame.height - kMargin},
                      kCurvePoints),
      close_rect{frame.width - kMargin, kMargin, kButton.width, kButton.height},
      reset_rect(moved_by(close_rect, {0.0, 30.0}))
{
    mCurvePath.line_width = 2.0;
    mPointsPath.line_width = 2.5;
    mPointsQPath.line_width = 3.0;
    // Two circles of six elements for each band, and an arc of at most four curves.
    mPointsPath.reserve(kToneBands * 12);
    mPointsQPath.reserve(kToneBands * 6);
}

Rect Qm_ParametricEQView::handle(ToneBand band)
{
    update_geometry();
    return handles_[band];
}

void Qm_ParametricEQView::set_callback_onObject(Action action, ActionTargetRef target)
{
    update_callback_.set(action, std::move(target));
}

void Qm_ParametricEQView::reset_paramters_to_defaults()
{
    for (std::size_t band = 0; band < kToneBands; ++band) {
        set_level(band, 0.0f);
        set_width(band, kDefaultWidths[band]);
    }
    send_update_signal();
}

void Qm_ParametricEQView::viewDidMoveToWindow()
{
    Window* const window = this->window();
    if (!window) return;
    window->make_first_responder(shared_from_this());
    window->accepts_mouse_moved_events = true;
}

void Qm_ParametricEQView::mouseDown(const MouseEvent& event)
{
    const Point point = convert_from_window(event.location_in_window);
    mouse_is_down_ = true;
    if (grab_handle_at(point)) return;
    if (contains(close_rect, point))
        close_clicked();
    else if (contains(reset_rect, point))
        reset_paramters_to_defaults();
}

void Qm_ParametricEQView::rightMouseDown(const MouseEvent& event)
{
    mouse_is_down_ = true;
    grab_handle_at(convert_from_window(event.location_in_window));
}

void Qm_ParametricEQView::mouseDragged(const MouseEvent& event)
{
    drag_by(event, has(event.modifiers, Modifiers::control) ? modifier_reduction_ : 1.0);
}

void Qm_ParametricEQView::rightMouseDragged(const MouseEvent& event)
{
    drag_by(event, modifier_reduction_);
}

void Qm_ParametricEQView::mouseUp(const MouseEvent&)
{
    release();
}

void Qm_ParametricEQView::rightMouseUp(const MouseEvent&)
{
    release();
}

void Qm_ParametricEQView::scrollWheel(const ScrollEvent& event)
{
    const auto hit = handle_at(convert_from_window(event.location_in_window));
    if (!hit) return;
    // Single precision, step and sum: four steps up from 0.8 reach 1.0.
    const float step = event.delta_y > 0.0 ? kScrollStep : event.delta_y < 0.0 ? -kScrollStep : 0.0f;
    const float width = step + band(*hit).width;
    if (!(width > 0.0f && width <= kMaximumWidth)) return;
    set_width(*hit, width);
    send_update_signal();
}

std::optional<std::size_t> Qm_ParametricEQView::handle_at(Point point)
{
    update_geometry();
    for (std::size_t band = 0; band < kToneBands; ++band)
        if (contains(handles_[band], point)) return band;
    return std::nullopt;
}

bool Qm_ParametricEQView::grab_handle_at(Point point)
{
    const auto hit = handle_at(point);
    if (hit) moving_.set(*hit);
    return hit.has_value();
}

void Qm_ParametricEQView::drag_by(const MouseEvent& event, double reduction)
{
    mouse_is_down_ = true;
    const bool widens = has(event.modifiers, Modifiers::option);
    const double x = widens ? 0.0 : scale_ * event.delta_x * 100.0 * reduction;
    const double level = widens ? 0.0 : event.delta_y * scale_ * -40.0 * reduction;
    const double width = widens ? scale_ * (event.delta_x - event.delta_y) * reduction : 0.0;

    for (std::size_t number = 0; number < kToneBands; ++number) {
        if (!moving_[number]) continue;
        const ToneBandValues before = band(number);
        // By way of its location even where it stays in place: a drag that only widens moves the frequency by
        // what that rounds off, as is meant.
        const auto location = static_cast<float>(mapping().location_for_frequency(before.frequency_hz) + x);
        set_frequency(number, clamped(mapping().frequency_for_location(location),
                                      mapping().minimum_frequency_hz(), mapping().maximum_frequency_hz()));
        set_level(number,
                  clamped(before.level_db + level, mapping().minimum_gain_db(), mapping().maximum_gain_db()));
        set_width(number, clamped(before.width + width, kMinimumWidth, kMaximumWidth));
        send_update_signal();
    }
}

void Qm_ParametricEQView::release()
{
    mouse_is_down_ = false;
    moving_.reset();
}

} // namespace r7
