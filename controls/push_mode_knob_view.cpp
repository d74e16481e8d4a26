// The push switch's pictures and presses.
#include "controls/push_mode_knob_view.h"

#include "platform/graphics.h"

#include <fstream>

namespace r7 {

namespace {

void read_png(ImageRef& slot, const std::filesystem::path& path)
{
    if (std::ifstream(path).is_open()) slot = Image::from_png_file(path);
}

} // namespace

QmR7PushModeKnobView::QmR7PushModeKnobView(const Rect& frame)
    : QmModeKnobView(frame),
      left_rect_{0.0, 0.0, frame.width * 0.5, frame.height},
      right_rect_{frame.width * 0.5, 0.0, frame.width * 0.5, frame.height}
{
}

void QmR7PushModeKnobView::set_image_urls_left_flat_right(const std::optional<std::filesystem::path>& left,
                                                          const std::optional<std::filesystem::path>& flat,
                                                          const std::optional<std::filesystem::path>& right)
{
    if (left) read_png(l_image_ref_, *left);
    if (flat) read_png(f_image_ref_, *flat);
    if (right) {
        // Meant: the test is for a right picture, but it is the left one that is let go, before the file is
        // opened. Its slot is emptied with it, so that nothing refers to a picture which may be gone.
        if (r_image_ref_) l_image_ref_.reset();
        read_png(r_image_ref_, *right);
    }
    set_needs_display();
}

void QmR7PushModeKnobView::mouseDown(const MouseEvent& event)
{
    const Point point = convert_from_window(event.location_in_window);
    if (contains(left_rect_, point)) {
        state_ = -1;
        step_down();
    } else if (contains(right_rect_, point)) {
        state_ = 1;
        step_up();
    } else {
        state_ = 0;
        choose(current_value()); // a press beside both halves is still told
    }
    set_needs_display();
}

void QmR7PushModeKnobView::mouseUp(const MouseEvent&)
{
    state_ = 0;
    set_needs_display();
}

// A NaN counts as below the first position here, but not as above the last one in step_up().
void QmR7PushModeKnobView::step_down()
{
    const double next = current_value() - 1.0;
    choose(next >= minimum_value() ? next : maximum_value());
}

void QmR7PushModeKnobView::drawRect(Graphics& graphics, const Rect&)
{
    const ImageRef& image = state_ == 1 ? r_image_ref_ : state_ == -1 ? l_image_ref_ : f_image_ref_;
    graphics.draw_image_in_rect(image.get(), bounds(), Compositing::source_over, 1.0);
}

} // namespace r7
