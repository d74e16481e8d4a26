// The view factory.
#include "host/view_factory.h"

#include "host/panel_loader.h"
#include "platform/log.h"

#include <utility>

namespace r7 {

std::shared_ptr<QmR7View> QmR7ViewFactory::uiViewForAudioUnit_withSize(AudioUnit unit, Size) noexcept
try {
    auto loaded = load_panel(bundle_);
    if (auto* panel = std::get_if<std::shared_ptr<QmR7View>>(&loaded))
        uiFreshlyLoadedView = std::move(*panel);
    if (!uiFreshlyLoadedView) {
        log_message("R7: Unable to load nib for view.");
        return nullptr;
    }
    uiFreshlyLoadedView->setAU(unit);
    return std::exchange(uiFreshlyLoadedView, nullptr);
} catch (...) {
    // A host calls this: nothing may escape into it, and nothing half made may stay.
    uiFreshlyLoadedView = nullptr;
    return nullptr;
}

} // namespace r7
