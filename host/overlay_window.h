// The borderless window that a zoomed editor is shown in.
#pragma once

#include "platform/window.h"

namespace r7 {

/// Floats over the panel's window as its child, and lets the panel show through where the editor does.
///
/// Always borderless, buffered and made at once, whatever is asked for; it can be the key window all the
/// same.
class QM_R7_Overlay_Window final : public Window {
public:
    QM_R7_Overlay_Window(const Rect& content_rect, WindowStyle style, WindowBacking backing,
                         WindowCreation creation);

    bool canBecomeKeyWindow() const override { return true; }
};

} // namespace r7
