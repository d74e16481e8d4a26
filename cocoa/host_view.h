// A view of AppKit that shows a window of the panel's.
#pragma once

#include "cocoa/cocoa_window.h"

#include <memory>

/// Shows an r7::Window: what that paints is drawn in it, and what the mouse does in it that is told. All
/// views of the window are inside this one.
@interface QmR7HostView : NSView {
@private
    std::unique_ptr<r7::CocoaWindow> shown_;
}

/// Shows `window` from here on, in place of the one before.
- (void)showWindow:(std::shared_ptr<r7::Window>)window;
/// Shows nothing and takes no events any more. Closes the child windows that stand over it.
- (void)showNothing;

@end
