// The view that a host is given.
#pragma once

#include "cocoa/host_view.h"
#include "host/panel_view.h"

#include <memory>

/// Shows a panel and owns it. Its window for the panel is another one with each NSWindow that it comes into,
/// so that an open editor closes when it is moved or taken away.
@interface QmR7View : QmR7HostView {
@private
    std::shared_ptr<r7::QmR7View> panel_;
}

- (id)initWithPanel:(std::shared_ptr<r7::QmR7View>)panel;

@end
