// The off-screen window.
#include "platform/offscreen/offscreen_window.h"

namespace r7 {

OffscreenWindow::OffscreenWindow(const Rect& frame, double scale)
    : window_(std::make_shared<Window>(frame)), back_buffer_(frame.size(), scale)
{
    window_->set_backend(this);
}

OffscreenWindow::~OffscreenWindow()
{
    window_->set_backend(nullptr);
}

const BackBuffer& OffscreenWindow::picture()
{
    back_buffer_.repaint(*window_);
    return back_buffer_;
}

} // namespace r7
