// The panel without a display.
#include "app/offscreen_panel.h"

#include "host/view_factory.h"

namespace r7 {

namespace {

constexpr Point kWindowOrigin{100.0, 100.0}; // on a screen that nobody sees

// Longer than the panel's listener waits.
constexpr Time kSynchronisation = std::chrono::milliseconds(100);

} // namespace

std::unique_ptr<OffscreenPanel> OffscreenPanel::open(const std::shared_ptr<const Bundle>& bundle,
                                                     double scale, UnitObserver* observer)
{
    std::unique_ptr<OffscreenPanel> opened(new OffscreenPanel(observer));
    QmR7ViewFactory factory(bundle);
    opened->panel_ = factory.uiViewForAudioUnit_withSize(opened->unit_->handle(), {});
    if (!opened->panel_) return nullptr;
    const Size size = opened->panel_->bounds().size();
    opened->window_ = std::make_unique<OffscreenWindow>(
        Rect{kWindowOrigin.x, kWindowOrigin.y, size.width, size.height}, scale);
    opened->window_->window().set_content_view(opened->panel_);
    opened->advance(kSynchronisation);
    return opened;
}

} // namespace r7
