// The view factory: what a host asks for a panel.
#pragma once

#include "host/panel_view.h"
#include "platform/audio_toolbox.h"
#include "platform/bundle.h"

#include <memory>
#include <string>

namespace r7 {

/// Makes panels from the interface description "QmR7View" of a bundle.
class QmR7ViewFactory final {
public:
    explicit QmR7ViewFactory(std::shared_ptr<const Bundle> bundle) : bundle_(std::move(bundle)) {}

    UInt32 interfaceVersion() const noexcept { return 0; }
    std::string description() const { return "Quillmere: R7"; }

    /// A new panel, bound to `unit`, which may be none; the host owns it. The preferred size is ignored.
    /// Where the panel cannot be loaded the message is logged, none is returned, and nothing is left of it.
    std::shared_ptr<QmR7View> uiViewForAudioUnit_withSize(AudioUnit unit, Size preferred_size) noexcept;

private:
    std::shared_ptr<const Bundle> bundle_;
    // Filled by the loader, and empty again once the view is handed over.
    std::shared_ptr<QmR7View> uiFreshlyLoadedView;
};

} // namespace r7
